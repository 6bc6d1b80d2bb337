#include "buscall.h"

#include <QDBusConnection>
#include <QUrl>

namespace Viewer::Desktop {

static constexpr int TIME_LIMIT = 5000; // milliseconds; of each of the two calls

QString getProductName()
{
    return QStringLiteral("Nuvex Viewer");
}

QString getSystemBus()
{
    return qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS",
                                QStringLiteral("unix:path=/var/run/dbus/system_bus_socket"));
}

QString getSessionBus()
{
    const QByteArray folder = QUrl::toPercentEncoding(qEnvironmentVariable("XDG_RUNTIME_DIR"), "/");
    return qEnvironmentVariable(
        "DBUS_SESSION_BUS_ADDRESS",
        QStringLiteral("unix:path=%1/bus").arg(QString::fromLatin1(folder)));
}

QDBusMessage callBus(const QString &address, const QDBusMessage &call)
{
    // As if the bus were any other program: connectToBus() introduces itself to the bus at once and
    // waits for the answer, for ever and on the one thread that serves all connections of a
    // process, the end of which waits for that thread.
    const QString name = QStringLiteral("NuvexViewer");
    QDBusMessage answer;
    {
        const QDBusConnection connection = QDBusConnection::connectToPeer(address, name);
        const QString bus = QStringLiteral("org.freedesktop.DBus");
        answer = connection.call(
            QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus,
                                           QStringLiteral("Hello")),
            QDBus::Block, TIME_LIMIT);
        if (answer.type() == QDBusMessage::ReplyMessage)
            answer = connection.call(call, QDBus::Block, TIME_LIMIT);
    }
    QDBusConnection::disconnectFromPeer(name);
    return answer;
}

} // namespace Viewer::Desktop
