#pragma once

#include <QObject>

#include <array>
#include <csignal>
#include <memory>

class QSocketNotifier;

namespace Viewer::Process {

/// Makes SIGTERM, SIGHUP and SIGINT requests to close instead of the process's end, which would cut
/// off a camera that is being written. A closed pipe at standard output or standard error ends the
/// process no more either. One at a time, on the thread of the application object.
class CCloseSignals : public QObject
{
    Q_OBJECT

public:
    /// A signal that is ignored already, as by nohup, stays ignored. Throws
    /// `Core::Exception::BaseException` when the system has no file descriptors left.
    explicit CCloseSignals(QObject *parent = nullptr);

    /// The signals end the process again.
    ~CCloseSignals() override;

signals:
    /// Somebody asks the program to end: a person, the session, the system. Emitted by the event
    /// loop.
    void closeRequested();

private:
    void onReadable();

    static constexpr std::array<int, 3> SIGNALS{SIGTERM, SIGHUP, SIGINT};

    std::array<struct sigaction, SIGNALS.size()> m_previous{};
    struct sigaction m_previousPipe = {};
    int m_readEnd = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace Viewer::Process
