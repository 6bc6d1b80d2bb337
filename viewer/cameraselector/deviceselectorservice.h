#pragma once

#include "cameraselector/ideviceselectorservice.h"

namespace Viewer::CameraSelector {

/// Tells plug-ins what is selected in the camera tree.
class CDeviceSelectorService : public Plugin::CameraSelector::IDeviceSelectorService
{
    Q_OBJECT

public:
    explicit CDeviceSelectorService(QObject *parent = nullptr);
    ~CDeviceSelectorService() override;

    /// Announces @p info, null for nothing, unless it is the one announced last.
    void setSelection(const QSharedPointer<Plugin::CameraPool::IBaseInfo> &info);

    [[nodiscard]] QSharedPointer<Plugin::CameraPool::IBaseInfo> getSelection() const;

private:
    QSharedPointer<Plugin::CameraPool::IBaseInfo> m_selection;
};

} // namespace Viewer::CameraSelector
