#pragma once

#include "core/iservice.h"
#include "icamerainfo.h"
#include "idevicefirmwareupdate.h"

#include <QVector>

namespace Plugin::CameraPool {

/// Reads update files and makes update jobs. GUI thread; no operation touches a camera.
class HOSTAPI_EXPORT IDeviceFirmwareUpdateService : public Core::Service::IService
{
    Q_OBJECT

public:
    explicit IDeviceFirmwareUpdateService(QObject *parent = nullptr);
    ~IDeviceFirmwareUpdateService() override;

    /// The entries of the update file, in the file's order. @p updateFilePath is absolute, with
    /// native or plain separators; @p entryFilter is reserved and passed empty. Called on each
    /// keystroke, so results are cached. Throws `Core::Exception::BaseException`, and nothing else,
    /// with a readable message when the file cannot be read.
    virtual QVector<QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>>
    getFirmwareUpdateInfos(const QString &updateFilePath, const QString &entryFilter) = 0;

    /// Puts the entries of @p all that fit @p camera into @p compatible, the best one first, and
    /// returns true. Returns false, with @p compatible empty, when the check cannot be made.
    /// @p updatable tells whether the camera's status allows an update at all. May throw
    /// `Core::Exception::BaseException`.
    virtual bool getCompatibleFirmwareUpdates(
        QSharedPointer<Plugin::CameraPool::ICameraInfo> camera,
        const QVector<QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>> &all,
        QVector<QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>> &compatible,
        bool &updatable)
        = 0;

    /// A new job that installs @p updateInfo on @p camera, or null when there is no such camera or
    /// the entry is not from getFirmwareUpdateInfos(). Cheap: nothing happens before the job is
    /// executed, and it may be dropped unexecuted.
    virtual QSharedPointer<Plugin::CameraPool::IDeviceFirmwareUpdate> createDeviceFirmwareUpdate(
        QSharedPointer<Plugin::CameraPool::ICameraInfo> camera,
        const QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo> &updateInfo)
        = 0;
};

} // namespace Plugin::CameraPool
