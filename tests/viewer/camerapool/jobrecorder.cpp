#include "jobrecorder.h"

#include "viewer/camerapool/updatefile/manifestparser.h"

#include <QRegularExpression>

#include <thread>

namespace Test {

using Plugin::CameraPool::EFirmwareUpdateStep;
using Job = Plugin::CameraPool::IDeviceFirmwareUpdate;

static QString makeLine(const char *word, EFirmwareUpdateStep step, double number)
{
    const QString name = Viewer::CameraPool::UpdateFile::getStepKindName(step);
    return QString("%1 %2 %3").arg(word, name).arg(number);
}

CJobRecorder::CJobRecorder(Job &job)
{
    const auto onBegin = [this](const auto &info, unsigned total) {
        add(info ? QString("begin %1").arg(total) : "begin without info");
    };
    const auto onStep = [this](EFirmwareUpdateStep step, unsigned estimate, const QString &text) {
        add((makeLine("step", step, estimate) + ' ' + text).trimmed());
    };
    const auto onProgress = [this](EFirmwareUpdateStep step, double percent) {
        add(makeLine("progress", step, percent));
    };
    const auto onStepDone = [this](EFirmwareUpdateStep step, unsigned estimate) {
        add(makeLine("stepDone", step, estimate));
    };
    const auto onError = [this](const QString &text) { add("error " + text); };
    connect(&job, &Job::firmwareUpdateBegin, this, onBegin, Qt::DirectConnection);
    connect(&job, &Job::firmwareUpdateProgressStepBegin, this, onStep, Qt::DirectConnection);
    connect(&job, &Job::firmwareUpdateProgressStepProgressChanged, this, onProgress,
            Qt::DirectConnection);
    connect(&job, &Job::firmwareUpdateProgressStepDone, this, onStepDone, Qt::DirectConnection);
    connect(
        &job, &Job::firmwareUpdateDone, this, [this] { add("done"); }, Qt::DirectConnection);
    connect(&job, &Job::firmwareUpdateError, this, onError, Qt::DirectConnection);
}

QStringList CJobRecorder::getMilestones() const
{
    const std::lock_guard lock(m_mutex);
    return m_lines.filter(QRegularExpression("^(?!progress)"));
}

QStringList CJobRecorder::getAll(const QString &word) const
{
    const std::lock_guard lock(m_mutex);
    const QRegularExpression beginning('^' + word + "( |$)");
    return m_lines.filter(beginning).replaceInStrings(beginning, "");
}

QString CJobRecorder::getError() const
{
    const QStringList errors = getAll("error");
    return errors.size() == 1 && getAll("done").isEmpty()
            && getMilestones().constLast().startsWith("error")
        ? errors.constFirst()
        : QString();
}

void CJobRecorder::add(const QString &line)
{
    const std::lock_guard lock(m_mutex);
    m_lines.append(line);
}

void executeOnThread(Job &job)
{
    std::thread([&job] { job.executeFirmwareUpdate(); }).join();
}

} // namespace Test
