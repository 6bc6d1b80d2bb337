#pragma once

#include "viewer/update/workerevent.h"

#include <mutex>

namespace Viewer::CameraWorker {

/// Sends events to whoever started the worker, each at once and as a whole. That nobody listens any
/// more changes nothing: the camera is not to be left in the middle. Any thread.
class CEventWriter
{
public:
    explicit CEventWriter(int descriptor);

    void write(const Update::CWorkerEvent &event);

    /// Sends @p event and ends the process; nobody else can send anything any more.
    [[noreturn]] void writeLast(const Update::CWorkerEvent &event, int exitCode);

private:
    void send(const Update::CWorkerEvent &event);

    const int m_descriptor;
    std::mutex m_mutex;
};

} // namespace Viewer::CameraWorker
