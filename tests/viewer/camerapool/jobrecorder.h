#pragma once

#include "camerapool/idevicefirmwareupdate.h"

#include <QObject>
#include <QStringList>

#include <mutex>

namespace Test {

/// Writes down the signals of one update job in the order of their emission, on the emitting
/// thread: "begin 7000", "step FileUpload 400 text", "progress FileUpload 12", "stepDone FileUpload
/// 400", "done", "error text". The job outlives the recorder.
class CJobRecorder
{
public:
    explicit CJobRecorder(Plugin::CameraPool::IDeviceFirmwareUpdate &job);
    ~CJobRecorder();
    Q_DISABLE_COPY(CJobRecorder)

    [[nodiscard]] QStringList getLines() const;

    /// The lines without those of progress.
    [[nodiscard]] QStringList getMilestones() const;

    /// The lines that begin with @p word, without it.
    [[nodiscard]] QStringList getAll(const char *word) const;

private:
    void add(const QString &line);

    mutable std::mutex m_mutex;
    QStringList m_lines;
    QVector<QMetaObject::Connection> m_connections;
};

/// Executes @p job on a thread of its own and returns when it has ended. The thread is not one of
/// Qt's, whose inside looks to ThreadSanitizer like one big race.
void executeOnThread(Plugin::CameraPool::IDeviceFirmwareUpdate &job);

} // namespace Test
