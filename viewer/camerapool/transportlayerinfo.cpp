#include "transportlayerinfo.h"

namespace Viewer::CameraPool {

CTransportLayerInfo::CTransportLayerInfo(const QString &id, const QString &displayName,
                                         const QVector<Plugin::CameraPool::CameraInfoPtr> &cameras)
    : m_id(id)
    , m_displayName(displayName)
    , m_cameras(cameras)
{
}

CTransportLayerInfo::~CTransportLayerInfo() = default;

QString CTransportLayerInfo::getDisplayName() const
{
    return m_displayName;
}

QString CTransportLayerInfo::getId() const
{
    return m_id;
}

const QVector<QSharedPointer<Plugin::CameraPool::ICameraInfo>> &
CTransportLayerInfo::getCameraInfoList() const
{
    return m_cameras;
}

} // namespace Viewer::CameraPool
