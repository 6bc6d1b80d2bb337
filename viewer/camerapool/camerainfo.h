#pragma once

#include "viewer/camera/camerasnapshot.h"

#include "camerapool/icamerainfo.h"

namespace Viewer::CameraPool {

/// One camera of an enumeration, as plug-ins see it.
class CCameraInfo : public Plugin::CameraPool::ICameraInfo
{
    Q_OBJECT

public:
    CCameraInfo(const Camera::CCameraSnapshot &snapshot, const QString &transportLayerId);
    ~CCameraInfo() override;

    [[nodiscard]] const Camera::CCameraSnapshot &getSnapshot() const;

    [[nodiscard]] QString getDisplayName() const override;
    [[nodiscard]] QString getId() const override;
    [[nodiscard]] qint32 getCameraStatusCode() const override;
    [[nodiscard]] QString getTransportLayerId() const override;
    [[nodiscard]] QString getFirmwareVersion() const override;
    [[nodiscard]] QString getModelName() const override;
    [[nodiscard]] QString getSerialNumber() const override;
    [[nodiscard]] QString getDeviceVersion() const override;

private:
    const Camera::CCameraSnapshot m_snapshot;
    const QString m_transportLayerId;
};

} // namespace Viewer::CameraPool
