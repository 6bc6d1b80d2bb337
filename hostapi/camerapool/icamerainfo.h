#pragma once

#include "ibaseinfo.h"

namespace Plugin::CameraPool {

/// One enumerated camera.
class HOSTAPI_EXPORT ICameraInfo : public IBaseInfo
{
    Q_OBJECT

public:
    explicit ICameraInfo(QObject *parent = nullptr);
    ~ICameraInfo() override;

    /// 0 exactly when the camera can be updated.
    [[nodiscard]] virtual qint32 getCameraStatusCode() const = 0;

    /// The getId() of the camera's transport layer.
    [[nodiscard]] virtual QString getTransportLayerId() const = 0;

    /// The firmware version at the time of the enumeration.
    [[nodiscard]] virtual QString getFirmwareVersion() const = 0;

    /// The model; cameras of equal model names take the same update files.
    [[nodiscard]] virtual QString getModelName() const = 0;

    [[nodiscard]] virtual QString getSerialNumber() const = 0;

    /// The hardware revision.
    [[nodiscard]] virtual QString getDeviceVersion() const = 0;
};

using CameraInfoPtr = QSharedPointer<Plugin::CameraPool::ICameraInfo>;

} // namespace Plugin::CameraPool
