#include "commandline.h"
#include "udpshell.h"
#ifdef WITH_USB
#include "usbshell.h"
#endif

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
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

// Runs @p shell until something ends the program.
template <typename Shell>
static int run(Shell &shell, int maximumSeconds)
{
    QString error;
    if (!shell.start(error)) {
        std::fprintf(stderr, "virtualcamera: %s\n", qPrintable(error));
        return EXIT_FAILURE;
    }
    QTimer::singleShot(std::chrono::seconds(maximumSeconds), qApp, &QCoreApplication::quit);
    const int exitCode = QCoreApplication::exec();
    shell.printStatistics();
    return exitCode;
}

static int runOnUsb(const CCommandLine &commandLine)
{
#ifdef WITH_USB
    CUsbShell shell({commandLine.settings, commandLine.flashFile, commandLine.usbCommand,
                     commandLine.hasTwin, commandLine.isForbidden});
    QObject::connect(&shell, &CUsbShell::ended, qApp, &QCoreApplication::exit);
    return run(shell, commandLine.maximumSeconds);
#else
    Q_UNUSED(commandLine)
    std::fputs("virtualcamera: It was built without umockdev, which emulates USB; install "
               "libumockdev-dev and build it again.\n",
               stderr);
    return EXIT_FAILURE;
#endif
}

int main(int argc, char **argv)
{
    const pid_t parent = getppid();
#ifdef WITH_USB
    if (argc > 1 && std::strcmp(argv[1], "usb") == 0)
        CUsbShell::enterEmulation(argv);
#endif
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

    QSocketNotifier endNotifier(signalDescriptor, QSocketNotifier::Read);
    QObject::connect(&endNotifier, &QSocketNotifier::activated, qApp, &QCoreApplication::quit);
    if (commandLine.settings.transport == ETransport::Usb)
        return runOnUsb(commandLine);
    CUdpShell shell(commandLine.settings, commandLine.flashFile);
    return run(shell, commandLine.maximumSeconds);
}
