#pragma once

#include "iupdaterun.h"
#include "viewer/text/errortext.h"
#include "workerrun.h"

#include "camerapool/idevicefirmwareupdate.h"

#include <QString>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace Viewer::Camera {
class CCameraActivities;
class ICameraDevice;
} // namespace Viewer::Camera

namespace Viewer::Update {

class CErrorTranslator;
struct CUpdateRecord;
class CFirmwareUpdateInfo;

/// The update job of one camera, whatever camera that is.
class CDeviceFirmwareUpdate : public Plugin::CameraPool::IDeviceFirmwareUpdate,
                              private IUpdateRun::IListener
{
    Q_OBJECT

public:
    struct CCamera
    {
        QString id;
        QString name; ///< what messages call it
        QString firmwareVersion; ///< the current one
        QString modelName;
        QString serialNumber;
        QString address; ///< empty: none, or unknown
    };

    /// @p info and @p device are not null; the device is closed. @p errors, which may be null, gets
    /// to know the error before it is emitted. The update keeps its journal in
    /// @p journalFolder; empty: nowhere. With @p worker the update runs in a process of its
    /// own, and the device only tells its name and speed.
    CDeviceFirmwareUpdate(const CCamera &camera, const QSharedPointer<CFirmwareUpdateInfo> &info,
                          std::unique_ptr<Camera::ICameraDevice> device,
                          const std::shared_ptr<Camera::CCameraActivities> &activities,
                          const std::shared_ptr<CErrorTranslator> &errors,
                          const QString &journalFolder = QString(),
                          const std::optional<CWorkerStart> &worker = std::nullopt);
    ~CDeviceFirmwareUpdate() override;

    /// Before the execution. @p findLog is asked on the thread of that for the path of its log.
    void setLogFinder(const std::function<QString()> &findLog);

    /// After the execution: the camera was not touched, since somebody else works with it. Any
    /// thread.
    [[nodiscard]] bool isCameraInUse() const;

    [[nodiscard]] QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>
    getFirmwareUpdateInfo() const override;
    [[nodiscard]] Plugin::CameraPool::EFirmwareUpdateDirection
    getFirmwareUpdateDirection() const override;
    [[nodiscard]] QString getFirmwareVersion() const override;
    void executeFirmwareUpdate() override;

signals:
    /// The one execution that counts has ended, and the camera is about to be idle again. On the
    /// thread that executes; @p isUpdated: the camera has the new firmware.
    void executed(const QString &cameraId, bool isUpdated);

private:
    void stepBegun(const UpdateFile::CUpdateStep &step,
                   std::chrono::milliseconds estimate) override;
    void stepProgressed(const UpdateFile::CUpdateStep &step, double percent) override;
    void writing() override;
    void stepDone(const UpdateFile::CUpdateStep &step, std::chrono::milliseconds estimate) override;

    /// Returns the error text; empty: the camera has the new firmware. @p claimed: the camera
    /// counts as being updated.
    [[nodiscard]] Text::CErrorText execute(bool &claimed) noexcept;
    /// The same, but throws when memory runs out.
    [[nodiscard]] Text::CErrorText attempt(std::unique_ptr<IUpdateRun> &run, bool &claimed);
    [[nodiscard]] std::unique_ptr<IUpdateRun> makeRun();
    [[nodiscard]] CUpdateRecord makeRecord() const;
    void announceEnd(const Text::CErrorText &error) noexcept;
    [[nodiscard]] Text::CErrorText getErrorText(const Text::CErrorText &message,
                                                bool written) const;

    const CCamera m_camera;
    const QSharedPointer<CFirmwareUpdateInfo> m_info;
    const Plugin::CameraPool::EFirmwareUpdateDirection m_direction;
    const std::shared_ptr<Camera::CCameraActivities> m_activities;
    const std::shared_ptr<CErrorTranslator> m_errors;
    // Made beforehand: when memory runs out there is none for a message.
    const Text::CErrorText m_outOfMemoryText;
    const Text::CErrorText m_outOfMemoryWrittenText;
    const QString m_journalFolder;
    const std::optional<CWorkerStart> m_worker;
    std::function<QString()> m_findLog;
    std::unique_ptr<Camera::ICameraDevice> m_device; // until the execution has ended
    std::atomic<bool> m_executed = false;
    std::atomic<bool> m_isCameraInUse = false;
    mutable std::mutex m_versionMutex;
    QString m_firmwareVersion;
};

} // namespace Viewer::Update
