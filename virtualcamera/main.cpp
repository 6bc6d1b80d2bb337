#include "commandline.h"
#include "udpshell.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <unistd.h>

using namespace VirtualCamera;

// Blocks the signals that ask a program to end, and gives a descriptor that tells of them: so the
// statistics are printed on every way out.
static int watchEndSignals()
{
    sigset_t endSignals;
    sigemptyset(&endSignals);
    sigaddset(&endSignals, SIGINT);
    sigaddset(&endSignals, SIGTERM);
    sigprocmask(SIG_BLOCK, &endSignals, nullptr);
    return signalfd(-1, &endSignals, SFD_CLOEXEC | SFD_NONBLOCK);
}

int main(int argc, char **argv)
{
    const pid_t parent = getppid();
    const int signalDescriptor = watchEndSignals();
    // A test that dies takes its cameras along.
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != parent)
        return EXIT_FAILURE;

    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("virtualcamera"));
    CCommandLine commandLine;
    switch (commandLine.parse(QCoreApplication::arguments())) {
    case CCommandLine::EResult::Start:
        break;
    case CCommandLine::EResult::Message:
        std::puts(qPrintable(commandLine.message));
        return EXIT_SUCCESS;
    case CCommandLine::EResult::Error:
        std::fprintf(stderr, "virtualcamera: %s\n", qPrintable(commandLine.message));
        return 2;
    }

    CUdpShell shell(commandLine.settings, commandLine.flashFile);
    QString error;
    if (!shell.start(error)) {
        std::fprintf(stderr, "virtualcamera: %s\n", qPrintable(error));
        return EXIT_FAILURE;
    }
    QSocketNotifier endNotifier(signalDescriptor, QSocketNotifier::Read);
    QObject::connect(&endNotifier, &QSocketNotifier::activated, qApp, &QCoreApplication::quit);
    QTimer::singleShot(std::chrono::seconds(commandLine.maximumSeconds), qApp,
                       &QCoreApplication::quit);
    const int exitCode = QCoreApplication::exec();
    shell.printStatistics();
    return exitCode;
}
