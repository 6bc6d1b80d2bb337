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
public:
    explicit CFakeCameraInfo(const CCameraDescription &description)
        : m_description(description)
    {
    }

    QString getDisplayName() const override { return "Camera " + m_description.id; }
    QString getId() const override { return m_description.id; }
    qint32 getCameraStatusCode() const override { return m_description.statusCode; }
    QString getTransportLayerId() const override { return m_description.layerId; }
    QString getFirmwareVersion() const override { return m_description.firmware; }
    QString getModelName() const override { return m_description.model; }
    QString getSerialNumber() const override { return "SN-" + m_description.id; }
    QString getDeviceVersion() const override { return "R1"; }

private:
    const CCameraDescription m_description;
};

class CFakeTransportLayerInfo : public Plugin::CameraPool::ITransportLayerInfo
{
public:
    using Cameras = QVector<Plugin::CameraPool::CameraInfoPtr>;

    CFakeTransportLayerInfo(const QString &id, const Cameras &cameras)
        : m_id(id)
        , m_cameras(cameras)
    {
    }

    QString getDisplayName() const override { return "Layer " + m_id; }
    QString getId() const override { return m_id; }
    const Cameras &getCameraInfoList() const override { return m_cameras; }

private:
    const QString m_id;
    const Cameras m_cameras;
};

class CFakeUpdateInfo : public Plugin::CameraPool::IFirmwareUpdateInfo
{
public:
    explicit CFakeUpdateInfo(const QString &version, const QString &description = "Fixes",
                             const QString &releaseNotes = "Notes")
        : m_version(version)
        , m_description(description)
        , m_releaseNotes(releaseNotes)
    {
    }

    QString getVersion() const override { return m_version; }
    QString getDescription() const override { return m_description; }
    QString getReleaseNotes() const override { return m_releaseNotes; }
    QString getFileName() const override { return "update.guf"; }

private:
    const QString m_version;
    const QString m_description;
    const QString m_releaseNotes;
};

using UpdateInfoPtr = QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>;

[[nodiscard]] inline Plugin::CameraPool::CameraInfoPtr
makeCamera(const CCameraDescription &description)
{
    return Plugin::CameraPool::CameraInfoPtr(new CFakeCameraInfo(description));
}

/// A layer with one camera for each description; the layer's id overrides the descriptions'.
[[nodiscard]] inline Plugin::CameraPool::TransportLayerInfoPtr
makeLayer(const QString &id, QVector<CCameraDescription> cameras)
{
    CFakeTransportLayerInfo::Cameras infos;
    infos.reserve(cameras.size());
    for (CCameraDescription &camera : cameras) {
        camera.layerId = id;
        infos.append(makeCamera(camera));
    }
    return Plugin::CameraPool::TransportLayerInfoPtr(new CFakeTransportLayerInfo(id, infos));
}

} // namespace TestSupport
