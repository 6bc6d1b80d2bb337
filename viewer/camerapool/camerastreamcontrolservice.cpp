#include "camerastreamcontrolservice.h"

namespace Viewer::CameraPool {

CCameraStreamControlService::CCameraStreamControlService(const std::function<void()> &stopAll,
                                                         QObject *parent)
    : ICameraStreamControlService(parent)
    , m_stopAll(stopAll)
{
}

CCameraStreamControlService::~CCameraStreamControlService() = default;

void CCameraStreamControlService::stopAllCameras()
{
    m_stopAll();
}

} // namespace Viewer::CameraPool
