#include "output.h"

#include <QtGlobal>

#include <cerrno>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace Viewer::NuvexUpdate {

static winsize getSize(int descriptor)
{
    winsize size = {};
    if (ioctl(descriptor, TIOCGWINSZ, &size) != 0)
        return {};
    return size;
}

COutput::COutput(int descriptor, const FaultListener &listener)
    : m_descriptor(descriptor)
    , m_listener(listener)
{
}

void COutput::writeLine(const QString &text)
{
    write(text.toUtf8() + '\n');
}

void COutput::write(const QByteArray &bytes)
{
    if (m_hasFailed)
        return;
    for (int position = 0; position < bytes.size();) {
        const ssize_t count = ::write(m_descriptor, bytes.constData() + position,
                                      static_cast<std::size_t>(bytes.size() - position));
        if (count >= 0) {
            position += static_cast<int>(count);
            continue;
        }
        if (errno == EINTR)
            continue;
        // Somebody else may have made it so, a program at the same terminal for example.
        pollfd wanted = {m_descriptor, POLLOUT, 0};
        if (errno == EAGAIN && poll(&wanted, 1, -1) >= 0)
            continue;
        m_hasFailed = true;
        if (m_listener)
            m_listener(qt_error_string(errno));
        return;
    }
}

bool COutput::isTerminal() const
{
    return isatty(m_descriptor) != 0;
}

int COutput::getWidth() const
{
    return getSize(m_descriptor).ws_col;
}

int COutput::getHeight() const
{
    return getSize(m_descriptor).ws_row;
}

} // namespace Viewer::NuvexUpdate
