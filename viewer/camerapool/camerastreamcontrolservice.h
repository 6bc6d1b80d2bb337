#pragma once

#include "camerapool/icamerastreamcontrolservice.h"

#include <functional>

namespace Viewer::CameraPool {

/// Lets plug-ins stop acquisition.
class CCameraStreamControlService : public Plugin::CameraPool::ICameraStreamControlService
{
    Q_OBJECT

public:
    explicit CCameraStreamControlService(const std::function<void()> &stopAll,
                                         QObject *parent = nullptr);
    ~CCameraStreamControlService() override;

    void stopAllCameras() override;

private:
    const std::function<void()> m_stopAll;
};

} // namespace Viewer::CameraPool
