#include "eventwriter.h"

#include <QCborValue>

#include <cerrno>
#include <cstdlib>
#include <unistd.h>

namespace Viewer::CameraWorker {

CEventWriter::CEventWriter(int descriptor)
    : m_descriptor(descriptor)
{
}

void CEventWriter::write(const Update::CWorkerEvent &event)
{
    const std::lock_guard lock(m_mutex);
    send(event);
}

void CEventWriter::writeLast(const Update::CWorkerEvent &event, int exitCode)
{
    m_mutex.lock();
    send(event);
    // Without destructors: another thread may hang in a library that they would wait for.
    std::_Exit(exitCode);
}

void CEventWriter::send(const Update::CWorkerEvent &event)
{
    const QByteArray bytes = QCborValue(event.toCbor()).toCbor();
    for (int sent = 0; sent < bytes.size();) {
        const ssize_t count = ::write(m_descriptor, bytes.constData() + sent,
                                      static_cast<std::size_t>(bytes.size() - sent));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return;
        sent += static_cast<int>(count);
    }
}

} // namespace Viewer::CameraWorker
