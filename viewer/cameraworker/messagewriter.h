#pragma once

#include <QCborMap>

#include <mutex>

namespace Viewer::CameraWorker {

/// Sends messages to whoever started the worker, each at once and as a whole. That nobody listens
/// any more changes nothing: the camera is not to be left in the middle. Any thread.
class CMessageWriter
{
public:
    explicit CMessageWriter(int descriptor);

    void write(const QCborMap &message);

    /// Sends @p message and ends the process; nobody else can send anything any more.
    [[noreturn]] void writeLast(const QCborMap &message, int exitCode);

private:
    void send(const QCborMap &message);

    const int m_descriptor;
    std::mutex m_mutex;
};

} // namespace Viewer::CameraWorker
