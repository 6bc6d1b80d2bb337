#include "messagewriter.h"

#include <QCborValue>

#include <cerrno>
#include <cstdlib>
#include <unistd.h>

namespace Viewer::CameraWorker {

CMessageWriter::CMessageWriter(int descriptor)
    : m_descriptor(descriptor)
{
}

void CMessageWriter::write(const QCborMap &message)
{
    const std::lock_guard lock(m_mutex);
    send(message);
}

void CMessageWriter::writeLast(const QCborMap &message, int exitCode)
{
    m_mutex.lock();
    send(message);
    // Without destructors: another thread may hang in a library that they would wait for.
    std::_Exit(exitCode);
}

void CMessageWriter::send(const QCborMap &message)
{
    const QByteArray bytes = QCborValue(message).toCbor();
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
