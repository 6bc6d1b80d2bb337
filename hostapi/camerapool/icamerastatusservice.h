#pragma once

#include "core/iservice.h"
#include "icamerainfo.h"

namespace Plugin::CameraPool {

/// Tells what a camera is doing.
class HOSTAPI_EXPORT ICameraStatusService : public Core::Service::IService
{
    Q_OBJECT

public:
    explicit ICameraStatusService(QObject *parent = nullptr);
    ~ICameraStatusService() override;

    /// True while @p camera acquires continuously or records; false for a camera that is being
    /// updated, for an unknown one and for null. GUI thread; quick, without side effects.
    [[nodiscard]] virtual bool
    isCameraBusy(QSharedPointer<Plugin::CameraPool::ICameraInfo> camera) const = 0;
};

} // namespace Plugin::CameraPool
