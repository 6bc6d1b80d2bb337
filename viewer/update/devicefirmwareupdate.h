#pragma once

#include "updaterun.h"
#include "viewer/text/errortext.h"

#include "camerapool/idevicefirmwareupdate.h"

#include <QString>

#include <atomic>
#include <memory>
#include <mutex>

namespace Viewer::Camera {
class CCameraActivities;
}

namespace Viewer::Update {

class CErrorTranslator;
class CUpdateJournal;
struct CUpdateRecord;
class CFirmwareUpdateInfo;

/// The update job of one camera, whatever camera that is.
class CDeviceFirmwareUpdate : public Plugin::CameraPool::IDeviceFirmwareUpdate,
                              private CUpdateRun::IListener
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
    /// to know the error before it is emitted. The update keeps its journal in @p journalFolder;
    /// empty: nowhere.
    CDeviceFirmwareUpdate(const CCamera &camera, const QSharedPointer<CFirmwareUpdateInfo> &info,
                          std::unique_ptr<Camera::ICameraDevice> device,
                          const std::shared_ptr<Camera::CCameraActivities> &activities,
                          const std::shared_ptr<CErrorTranslator> &errors,
                          const QString &journalFolder = QString());
    ~CDeviceFirmwareUpdate() override;

    [[nodiscard]] QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>
    getFirmwareUpdateInfo() const override;
    [[nodiscard]] Plugin::CameraPool::EFirmwareUpdateDirection
    getFirmwareUpdateDirection() const override;
    [[nodiscard]] QString getFirmwareVersion() const override;
    void executeFirmwareUpdate() override;

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
    [[nodiscard]] Text::CErrorText attempt(CUpdateRun &run, bool &claimed);
    [[nodiscard]] CUpdateRecord makeRecord() const;
    void endJournal(const CUpdateRun &run, const Text::CErrorText &error) noexcept;
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
    std::unique_ptr<Camera::ICameraDevice> m_device; // until the execution has ended
    std::unique_ptr<CUpdateJournal> m_journal; // while this camera is updated by this job
    std::atomic<bool> m_executed = false;
    mutable std::mutex m_versionMutex;
    QString m_firmwareVersion;
};

} // namespace Viewer::Update
