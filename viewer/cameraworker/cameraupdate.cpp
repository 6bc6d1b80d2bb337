#include "cameraupdate.h"

#include "viewer/camera/cameraerror.h"
#include "viewer/camera/camerakinds.h"
#include "viewer/json/jsonfault.h"
#include "viewer/signature/signaturepolicy.h"
#include "viewer/update/journaledrun.h"
#include "viewer/update/updateestimate.h"
#include "viewer/update/updaterun.h"
#include "viewer/updatefile/updatearchive.h"
#include "viewer/updatefile/updatefileerror.h"
#include "viewer/updatefile/updatefilereader.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace Viewer::CameraWorker {

using namespace std::chrono_literals;
using Camera::CCameraError;
using Text::CErrorText;
using Update::CWorkerEvent;
using UpdateFile::CUpdateStep;

/// What a library gets beyond the limit of an operation, which it should have kept itself.
static constexpr std::chrono::milliseconds GRACE = 10s;

/// Reading the file, opening the camera and finding out its version at the end.
static constexpr std::chrono::milliseconds AROUND_STEPS = 60s;

CCameraUpdate::CCameraUpdate(CMessageWriter &events, const volatile std::sig_atomic_t &isCanceled,
                             int patiencePercent)
    : m_events(events)
    , m_isCanceled(isCanceled)
    , m_patiencePercent(patiencePercent)
    , m_kinds(Camera::makeCameraKinds())
    , m_watchdog([this] { onExpired(); })
{
}

CCameraUpdate::~CCameraUpdate() = default;

bool CCameraUpdate::perform(const Update::CWorkerTask &task)
{
    m_events.write(makeEvent(CWorkerEvent::EType::Hello).toCbor());
    const CErrorText error = update(task);
    if (m_device)
        m_device->close();
    const CWorkerEvent last
        = error.isEmpty() ? makeEvent(CWorkerEvent::EType::Done) : makeFailure(error);
    m_events.write(last.toCbor());
    return error.isEmpty();
}

void CCameraUpdate::loseCamera()
{
    if (Camera::ICameraKind *const kind = m_kind)
        kind->loseMade();
}

void CCameraUpdate::makeDevice(const Update::CWorkerTask &task)
{
    for (const std::unique_ptr<Camera::ICameraKind> &kind : m_kinds) {
        if (kind->getName() != task.kind)
            continue;
        m_device = kind->makeDevice(task.camera);
        m_kind = kind.get();
    }
}

CErrorText CCameraUpdate::update(const Update::CWorkerTask &task)
{
    try {
        makeDevice(task);
        watch(AROUND_STEPS);
        if (!m_device)
            return CErrorText::tr("the update program does not know a camera of this kind");
        const UpdateFile::CUpdateArchive archive(task.filePath);
        m_manifest = UpdateFile::CUpdateFileReader::read(archive);
        if (m_manifest.sha256 != task.manifestDigest)
            return CErrorText::tr("the update file is another one than the one that was shown; "
                                  "select it again");
        const Signature::CSignaturePolicy policy(task.requiresSignature, task.trustFolders);
        const CErrorText refusal
            = policy.findRefusal(policy.judge(m_manifest.json, m_manifest.signature));
        if (!refusal.isEmpty())
            return UpdateFile::CUpdateFileError(task.filePath, refusal).getText();
        if (task.entry >= m_manifest.updates.size())
            return CErrorText::tr("the update file has no such update");
        Json::CJsonScanner scanner(task.record);
        IListener &listener = *this;
        m_run = std::make_unique<Update::CJournaledRun>(
            task.journalFolder, Update::readUpdateRecord(scanner), listener,
            [this, &task](IListener &journal) {
                return std::make_unique<Update::CUpdateRun>(m_device->getName(),
                                                            m_manifest.updates.at(task.entry),
                                                            task.filePath, *m_device, journal);
            });
        m_run->execute();
        return {};
    } catch (const std::bad_alloc &) {
        return CErrorText::tr("out of memory");
    } catch (const CCameraError &error) {
        m_isInUse = error.getChange() == CCameraError::EChange::InUse;
        return error.getText();
    } catch (const UpdateFile::CUpdateFileError &error) {
        return error.getText();
    } catch (const Json::CJsonFault &fault) {
        return fault.describe();
    } catch (const std::exception &exception) {
        return CErrorText(QString::fromLocal8Bit(exception.what()));
    } catch (...) {
        return CErrorText::tr("the update failed for an unknown reason");
    }
}

void CCameraUpdate::stepBegun(const CUpdateStep &step, std::chrono::milliseconds estimate)
{
    if (m_isCanceled != 0 && !m_mayHaveWritten)
        throw CCameraError(m_device->getName(), CErrorText::tr("the update was canceled"),
                           CCameraError::EChange::None);
    m_limit = Update::getTimeLimit(step, *m_device) + GRACE;
    // The first step that writes repeats the checks before it.
    watch(m_limit + AROUND_STEPS);
    ++m_step;
    CWorkerEvent event = makeEvent(CWorkerEvent::EType::StepBegun);
    event.estimate = estimate;
    m_events.write(event.toCbor());
}

void CCameraUpdate::stepProgressed(const CUpdateStep &, double percent)
{
    CWorkerEvent event = makeEvent(CWorkerEvent::EType::StepProgressed);
    event.percent = percent;
    m_events.write(event.toCbor());
}

void CCameraUpdate::writing()
{
    if (!m_mayHaveWritten) {
        m_sleepInhibitor.hold(
            tr("The firmware of camera %1 is being updated.").arg(m_device->getName()));
    }
    m_mayHaveWritten = true;
    watch(m_limit);
}

void CCameraUpdate::stepDone(const CUpdateStep &, std::chrono::milliseconds estimate)
{
    watch(AROUND_STEPS);
    CWorkerEvent event = makeEvent(CWorkerEvent::EType::StepDone);
    event.estimate = estimate;
    m_events.write(event.toCbor());
}

void CCameraUpdate::watch(std::chrono::milliseconds limit)
{
    const Camera::ICameraKind *const kind = m_kind;
    m_patience = std::chrono::duration_cast<std::chrono::milliseconds>(
        limit * (kind ? kind->getSlownessOfMade() : 1.0) * m_patiencePercent / 100);
    m_watchdog.watch(m_patience);
}

void CCameraUpdate::onExpired()
{
    CWorkerEvent event;
    event.type = CWorkerEvent::EType::Failed;
    const CErrorText error
        = CErrorText::tr("it did not answer in time; switch it off and on and check its "
                         "firmware version");
    event.error = error.getEnglish();
    event.localizedError = error.getLocalized();
    event.hasWritten = m_mayHaveWritten;
    m_events.writeLast(event.toCbor(), EXIT_FAILURE);
}

CWorkerEvent CCameraUpdate::makeEvent(CWorkerEvent::EType type) const
{
    CWorkerEvent event;
    event.type = type;
    event.patience = m_patience;
    event.hasWritten = m_run && m_run->hasWritten();
    event.version = m_run ? m_run->getReportedVersion() : QString();
    event.step = std::max(m_step, 0);
    if (const Camera::ICameraKind *const kind = m_kind)
        event.camera = kind->describeMade();
    return event;
}

CWorkerEvent CCameraUpdate::makeFailure(const CErrorText &error) const
{
    CWorkerEvent event = makeEvent(CWorkerEvent::EType::Failed);
    event.error = error.getEnglish();
    event.localizedError = error.getLocalized();
    event.isInUse = m_isInUse;
    return event;
}

} // namespace Viewer::CameraWorker
