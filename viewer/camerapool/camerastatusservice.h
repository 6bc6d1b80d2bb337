#pragma once

#include "viewer/camera/ecameraactivity.h"

#include "camerapool/icamerastatusservice.h"

#include <functional>

namespace Viewer::CameraPool {

/// Tells plug-ins what a camera is doing.
class CCameraStatusService : public Plugin::CameraPool::ICameraStatusService
{
    Q_OBJECT

public:
    using ActivityGetter = std::function<Camera::ECameraActivity(const QString &cameraId)>;

    explicit CCameraStatusService(const ActivityGetter &getActivity, QObject *parent = nullptr);
    ~CCameraStatusService() override;

    /// A camera that acquires for another application is busy too.
    [[nodiscard]] bool
    isCameraBusy(QSharedPointer<Plugin::CameraPool::ICameraInfo> camera) const override;

private:
    const ActivityGetter m_getActivity;
};

} // namespace Viewer::CameraPool
