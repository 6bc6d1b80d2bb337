#include "workerrun.h"

#include "logging.h"
#include "viewer/camera/cameraerror.h"
#include "viewer/process/workerenvironment.h"
#include "viewer/updatefile/manifestparser.h"

#include <QCborValue>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>

#include <algorithm>

namespace Viewer::Update {

using namespace std::chrono_literals;
using Text::CErrorText;

static constexpr int LOOK_INTERVAL = 50; // milliseconds; for cameras that are taken away
static constexpr int START_TIME = 10000; // milliseconds
static constexpr int END_TIME = 10000; // milliseconds; from the last event to the end

/// What the worker waits at most without a word is limited by its own watchdog; this is for a
/// worker that has none any more.
static constexpr std::chrono::milliseconds QUIET_TIME = 3min;

CWorkerRun::CWorkerRun(const QString &cameraName, const UpdateFile::CUpdateEntry &entry,
                       const CWorkerStart &start, IListener &listener)
    : m_cameraName(cameraName)
    , m_entry(entry)
    , m_start(start)
    , m_listener(listener)
{
}

CWorkerRun::~CWorkerRun() = default;

bool CWorkerRun::hasWritten() const
{
    return m_hasWritten;
}

QString CWorkerRun::getReportedVersion() const
{
    return m_reportedVersion;
}

void CWorkerRun::execute()
{
    QProcess process;
    CWorkerTask task = m_start.task;
    task.camera = m_start.camera->describe();
    m_start.camera->begin();
    QCborMap state;
    try {
        start(process);
        process.write(QCborValue(task.toCbor()).toCbor());
        const CWorkerEvent last = follow(process);
        state = last.camera;
        if (!process.waitForFinished(END_TIME)) {
            process.kill();
            process.waitForFinished();
        }
        m_start.camera->end(state);
        if (last.type == CWorkerEvent::EType::Failed)
            throw Camera::CCameraError::fromText(
                CErrorText::fromBoth(last.error, last.localizedError),
                last.isInUse ? Camera::CCameraError::EChange::InUse
                             : Camera::CCameraError::EChange::Possible);
    } catch (...) {
        if (process.state() != QProcess::NotRunning) {
            process.kill();
            process.waitForFinished();
        }
        m_start.camera->end(state);
        throw;
    }
}

void CWorkerRun::start(QProcess &process)
{
    process.setProgram(m_start.program);
    process.setArguments({QStringLiteral("update")});
    process.setProcessEnvironment(Process::makeWorkerEnvironment());
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.setWorkingDirectory(QDir::rootPath());
    process.start();
    if (!process.waitForStarted(START_TIME))
        fail(CErrorText::tr("the update program \"%1\" cannot be started (%2); install the viewer "
                            "again")
                 .arg(QDir::toNativeSeparators(m_start.program), process.errorString()));
}

CWorkerEvent CWorkerRun::follow(QProcess &process)
{
    QByteArray bytes;
    QElapsedTimer quiet;
    quiet.start();
    m_patience = QUIET_TIME;
    bool isLossTold = false;
    while (true) {
        const bool hasEnded
            = !process.waitForReadyRead(LOOK_INTERVAL) && process.state() == QProcess::NotRunning;
        const QByteArray news = process.readAllStandardOutput();
        bytes += news;
        if (!news.isEmpty())
            quiet.restart();
        if (const std::optional<CWorkerEvent> last = takeEvents(bytes))
            return *last;
        if (hasEnded && process.exitStatus() == QProcess::CrashExit)
            fail(CErrorText::tr("the update program ended unexpectedly (signal %1)")
                     .arg(QString::number(process.exitCode())));
        if (hasEnded)
            fail(CErrorText::tr("the update program ended unexpectedly (exit code %1)")
                     .arg(QString::number(process.exitCode())));
        if (quiet.hasExpired(m_patience.count()))
            fail(CErrorText::tr("the update program does not answer any more"));
        if (!isLossTold && m_start.camera->isLost()) {
            isLossTold = true;
            process.write(QCborValue(QCborMap{{QStringLiteral("lost"), true}}).toCbor());
        }
    }
}

std::optional<CWorkerEvent> CWorkerRun::takeEvents(QByteArray &bytes)
{
    bool isBroken = false;
    while (const std::optional<CWorkerEvent> event = CWorkerEvent::takeFirst(bytes, isBroken)) {
        take(*event);
        if (event->type == CWorkerEvent::EType::Done || event->type == CWorkerEvent::EType::Failed)
            return event;
    }
    if (isBroken)
        fail(CErrorText::tr("the update program says something that is not understood; install the "
                            "viewer again"));
    return std::nullopt;
}

void CWorkerRun::take(const CWorkerEvent &event)
{
    m_reportedVersion = event.version;
    m_hasWritten = event.hasWritten;
    m_patience = event.patience + QUIET_TIME;
    switch (event.type) {
    case CWorkerEvent::EType::StepBegun: {
        const UpdateFile::CUpdateStep &step = getStep(event.step);
        m_listener.stepBegun(step, event.estimate);
        // Should the worker end now, nobody knows how far it has come.
        m_hasWritten = m_hasWritten || UpdateFile::changesCamera(step.kind);
        break;
    }
    case CWorkerEvent::EType::StepProgressed:
        m_listener.stepProgressed(getStep(event.step), event.percent);
        break;
    case CWorkerEvent::EType::StepDone:
        m_listener.stepDone(getStep(event.step), event.estimate);
        break;
    case CWorkerEvent::EType::Hello:
    case CWorkerEvent::EType::Done:
    case CWorkerEvent::EType::Failed:
        break;
    }
}

const UpdateFile::CUpdateStep &CWorkerRun::getStep(int index) const
{
    if (index >= m_entry.steps.size())
        fail(CErrorText::tr("the update program says something that is not understood; install the "
                            "viewer again"));
    return m_entry.steps.at(index);
}

void CWorkerRun::fail(const CErrorText &cause) const
{
    throw Camera::CCameraError(m_cameraName, cause);
}

} // namespace Viewer::Update
