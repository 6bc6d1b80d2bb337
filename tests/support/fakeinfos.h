#pragma once

#include "camerapool/ifirmwareupdateinfo.h"
#include "camerapool/itransportlayerinfo.h"

#include <QSharedPointer>
#include <QString>
#include <QVector>

namespace TestSupport {

/// What a fake camera reports. The defaults make a camera that can be updated.
struct CCameraDescription
{
    QString id;
    QString model = QStringLiteral("VX-1");
    QString layerId = QStringLiteral("layer1");
    QString firmware = QStringLiteral("1.0.0");
    qint32 statusCode = 0;
};

class CFakeCameraInfo : public Plugin::CameraPool::ICameraInfo
{
    Q_OBJECT

public:
    explicit CFakeCameraInfo(const CCameraDescription &description);

    /// "Camera <id>"
    QString getDisplayName() const override;
    QString getId() const override;
    qint32 getCameraStatusCode() const override;
    QString getTransportLayerId() const override;
    QString getFirmwareVersion() const override;
    QString getModelName() const override;
    /// "SN-<id>"
    QString getSerialNumber() const override;
    /// "R1"
    QString getDeviceVersion() const override;

private:
    const CCameraDescription m_description;
};

class CFakeTransportLayerInfo : public Plugin::CameraPool::ITransportLayerInfo
{
    Q_OBJECT

public:
    CFakeTransportLayerInfo(const QString &id,
                            const QVector<Plugin::CameraPool::CameraInfoPtr> &cameras);

    /// "Layer <id>"
    QString getDisplayName() const override;
    QString getId() const override;
    const QVector<Plugin::CameraPool::CameraInfoPtr> &getCameraInfoList() const override;

private:
    const QString m_id;
    const QVector<Plugin::CameraPool::CameraInfoPtr> m_cameras;
};

class CFakeUpdateInfo : public Plugin::CameraPool::IFirmwareUpdateInfo
{
    Q_OBJECT

public:
    explicit CFakeUpdateInfo(const QString &version,
                             const QString &description = QStringLiteral("Fixes"),
                             const QString &releaseNotes = QStringLiteral("Notes"));

    QString getVersion() const override;
    QString getDescription() const override;
    QString getReleaseNotes() const override;
    /// "update.guf"
    QString getFileName() const override;

private:
    const QString m_version;
    const QString m_description;
    const QString m_releaseNotes;
};

using UpdateInfoPtr = QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>;

[[nodiscard]] Plugin::CameraPool::CameraInfoPtr makeCamera(const CCameraDescription &description);

/// A layer with one camera for each description; the layer's id overrides the descriptions'.
[[nodiscard]] Plugin::CameraPool::TransportLayerInfoPtr
makeLayer(const QString &id, QVector<CCameraDescription> cameras);

} // namespace TestSupport
