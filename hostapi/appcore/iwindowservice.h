#pragma once

#include "core/iservice.h"

class QWidget;

namespace Plugin::AppCore {

/// Access to the host's windows. GUI thread.
class HOSTAPI_EXPORT IWindowService : public Core::Service::IService
{
    Q_OBJECT

public:
    explicit IWindowService(QObject *parent = nullptr);
    ~IWindowService() override;

    /// The host's main window: the same top-level widget for the whole session. It outlives all
    /// plug-ins, so their dialogs may be its children.
    [[nodiscard]] virtual QWidget *getMainWindow() const = 0;
};

} // namespace Plugin::AppCore
