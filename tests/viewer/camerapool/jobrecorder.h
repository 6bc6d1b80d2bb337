#pragma once

#include "camerapool/idevicefirmwareupdate.h"

#include <QObject>
#include <QStringList>

#include <mutex>

namespace Test {

/// Writes down the signals of one update job in the order of their emission, on the emitting
/// thread: "begin 7000", "step FileUpload 400 text", "progress FileUpload 12", "stepDone FileUpload
/// 400", "done", "error text". The job outlives the recorder.
class CJobRecorder : public QObject
{
public:
    explicit CJobRecorder(Plugin::CameraPool::IDeviceFirmwareUpdate &job);

    /// All lines but those of progress.
    [[nodiscard]] QStringList getMilestones() const;

    /// The lines that begin with @p word, without it.
    [[nodiscard]] QStringList getAll(const QString &word) const;

    /// The text of the one error that is the last signal; empty: the job did not end like that.
    [[nodiscard]] QString getError() const;

private:
    void add(const QString &line);

    mutable std::mutex m_mutex;
    QStringList m_lines;
};

/// Executes @p job on a thread of its own and returns when it has ended. The thread is not one of
/// Qt's, whose inside looks to ThreadSanitizer like one big race.
void executeOnThread(Plugin::CameraPool::IDeviceFirmwareUpdate &job);

} // namespace Test
