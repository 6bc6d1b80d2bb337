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
    const ECameraActivity activity = m_getActivity(camera->getId());
    return activity == ECameraActivity::Acquiring || activity == ECameraActivity::Recording
        || activity == ECameraActivity::InUseElsewhere;
}

} // namespace Viewer::CameraPool
