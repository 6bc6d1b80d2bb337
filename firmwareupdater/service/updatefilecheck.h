#pragma once

#include "camerapool/icamerainfo.h"
#include "camerapool/ifirmwareupdateinfo.h"

#include <QSharedPointer>
#include <QString>
#include <QVector>

#include <optional>

class QFileInfo;

namespace Plugin::CameraPool {
class IDeviceFirmwareUpdateService;
} // namespace Plugin::CameraPool

namespace Plugin::FirmwareUpdater::Internal::Service {

/// What an update file has for a camera.
struct CUpdateFileVerdict
{
    bool isFile = false; ///< there is a readable regular file
    bool isCompatible = false; ///< @p updates is not empty
    QVector<QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>> updates;
    std::optional<QString> fault; ///< why the file could not be read, for the log
};

/// Asks @p service, which may be null, what @p file has for @p camera, which may be null, too.
[[nodiscard]] CUpdateFileVerdict
checkUpdateFile(const QFileInfo &file,
                const QSharedPointer<Plugin::CameraPool::ICameraInfo> &camera,
                const QSharedPointer<Plugin::CameraPool::IDeviceFirmwareUpdateService> &service);

} // namespace Plugin::FirmwareUpdater::Internal::Service
