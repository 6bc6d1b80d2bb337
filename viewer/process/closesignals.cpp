#include "closesignals.h"

#include "core/baseexception.h"

#include <QSocketNotifier>

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace Viewer::Process {

static std::atomic<int> writeEnd{-1};
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler must not lock");

// On whatever thread the system chooses, in the middle of anything: only the pipe leads out.
static void handleSignal(int)
{
    const int error = errno;
    const char byte = 0;
    // A full pipe holds a request already.
    [[maybe_unused]] const auto written = write(writeEnd, &byte, 1);
    errno = error;
}

CCloseSignals::CCloseSignals(QObject *parent)
    : QObject(parent)
{
    // Who reads the messages may end before the program does, above all with the terminal.
    struct sigaction action = {};
    action.sa_handler = SIG_IGN;
    sigaction(SIGPIPE, &action, &m_previousPipe);

    int ends[2] = {-1, -1};
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        throw Core::Exception::BaseException(
            QStringLiteral("There is no pipe for signals: %1").arg(qt_error_string(errno)));
    m_readEnd = ends[0];
    writeEnd = ends[1];
    m_notifier = std::make_unique<QSocketNotifier>(m_readEnd, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &CCloseSignals::onReadable);

    action.sa_handler = handleSignal;
    // A system call of a job on a camera goes on as if nothing had happened.
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < SIGNALS.size(); ++i) {
        sigaction(SIGNALS[i], nullptr, &m_previous[i]);
        if (m_previous[i].sa_handler != SIG_IGN)
            sigaction(SIGNALS[i], &action, nullptr);
    }
}

CCloseSignals::~CCloseSignals()
{
    for (std::size_t i = 0; i < SIGNALS.size(); ++i)
        sigaction(SIGNALS[i], &m_previous[i], nullptr);
    sigaction(SIGPIPE, &m_previousPipe, nullptr);
    m_notifier.reset();
    close(writeEnd.exchange(-1));
    close(m_readEnd);
}

void CCloseSignals::onReadable()
{
    char bytes[64];
    while (read(m_readEnd, bytes, sizeof bytes) > 0) { }
    emit closeRequested();
}

} // namespace Viewer::Process
