#include "combinedcameras.h"

#include "icameradevice.h"

namespace Viewer::Camera {

CCombinedCameras::CCombinedCameras(const CCameraKinds &kinds)
    : m_kinds(kinds)
{
}

std::unique_ptr<ICameraDevice> CCombinedCameras::createDevice(const QString &cameraId)
{
    for (const std::unique_ptr<ICameraKind> &kind : m_kinds) {
        if (std::unique_ptr<ICameraDevice> device = kind->createDevice(cameraId))
            return device;
    }
    return nullptr;
}

QVector<CTransportLayerSnapshot> CCombinedCameras::enumerate()
{
    QVector<CTransportLayerSnapshot> layers;
    for (const std::unique_ptr<ICameraKind> &kind : m_kinds)
        layers += kind->enumerate();
    return layers;
}

void CCombinedCameras::cancel()
{
    for (const std::unique_ptr<ICameraKind> &kind : m_kinds)
        kind->cancel();
}

} // namespace Viewer::Camera
