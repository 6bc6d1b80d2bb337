#pragma once

#include "viewer/text/errortext.h"

#include <QDateTime>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <thread>
#include <vector>

namespace Viewer::Image {

class CFrameConverter;

struct CFrame;

/// What one recording is to be.
struct CRecording
{
    /// Lets the file at the path hold the bytes, or says why it does not and leaves nothing behind.
    using Writer = std::function<Text::CErrorText(const QString &path, const QByteArray &bytes)>;

    QString camera; ///< name of the camera, for the names of the files and in them
    QString folder;

    /// Bytes of frames that may wait for their turn, those being written included. One frame may
    /// have more.
    qint64 maximumWaiting = qint64(256) << 20;

    /// How long the end of the recording waits for what has still to be written.
    int stopTimeMs = 5000;

    Writer writer; ///< none: to the disk. Called on several threads at once
};

/// The name of the file for one frame: that of the camera, in characters that every file system
/// takes, the time, and the number of the frame.
[[nodiscard]] QString getFrameFileName(const QString &camera, const QDateTime &time,
                                       quint64 number);

/// A PNG file of the frame, with what files of a recording have, see `CFrameRecorder`. @p camera is
/// its name. Empty if the frame cannot be read or there is no memory.
[[nodiscard]] QByteArray encodeFrame(CFrameConverter &converter, const QString &camera,
                                     const CFrame &frame);

/// Writes frames as PNG files, what the sensor gave without a loss
/// (`CFrameConverter::toFullDepth()`). Each file has the texts `Camera`, `FrameNumber`, `Timestamp`
/// (ns, the camera's clock), `PixelFormat` and `SignificantBits` (of each sample).
///
/// Threads of its own write; a frame that finds the queue full is lost and counted, nobody waits
/// for it. Recording ends by stop(), or with the first file that cannot be written.
class CFrameRecorder : public QObject
{
    Q_OBJECT

public:
    explicit CFrameRecorder(const CRecording &recording, QObject *parent = nullptr);

    /// As stop().
    ~CFrameRecorder() override;

    /// Any thread. Copies the frame's bytes, as a camera's few buffers are not for waiting in a
    /// queue; never waits. A frame that cannot be read is lost. Does nothing once recording has
    /// ended.
    void record(const CFrame &frame);

    /// Writes what is in the queue, for as long as `stopTimeMs`; what is left then is lost. A
    /// thread that the disk does not let go of after as long again is left to itself and counted as
    /// a lost frame, though its file may still come. The counts do not change any more.
    void stop();

    /// Any thread. Each frame given to record() is written, lost, or waiting.
    [[nodiscard]] quint64 getWrittenCount() const;
    [[nodiscard]] quint64 getLostCount() const;

signals:
    /// On this object's thread, at most once: recording has ended because a file cannot be written.
    /// @p cause is a clause in the user's language; of that file nothing is left.
    void failed(const QString &cause);

private:
    struct CState;

    /// Of the threads that write; they may outlive the recorder.
    static void run(const std::shared_ptr<CState> &state);

    const std::shared_ptr<CState> m_state;
    std::vector<std::thread> m_threads;
};

} // namespace Viewer::Image
