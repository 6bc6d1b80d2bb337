#include "usbshell.h"

#include "usbport.h"

#include <QSocketNotifier>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <linux/capability.h>
#include <sys/prctl.h>
#include <umockdev.h>
#include <unistd.h>

namespace VirtualCamera {

static const QByteArray EMULATION = "libumockdev-preload.so.0";

CUsbShell::CUsbShell(const CUsbSettings &settings, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
    // The command's own output is not to be mixed with the camera's.
    , m_voice(settings.command.isEmpty() ? stdout : stderr, settings.flashFile)
{
}

CUsbShell::~CUsbShell()
{
    m_process.disconnect(this);
    if (m_process.state() != QProcess::NotRunning) {
        m_process.terminate();
        m_process.waitForFinished();
    }
    for (const std::unique_ptr<CUsbPort> &port : m_ports)
        port->leave();
    if (m_testbed)
        g_object_unref(m_testbed);
}

void CUsbShell::enterEmulation(char **argv)
{
    const QByteArray before = qgetenv("LD_PRELOAD");
    if (before.contains(EMULATION))
        return;
    qputenv("LD_PRELOAD", before.isEmpty() ? EMULATION : before + ':' + EMULATION);
    execv("/proc/self/exe", argv);
}

bool CUsbShell::start(QString &error)
{
    if (!m_voice.check(error))
        return false;
    m_testbed = umockdev_testbed_new();
    if (umockdev_in_mock_environment() == FALSE) {
        error = QStringLiteral("The library %1 could not be loaded in front of all others.")
                    .arg(QString::fromLatin1(EMULATION));
        return false;
    }
    for (int number = 1; number <= (m_settings.hasTwin ? 2 : 1); ++number) {
        m_ports.push_back(
            std::make_unique<CUsbPort>(m_testbed, m_settings.camera, number, m_voice));
        CUsbPort *const port = m_ports.back().get();
        port->setAccessible(!m_settings.isForbidden);
        auto *const notifier = new QSocketNotifier(port->getTimer(), QSocketNotifier::Read, this);
        connect(notifier, &QSocketNotifier::activated, this, [port] { port->tick(); });
        port->tick();
    }
    if (!m_settings.command.isEmpty())
        return startCommand(error);
    auto *const notifier = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        readCommands();
        notifier->setEnabled(!std::feof(stdin));
    });
    m_voice.printLine("READY UMOCKDEV_DIR=" + qgetenv("UMOCKDEV_DIR")
                      + " LD_PRELOAD=" + qgetenv("LD_PRELOAD"));
    return true;
}

void CUsbShell::readCommands()
{
    char line[64];
    if (!std::fgets(line, sizeof line, stdin))
        return;
    if (std::strcmp(line, "unplug\n") == 0)
        m_ports.front()->unplug();
    else if (std::strcmp(line, "plug\n") == 0)
        m_ports.front()->plugIn();
}

bool CUsbShell::startCommand(QString &error)
{
    // Not even root may open what nobody may open.
    if (m_settings.isForbidden)
        prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE);
    m_process.setProcessChannelMode(QProcess::ForwardedChannels);
    m_process.setInputChannelMode(QProcess::ForwardedInputChannel);
    connect(&m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            [this](int exitCode, QProcess::ExitStatus status) {
                Q_EMIT ended(status == QProcess::NormalExit ? exitCode : EXIT_FAILURE);
            });
    m_process.start(m_settings.command.first(), m_settings.command.mid(1));
    if (m_process.waitForStarted())
        return true;
    error = QStringLiteral("%1 cannot be started: %2.")
                .arg(m_settings.command.first(), m_process.errorString());
    return false;
}

void CUsbShell::printStatistics()
{
    for (const std::unique_ptr<CUsbPort> &port : m_ports)
        port->printStatistics();
}

} // namespace VirtualCamera
