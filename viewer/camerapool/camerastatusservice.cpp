#include "camerastatusservice.h"

namespace Viewer::CameraPool {

CCameraStatusService::CCameraStatusService(const ActivityGetter &getActivity, QObject *parent)
    : ICameraStatusService(parent)
    , m_getActivity(getActivity)
{
}

CCameraStatusService::~CCameraStatusService() = default;

bool CCameraStatusService::isCameraBusy(
    QSharedPointer<Plugin::CameraPool::ICameraInfo> camera) const
{
    if (!camera)
        return false;
    const Camera::ECameraActivity activity = m_getActivity(camera->getId());
    return activity == Camera::ECameraActivity::Acquiring
        || activity == Camera::ECameraActivity::Recording
        || activity == Camera::ECameraActivity::InUseElsewhere;
}

} // namespace Viewer::CameraPool
