#include "combinedcameras.h"

#include "icameradevice.h"

namespace Viewer::Camera {

std::unique_ptr<ICameraDevice> CCombinedCameras::createDevice(const QString &cameraId)
{
    for (ICameraDeviceFactory *const factory : qAsConst(m_factories)) {
        if (std::unique_ptr<ICameraDevice> device = factory->createDevice(cameraId))
            return device;
    }
    return nullptr;
}

QVector<CTransportLayerSnapshot> CCombinedCameras::enumerate()
{
    QVector<CTransportLayerSnapshot> layers;
    for (ICameraEnumerator *const enumerator : qAsConst(m_enumerators))
        layers += enumerator->enumerate();
    return layers;
}

void CCombinedCameras::cancel()
{
    for (ICameraEnumerator *const enumerator : qAsConst(m_enumerators))
        enumerator->cancel();
}

} // namespace Viewer::Camera
