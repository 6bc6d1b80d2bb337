#pragma once

#include "viewer/updatefile/manifestparser.h"

#include "camerapool/idevicefirmwareupdate.h"

#include <QRegularExpression>

#include <mutex>
#include <thread>

namespace TestSupport {

/// Writes down the signals of one update job in the order of their emission, on the emitting
/// thread: "begin 7000", "step FileUpload 400 text", "progress FileUpload 12", "stepDone FileUpload
/// 400", "done", "error text". The job outlives the recorder.
class CJobRecorder : public QObject
{
public:
    using Job = Plugin::CameraPool::IDeviceFirmwareUpdate;
    using EStep = Plugin::CameraPool::EFirmwareUpdateStep;

    explicit CJobRecorder(Job &job)
    {
        const auto on = [this, &job](auto signal, auto slot) {
            connect(&job, signal, this, slot, Qt::DirectConnection);
        };
        on(&Job::firmwareUpdateBegin, [this](const auto &info, unsigned total) {
            add(info ? QString("begin %1").arg(total) : "begin without info");
        });
        on(&Job::firmwareUpdateProgressStepBegin,
           [this](EStep step, unsigned estimate, const QString &text) {
               add((line("step", step, estimate) + ' ' + text).trimmed());
           });
        on(&Job::firmwareUpdateProgressStepProgressChanged,
           [this](EStep step, double percent) { add(line("progress", step, percent)); });
        on(&Job::firmwareUpdateProgressStepDone,
           [this](EStep step, unsigned estimate) { add(line("stepDone", step, estimate)); });
        on(&Job::firmwareUpdateDone, [this] { add("done"); });
        on(&Job::firmwareUpdateError, [this](const QString &text) { add("error " + text); });
    }

    /// All lines but those of progress.
    [[nodiscard]] QStringList getMilestones() const
    {
        const std::lock_guard lock(m_mutex);
        return m_lines.filter(QRegularExpression("^(?!progress)"));
    }

    /// The lines that begin with @p word, without it.
    [[nodiscard]] QStringList getAll(const QString &word) const
    {
        const std::lock_guard lock(m_mutex);
        const QRegularExpression beginning('^' + word + "( |$)");
        return m_lines.filter(beginning).replaceInStrings(beginning, "");
    }

    /// The text of the one error that is the last signal; empty: the job did not end like that.
    [[nodiscard]] QString getError() const
    {
        const QStringList errors = getAll("error");
        return errors.size() == 1 && getAll("done").isEmpty()
                && getMilestones().constLast().startsWith("error")
            ? errors.constFirst()
            : QString();
    }

private:
    static QString line(const char *word, EStep step, double number)
    {
        const QString name = Viewer::UpdateFile::getStepKindName(step);
        return QString("%1 %2 %3").arg(word, name).arg(number);
    }

    void add(const QString &line)
    {
        const std::lock_guard lock(m_mutex);
        m_lines.append(line);
    }

    mutable std::mutex m_mutex;
    QStringList m_lines;
};

/// Executes @p job on a thread of its own and returns when it has ended. The thread is not one of
/// Qt's, whose inside looks to ThreadSanitizer like one big race.
inline void executeOnThread(Plugin::CameraPool::IDeviceFirmwareUpdate &job)
{
    std::thread([&job] { job.executeFirmwareUpdate(); }).join();
}

} // namespace TestSupport
