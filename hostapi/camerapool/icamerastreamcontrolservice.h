#pragma once

#include "core/iservice.h"

namespace Plugin::CameraPool {

/// Controls acquisition.
class HOSTAPI_EXPORT ICameraStreamControlService : public Core::Service::IService
{
    Q_OBJECT

public:
    explicit ICameraStreamControlService(QObject *parent = nullptr);
    ~ICameraStreamControlService() override;

    /// Ends acquisition and recording on every camera; all are stopped when it returns. Firmware
    /// updates go on. GUI thread.
    virtual void stopAllCameras() = 0;
};

} // namespace Plugin::CameraPool
