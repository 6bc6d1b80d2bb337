#include "devicefirmwareupdate.h"

#include "errortranslator.h"
#include "firmwareupdateinfo.h"
#include "journaledrun.h"
#include "logging.h"
#include "updateestimate.h"
#include "updaterun.h"
#include "viewer/camera/cameraactivities.h"
#include "viewer/camera/cameraerror.h"
#include "viewer/camera/icameradevice.h"
#include "viewer/updatefile/firmwareversion.h"

#include "viewer/text/visibletext.h"

#include <QFileInfo>

namespace Viewer::Update {

using Plugin::CameraPool::EFirmwareUpdateDirection;
using Plugin::CameraPool::IFirmwareUpdateInfo;
using Text::CErrorText;

static unsigned int toUnsigned(std::chrono::milliseconds time)
{
    return static_cast<unsigned int>(time.count());
}

CDeviceFirmwareUpdate::CDeviceFirmwareUpdate(
    const CCamera &camera, const QSharedPointer<CFirmwareUpdateInfo> &info,
    std::unique_ptr<Camera::ICameraDevice> device,
    const std::shared_ptr<Camera::CCameraActivities> &activities,
    const std::shared_ptr<CErrorTranslator> &errors, const QString &journalFolder,
    const std::optional<CWorkerStart> &worker)
    : m_camera(camera)
    , m_info(info)
    , m_direction(UpdateFile::getDirection(camera.firmwareVersion, info->getVersion()))
    , m_activities(activities)
    , m_errors(errors)
    , m_outOfMemoryText(getErrorText(CErrorText::tr("out of memory"), false))
    , m_outOfMemoryWrittenText(getErrorText(CErrorText::tr("out of memory"), true))
    , m_journalFolder(journalFolder)
    , m_worker(worker)
    , m_device(std::move(device))
    , m_firmwareVersion(camera.firmwareVersion)
{
}

CDeviceFirmwareUpdate::~CDeviceFirmwareUpdate() = default;

void CDeviceFirmwareUpdate::setLogFinder(const std::function<QString()> &findLog)
{
    m_findLog = findLog;
}

bool CDeviceFirmwareUpdate::isCameraInUse() const
{
    return m_isCameraInUse;
}

QSharedPointer<IFirmwareUpdateInfo> CDeviceFirmwareUpdate::getFirmwareUpdateInfo() const
{
    return m_info;
}

EFirmwareUpdateDirection CDeviceFirmwareUpdate::getFirmwareUpdateDirection() const
{
    return m_direction;
}

QString CDeviceFirmwareUpdate::getFirmwareVersion() const
{
    const std::lock_guard lock(m_versionMutex);
    return m_firmwareVersion;
}

void CDeviceFirmwareUpdate::executeFirmwareUpdate()
{
    if (m_executed.exchange(true)) {
        // A series that the user has cancelled executes its last job once more and waits for an
        // answer: saying nothing would make it ask for ever, "done" would count a camera that was
        // never touched.
        announceEnd(CErrorText::tr("The series of updates was stopped before this camera; it was "
                                   "not touched and keeps its version"));
        return;
    }
    bool claimed = false;
    const CErrorText error = execute(claimed);
    qCDebug(updateLog).noquote() << m_camera.name
                                 << (error.isEmpty() ? QStringLiteral("is updated, version")
                                                     : error.getEnglish())
                                 << getFirmwareVersion();
    m_device.reset();
    announceEnd(error);
    emit executed(m_camera.id, error.isEmpty());
    if (claimed)
        m_activities->end(m_camera.id);
}

void CDeviceFirmwareUpdate::stepBegun(const UpdateFile::CUpdateStep &step,
                                      std::chrono::milliseconds estimate)
{
    emit firmwareUpdateProgressStepBegin(step.kind, toUnsigned(estimate), step.description);
}

void CDeviceFirmwareUpdate::stepProgressed(const UpdateFile::CUpdateStep &step, double percent)
{
    emit firmwareUpdateProgressStepProgressChanged(step.kind, percent);
}

void CDeviceFirmwareUpdate::writing()
{
}

void CDeviceFirmwareUpdate::stepDone(const UpdateFile::CUpdateStep &step,
                                     std::chrono::milliseconds estimate)
{
    emit firmwareUpdateProgressStepDone(step.kind, toUnsigned(estimate));
}

CErrorText CDeviceFirmwareUpdate::execute(bool &claimed) noexcept
{
    std::unique_ptr<IUpdateRun> run;
    CErrorText error;
    try {
        error = attempt(run, claimed);
    } catch (...) {
        // Memory ran out, maybe for the message about something else.
        error = run && run->hasWritten() ? m_outOfMemoryWrittenText : m_outOfMemoryText;
    }
    m_device->close();
    if (run && !run->getReportedVersion().isEmpty()) {
        const std::lock_guard lock(m_versionMutex);
        m_firmwareVersion = Text::shorten(run->getReportedVersion());
    }
    return error;
}

std::unique_ptr<IUpdateRun> CDeviceFirmwareUpdate::makeRun()
{
    IUpdateRun::IListener &listener = *this;
    if (m_worker) {
        CWorkerStart start = *m_worker;
        start.task.journalFolder = m_journalFolder;
        start.task.record = toJson(makeRecord());
        return std::make_unique<CWorkerRun>(m_camera.name, m_info->getEntry(), start, listener);
    }
    return std::make_unique<CJournaledRun>(
        m_journalFolder, makeRecord(), listener, [this](IUpdateRun::IListener &journal) {
            return std::make_unique<CUpdateRun>(m_camera.name, m_info->getEntry(),
                                                m_info->getFileName(), *m_device, journal);
        });
}

CErrorText CDeviceFirmwareUpdate::attempt(std::unique_ptr<IUpdateRun> &run, bool &claimed)
{
    // Whatever happens here, in libraries or in the receivers of signals, the wizard waits for one
    // last signal.
    run = makeRun();
    try {
        const Camera::ECameraActivity other
            = m_activities->begin(m_camera.id, Camera::ECameraActivity::Updating);
        claimed = other == Camera::ECameraActivity::Idle;
        emit firmwareUpdateBegin(
            m_info, toUnsigned(estimateEntry(m_info->getEntry(), m_device->getUploadRate())));
        if (other == Camera::ECameraActivity::Updating)
            throw Camera::CCameraError(m_camera.name, CErrorText::tr("it is already being updated"),
                                       Camera::CCameraError::EChange::InUse);
        if (!claimed)
            throw Camera::CCameraError(
                m_camera.name,
                CErrorText::tr("it is acquiring images; stop that and start the "
                               "update again"),
                Camera::CCameraError::EChange::InUse);
        run->execute();
    } catch (const std::bad_alloc &) {
        throw;
    } catch (const Camera::CCameraError &error) {
        m_isCameraInUse = error.getChange() == Camera::CCameraError::EChange::InUse;
        return getErrorText(error.getText(), run->hasWritten());
    } catch (const Core::Exception::BaseException &exception) {
        return getErrorText(CErrorText(exception.getMessage()), run->hasWritten());
    } catch (const std::exception &exception) {
        return getErrorText(CErrorText(QString::fromLocal8Bit(exception.what())),
                            run->hasWritten());
    } catch (...) {
        return getErrorText({}, run->hasWritten());
    }
    return {};
}

CUpdateRecord CDeviceFirmwareUpdate::makeRecord() const
{
    CUpdateRecord record;
    record.cameraId = m_camera.id;
    record.cameraName = m_camera.name;
    record.modelName = m_camera.modelName;
    record.serialNumber = m_camera.serialNumber;
    record.address = m_camera.address;
    record.oldVersion = m_camera.firmwareVersion;
    record.newVersion = m_info->getVersion();
    record.filePath = QFileInfo(m_info->getFileName()).absoluteFilePath();
    record.manifestDigest = m_info->getManifestDigest();
    record.stepCount = m_info->getEntry().steps.size();
    record.begin = QDateTime::currentDateTimeUtc();
    if (m_findLog)
        record.logPath = m_findLog();
    return record;
}

void CDeviceFirmwareUpdate::announceEnd(const CErrorText &error) noexcept
{
    try {
        if (m_errors && !error.isEmpty())
            m_errors->remember(error);
    } catch (...) {
        // Then it is shown in English.
    }
    try {
        if (error.isEmpty())
            emit firmwareUpdateDone();
        else
            emit firmwareUpdateError(error.getEnglish());
    } catch (...) {
        qCCritical(updateLog, "a receiver of the update's last signal has thrown an exception");
    }
}

CErrorText CDeviceFirmwareUpdate::getErrorText(const CErrorText &message, bool written) const
{
    CErrorText text = message.toClause();
    if (text.isEmpty())
        text = CErrorText::tr("the update failed for an unknown reason");
    const QString prefix
        = Camera::CCameraError(m_camera.name, {}).getText().toClause().getEnglish();
    if (!text.getEnglish().startsWith(prefix))
        text = Camera::CCameraError(m_camera.name, text).getText().toClause();
    return written
        ? CErrorText::tr("%1; the update had already begun to write, so repeat it before "
                         "the camera is used")
              .arg(text)
        : text;
}

} // namespace Viewer::Update
