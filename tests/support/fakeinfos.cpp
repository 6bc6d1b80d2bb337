#include "fakeinfos.h"

namespace TestSupport {

using Plugin::CameraPool::CameraInfoPtr;
using Plugin::CameraPool::TransportLayerInfoPtr;

CFakeCameraInfo::CFakeCameraInfo(const CCameraDescription &description)
    : m_description(description)
{
}

QString CFakeCameraInfo::getDisplayName() const
{
    return QStringLiteral("Camera ") + m_description.id;
}

QString CFakeCameraInfo::getId() const
{
    return m_description.id;
}

qint32 CFakeCameraInfo::getCameraStatusCode() const
{
    return m_description.statusCode;
}

QString CFakeCameraInfo::getTransportLayerId() const
{
    return m_description.layerId;
}

QString CFakeCameraInfo::getFirmwareVersion() const
{
    return m_description.firmware;
}

QString CFakeCameraInfo::getModelName() const
{
    return m_description.model;
}

QString CFakeCameraInfo::getSerialNumber() const
{
    return QStringLiteral("SN-") + m_description.id;
}

QString CFakeCameraInfo::getDeviceVersion() const
{
    return QStringLiteral("R1");
}

CFakeTransportLayerInfo::CFakeTransportLayerInfo(const QString &id,
                                                 const QVector<CameraInfoPtr> &cameras)
    : m_id(id)
    , m_cameras(cameras)
{
}

QString CFakeTransportLayerInfo::getDisplayName() const
{
    return QStringLiteral("Layer ") + m_id;
}

QString CFakeTransportLayerInfo::getId() const
{
    return m_id;
}

const QVector<CameraInfoPtr> &CFakeTransportLayerInfo::getCameraInfoList() const
{
    return m_cameras;
}

CFakeUpdateInfo::CFakeUpdateInfo(const QString &version, const QString &description,
                                 const QString &releaseNotes)
    : m_version(version)
    , m_description(description)
    , m_releaseNotes(releaseNotes)
{
}

QString CFakeUpdateInfo::getVersion() const
{
    return m_version;
}

QString CFakeUpdateInfo::getDescription() const
{
    return m_description;
}

QString CFakeUpdateInfo::getReleaseNotes() const
{
    return m_releaseNotes;
}

QString CFakeUpdateInfo::getFileName() const
{
    return QStringLiteral("update.guf");
}

CameraInfoPtr makeCamera(const CCameraDescription &description)
{
    return CameraInfoPtr(new CFakeCameraInfo(description));
}

TransportLayerInfoPtr makeLayer(const QString &id, QVector<CCameraDescription> cameras)
{
    QVector<CameraInfoPtr> infos;
    infos.reserve(cameras.size());
    for (CCameraDescription &camera : cameras) {
        camera.layerId = id;
        infos.append(makeCamera(camera));
    }
    return TransportLayerInfoPtr(new CFakeTransportLayerInfo(id, infos));
}

} // namespace TestSupport
