#pragma once

#include "viewer/camera/icamerakind.h"
#include "viewer/stream/framememory.h"
#include "viewer/stream/streamcommand.h"
#include "viewer/stream/streamevent.h"
#include "viewer/stream/streamtask.h"

#include <deque>
#include <memory>
#include <mutex>
#include <vector>

namespace Viewer::CameraWorker {

class CMessageWriter;

/// The images of one camera, handed on to whoever started the worker, until nobody listens or can
/// ask for anything any more.
class CCameraImages
{
public:
    /// Borrowed.
    explicit CCameraImages(CMessageWriter &writer);
    ~CCameraImages();

    /// Opens the camera of @p task and does what commands from the descriptor @p input say, of
    /// which @p bytes have been read already. True: it has ended as it was asked to.
    [[nodiscard]] bool serve(const Stream::CStreamTask &task, int input, const QByteArray &bytes);

private:
    void open(const Stream::CStreamTask &task);
    void follow();
    void listen(int milliseconds);
    void takeCommands();
    void obey(const Stream::CStreamCommand &command);
    void start();
    void stop();
    void onFrame(const Camera::CFrameInfo &frame);
    void release(const Stream::CStreamCommand &command);
    void write(const QString &name, const QString &value);
    void refuse(const Text::CErrorText &error);
    void sendFeatures(const QStringList &names);
    void sendStatistics();
    void send(const Stream::CStreamEvent &event);

    CMessageWriter &m_writer;
    Camera::CCameraKinds m_kinds;
    int m_input = -1;
    QByteArray m_bytes; ///< from there, of a command that is not whole
    std::deque<Stream::CStreamCommand> m_commands; ///< that wait for their turn
    bool m_isOver = false; ///< nothing that can be understood comes from there any more
    std::unique_ptr<Camera::ICameraStream> m_stream;
    std::unique_ptr<Stream::CFrameMemory> m_memory; ///< null: no images come
    qint64 m_startCount = 0;
    bool m_isRestarting = false;

    std::mutex m_mutex; ///< guards what follows
    std::vector<bool> m_isHeld; ///< by slot: the other process looks at the image in it
    int m_heldCount = 0;
    qint64 m_skippedFrames = 0;
};

} // namespace Viewer::CameraWorker
