#include "updateseries.h"

#include "viewer/update/devicefirmwareupdate.h"
#include "viewer/update/firmwareupdateinfo.h"
#include "viewer/updatefile/manifestparser.h"

#include <QCoreApplication>
#include <QThread>

#include <algorithm>

namespace Viewer::NuvexUpdate {

using Plugin::CameraPool::DeviceFirmwareUpdatePtr;
using Plugin::CameraPool::EFirmwareUpdateStep;
using Plugin::CameraPool::IDeviceFirmwareUpdate;
using std::chrono::milliseconds;

CUpdateSeries::CUpdateSeries(const QVector<CCameraVerdict> &cameras, const CLimits &limits,
                             const JobMaker &makeJob, QObject *parent)
    : QObject(parent)
    , m_limits(limits)
    , m_makeJob(makeJob)
{
    // The jobs' signals come from other threads.
    qRegisterMetaType<EFirmwareUpdateStep>();
    qRegisterMetaType<CCameraVerdict::InfoPtr>(
        "QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>");
    for (const CCameraVerdict &camera : cameras) {
        CCameraRun run;
        run.verdict = camera;
        run.firmwareVersion = camera.snapshot.firmwareVersion;
        run.stepCount = static_cast<const Update::CFirmwareUpdateInfo &>(*camera.update)
                            .getEntry()
                            .steps.size();
        m_runs.append(run);
    }
}

CUpdateSeries::~CUpdateSeries()
{
    const QList<QThread *> threads = findChildren<QThread *>();
    for (QThread *const thread : threads)
        thread->wait();
}

const QVector<CCameraRun> &CUpdateSeries::getRuns() const
{
    return m_runs;
}

void CUpdateSeries::start()
{
    advance();
}

void CUpdateSeries::stop()
{
    m_isStopped = true;
}

bool CUpdateSeries::mayBegin(int index) const
{
    if (index >= m_runs.size() || m_isStopped || m_failedCount >= m_limits.maximumFailures)
        return false;
    const int canaries = std::min<int>(m_limits.canaryCount, m_runs.size());
    if (index < canaries)
        return m_failedCount == 0;
    return canaries == 0 || m_updatedCount >= canaries;
}

void CUpdateSeries::advance()
{
    while (m_runningCount < m_limits.parallelCount && mayBegin(m_next))
        begin(m_next++);
    if (m_runningCount == 0)
        emit finished();
}

void CUpdateSeries::begin(int index)
{
    CCameraRun &run = m_runs[index];
    run.outcome = EOutcome::Running;
    run.timer.start();
    ++m_runningCount;
    emit begun(index);
    const DeviceFirmwareUpdatePtr job = m_makeJob(run.verdict);
    if (!job) {
        QMetaObject::invokeMethod(
            this,
            [this, index] { end(index, EOutcome::Failed, tr("the camera is not there any more")); },
            Qt::QueuedConnection);
        return;
    }
    m_jobs.insert(index, job);
    connectJob(index);
    QThread *const thread = QThread::create([job] { job->executeFirmwareUpdate(); });
    thread->setParent(this);
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start();
}

void CUpdateSeries::connectJob(int index)
{
    const IDeviceFirmwareUpdate &job = *m_jobs.value(index);
    connect(&job, &IDeviceFirmwareUpdate::firmwareUpdateBegin, this,
            [this, index](const auto &, unsigned int estimate) {
                m_runs[index].estimate = milliseconds(estimate);
            });
    connect(&job, &IDeviceFirmwareUpdate::firmwareUpdateProgressStepBegin, this,
            [this, index](EFirmwareUpdateStep step, unsigned int estimate) {
                CCameraRun &run = m_runs[index];
                ++run.step;
                run.stepName = UpdateFile::getStepKindName(step);
                run.stepEstimate = milliseconds(estimate);
                run.stepPercent = 0;
                run.stepTimer.start();
                emit stepBegun(index);
            });
    connect(&job, &IDeviceFirmwareUpdate::firmwareUpdateProgressStepProgressChanged, this,
            [this, index](EFirmwareUpdateStep, double percent) {
                m_runs[index].stepPercent = percent;
                emit progressed(index);
            });
    connect(&job, &IDeviceFirmwareUpdate::firmwareUpdateProgressStepDone, this,
            [this, index](EFirmwareUpdateStep, unsigned int) {
                CCameraRun &run = m_runs[index];
                run.doneEstimate += run.stepEstimate;
                run.stepEstimate = milliseconds(0);
            });
    connect(&job, &IDeviceFirmwareUpdate::firmwareUpdateDone, this,
            [this, index] { end(index, EOutcome::Updated); });
    connect(&job, &IDeviceFirmwareUpdate::firmwareUpdateError, this,
            [this, index](const QString &error) { end(index, EOutcome::Failed, error); });
}

void CUpdateSeries::end(int index, EOutcome outcome, const QString &error)
{
    CCameraRun &run = m_runs[index];
    run.outcome = outcome;
    run.duration = milliseconds(run.timer.elapsed());
    // A job reports in English; the pool knows the same in the user's language.
    run.message
        = error.isEmpty() ? QString() : QCoreApplication::translate(nullptr, error.toUtf8());
    if (const auto job = m_jobs.take(index).objectCast<Update::CDeviceFirmwareUpdate>()) {
        run.firmwareVersion = job->getFirmwareVersion();
        if (job->isCameraInUse())
            run.outcome = EOutcome::InUse;
    }
    --m_runningCount;
    ++(outcome == EOutcome::Updated ? m_updatedCount : m_failedCount);
    emit ended(index);
    advance();
}

} // namespace Viewer::NuvexUpdate
