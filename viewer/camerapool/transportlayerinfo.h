#pragma once

#include "camerapool/itransportlayerinfo.h"

namespace Viewer::CameraPool {

/// One transport layer of an enumeration, as plug-ins see it.
class CTransportLayerInfo : public Plugin::CameraPool::ITransportLayerInfo
{
    Q_OBJECT

public:
    CTransportLayerInfo(const QString &id, const QString &displayName,
                        const QVector<Plugin::CameraPool::CameraInfoPtr> &cameras);
    ~CTransportLayerInfo() override;

    [[nodiscard]] QString getDisplayName() const override;
    [[nodiscard]] QString getId() const override;
    [[nodiscard]] const QVector<QSharedPointer<Plugin::CameraPool::ICameraInfo>> &
    getCameraInfoList() const override;

private:
    const QString m_id;
    const QString m_displayName;
    const QVector<Plugin::CameraPool::CameraInfoPtr> m_cameras;
};

} // namespace Viewer::CameraPool
