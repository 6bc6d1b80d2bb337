#include "searchoptions.h"

#include "viewer/commandline/takers.h"

#include <QCoreApplication>
#include <QNetworkInterface>

namespace Viewer::Camera::GenICam {

static QString tr(const char *text)
{
    return QCoreApplication::translate("Viewer::Camera::GenICam", text);
}

// Not several devices at once, and not nobody.
static bool isAddressOfOne(const QHostAddress &address)
{
    if (address.protocol() != QAbstractSocket::IPv4Protocol || address.toIPv4Address() >> 24 == 0
        || address.isBroadcast() || address.isMulticast())
        return false;
    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface &networkInterface : interfaces) {
        const QList<QNetworkAddressEntry> entries = networkInterface.addressEntries();
        for (const QNetworkAddressEntry &entry : entries) {
            if (entry.broadcast() == address)
                return false;
        }
    }
    return true;
}

QVector<CommandLine::COption> getSearchOptions(CSearchOptions &target)
{
    const auto takeAddress = [&target](const QString &text) {
        const QHostAddress address(text);
        // In full: "1.2.3" would be taken for 1.2.0.3.
        if (address.toString() != text || !isAddressOfOne(address))
            return false;
        target.addresses.append(address);
        return true;
    };
    return {{QStringLiteral("network"),
             {},
             tr("Search the network (by broadcast) and USB for cameras this time."),
             CommandLine::takeSwitch(target.searchesNetwork)},
            {QStringLiteral("camera-address"), tr("address"),
             tr("Ask for a camera at <address>, without a broadcast; can be given several times."),
             takeAddress, tr("\"%1\" is not a camera address; it has the form 192.168.0.10.")}};
}

} // namespace Viewer::Camera::GenICam
