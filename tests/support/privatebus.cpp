#include "privatebus.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

namespace TestSupport {

/// No folders of services: on a desktop they would have real ones started.
static const char *const CONFIGURATION = R"(<!DOCTYPE busconfig PUBLIC
  "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
  "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <listen>%1</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/>
  </policy>
</busconfig>)";

// The system's, which has the packages of the system, too.
static const char *const PYTHON = "/usr/bin/python3";

QString CPrivateBus::findMissing()
{
    if (QStandardPaths::findExecutable("dbus-daemon").isEmpty())
        return "dbus-daemon is not installed (package dbus).";
    QProcess python;
    python.start(PYTHON, {"-c", "import dbusmock"});
    if (!python.waitForFinished() || python.exitCode() != 0)
        return "dbusmock is not installed (package python3-dbusmock).";
    return {};
}

CPrivateBus::CPrivateBus()
{
    QFile file(m_folder.filePath("bus.conf"));
    if (file.open(QIODevice::WriteOnly))
        file.write(QString(CONFIGURATION).arg(getAddress().constData()).toUtf8());
    file.close();
    m_daemon.start("dbus-daemon",
                   {"--nofork", "--print-address", "--config-file=" + file.fileName()});
    if (!m_daemon.waitForReadyRead())
        qFatal("The bus does not start: %s", m_daemon.readAllStandardError().constData());
}

CPrivateBus::~CPrivateBus()
{
    for (const auto &mock : m_mocks) {
        mock->kill();
        mock->waitForFinished();
    }
    m_daemon.kill();
    m_daemon.waitForFinished();
}

QByteArray CPrivateBus::getAddress() const
{
    return "unix:path=" + m_folder.filePath("bus").toLocal8Bit();
}

void CPrivateBus::addMock(const QString &service, const QStringList &arguments)
{
    m_mocks.push_back(std::make_unique<QProcess>());
    QProcess &mock = *m_mocks.back();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SESSION_BUS_ADDRESS", getAddress());
    mock.setProcessEnvironment(environment);
    mock.setStandardOutputFile(getLogPath(), QIODevice::Append);
    mock.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    mock.start(PYTHON, QStringList({"-m", "dbusmock", "--session"}) + arguments);
    if (!QTest::qWaitFor([&] { return hasService(service); }, 30'000))
        qFatal("The mock of %s does not start.", qUtf8Printable(service));
}

QString CPrivateBus::getLogPath() const
{
    return m_folder.filePath("log");
}

QStringList CPrivateBus::getCalls(const QString &method) const
{
    QFile file(getLogPath());
    const QString log
        = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    // Arguments may have line ends.
    const QRegularExpression time("^[0-9]+[.][0-9]+ ", QRegularExpression::MultilineOption);
    const QRegularExpression name('^' + method + ' ');
    QStringList calls = log.split(time).filter(name).replaceInStrings(name, {});
    calls.replaceInStrings(QRegularExpression("\n$"), {});
    return calls;
}

bool CPrivateBus::hasService(const QString &service) const
{
    const QString name = "private";
    const bool found = QDBusConnection::connectToBus(getAddress(), name)
                           .interface()
                           ->isServiceRegistered(service);
    QDBusConnection::disconnectFromBus(name);
    return found;
}

} // namespace TestSupport
