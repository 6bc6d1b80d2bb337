#pragma once

#include "iupdaterun.h"
#include "viewer/updatefile/updatemanifest.h"

#include <QString>

#include <chrono>
#include <memory>
#include <optional>

namespace Viewer::Text {
class CErrorText;
}

namespace Viewer::Camera {
class ICameraDevice;
}

namespace Viewer::UpdateFile {
class CUpdateArchive;
}

namespace Viewer::Update {

/// Takes one camera through the steps of one update, from opening the device to the proof that it
/// has the new firmware. Lives and ends on the thread that executes it. Failures are thrown as
/// `Core::Exception::BaseException` and end the run; the device may then still be open.
class CUpdateRun : public IUpdateRun
{
public:
    /// All references are borrowed. @p cameraName is what messages call the camera; @p filePath is
    /// the update file that @p entry was read from.
    CUpdateRun(const QString &cameraName, const UpdateFile::CUpdateEntry &entry,
               const QString &filePath, Camera::ICameraDevice &device, IListener &listener);
    ~CUpdateRun() override;
    Q_DISABLE_COPY(CUpdateRun)

    void execute() override;

    [[nodiscard]] bool hasWritten() const override;
    [[nodiscard]] QString getReportedVersion() const override;

private:
    void executeStep(const UpdateFile::CUpdateStep &step);
    void checkPreconditions(const UpdateFile::CUpdateStep *step);
    void acquireData();
    void prepareWriting();

    /// Runs @p operation, which changes the camera, once it is certain that it may be changed.
    template <typename Operation>
    void write(Operation operation);
    void assertFeature(const UpdateFile::CFeatureValue &expected);
    void upload(const UpdateFile::CUpdateStep &step);
    void checkVersion();
    [[nodiscard]] QString readFirmwareVersion();
    [[nodiscard]] QString readFeature(const QString &name);
    [[noreturn]] void fail(const Text::CErrorText &cause) const;

    const QString m_cameraName;
    const UpdateFile::CUpdateEntry &m_entry;
    const QString m_filePath;
    Camera::ICameraDevice &m_device;
    IListener &m_listener;
    std::unique_ptr<UpdateFile::CUpdateArchive> m_archive; // from the check to the last upload
    int m_currentStep = 0;
    bool m_mayWrite = false;
    bool m_written = false;
    QString m_reportedVersion;
};

} // namespace Viewer::Update
