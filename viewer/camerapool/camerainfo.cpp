#include "camerainfo.h"

namespace Viewer::CameraPool {

CCameraInfo::CCameraInfo(const Camera::CCameraSnapshot &snapshot, const QString &transportLayerId)
    : m_snapshot(snapshot)
    , m_transportLayerId(transportLayerId)
{
}

CCameraInfo::~CCameraInfo() = default;

const Camera::CCameraSnapshot &CCameraInfo::getSnapshot() const
{
    return m_snapshot;
}

QString CCameraInfo::getDisplayName() const
{
    return m_snapshot.displayName;
}

QString CCameraInfo::getId() const
{
    return m_snapshot.id;
}

qint32 CCameraInfo::getCameraStatusCode() const
{
    return m_snapshot.statusCode;
}

QString CCameraInfo::getTransportLayerId() const
{
    return m_transportLayerId;
}

QString CCameraInfo::getFirmwareVersion() const
{
    return m_snapshot.firmwareVersion;
}

QString CCameraInfo::getModelName() const
{
    return m_snapshot.modelName;
}

QString CCameraInfo::getSerialNumber() const
{
    return m_snapshot.serialNumber;
}

QString CCameraInfo::getDeviceVersion() const
{
    return m_snapshot.deviceVersion;
}

} // namespace Viewer::CameraPool
