#pragma once

#include "camerapool/ibaseinfo.h"
#include "core/iservice.h"

#include <QSharedPointer>

namespace Plugin::CameraSelector {

/// Tells what the user has selected in the host's camera tree.
class HOSTAPI_EXPORT IDeviceSelectorService : public Core::Service::IService
{
    Q_OBJECT

public:
    explicit IDeviceSelectorService(QObject *parent = nullptr);
    ~IDeviceSelectorService() override;

signals:
    /// Emitted on the GUI thread at each change: @p info is an `ICameraInfo`, an
    /// `ITransportLayerInfo`, or null when nothing is selected any more, which includes a selected
    /// camera that has disappeared.
    void selectionChanged(QSharedPointer<Plugin::CameraPool::IBaseInfo> info);
};

} // namespace Plugin::CameraSelector
