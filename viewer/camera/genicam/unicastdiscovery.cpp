#include "unicastdiscovery.h"

#include "viewer/text/visibletext.h"

#include <QDeadlineTimer>
#include <QHash>
#include <QNetworkDatagram>
#include <QSet>
#include <QUdpSocket>

namespace Viewer::Camera::GenICam {

// The control protocol of GigE Vision: the only question that is asked here, and its answer.
static constexpr quint16 CONTROL_PORT = 3956;
static constexpr int HEADER_SIZE = 8;
static constexpr int DISCOVERY_SIZE = 0xF8;
static const QByteArray DISCOVERY_REQUEST = QByteArray::fromHex("4201000200000001");
static const QByteArray DISCOVERY_ANSWER_HEADER = QByteArray::fromHex("0000000300f80001");

static QString readText(const QByteArray &payload, int offset, int size)
{
    // Terminated only when it is shorter than its field.
    const QByteArray field = payload.mid(offset, size);
    const auto length = static_cast<int>(qstrnlen(field.constData(), uint(field.size())));
    return Text::toSingleLine(QString::fromUtf8(field.constData(), length).simplified());
}

static QString readHardwareAddress(const QByteArray &payload)
{
    const QByteArray bytes = payload.mid(0x0A, 6);
    const bool isKnown = bytes.count('\0') < bytes.size();
    return isKnown ? QString::fromLatin1(bytes.toHex(':').toUpper()) : QString();
}

std::optional<CFoundCamera> readDiscoveryAnswer(const QByteArray &datagram,
                                                const QHostAddress &sender)
{
    if (datagram.size() != HEADER_SIZE + DISCOVERY_SIZE
        || !datagram.startsWith(DISCOVERY_ANSWER_HEADER))
        return {};
    const QByteArray payload = datagram.mid(HEADER_SIZE);
    CFoundCamera camera;
    camera.address = sender.toString();
    camera.hardwareAddress = readHardwareAddress(payload);
    camera.vendor = readText(payload, 0x48, 32);
    camera.model = readText(payload, 0x68, 32);
    camera.version = readText(payload, 0x88, 32);
    camera.serialNumber = readText(payload, 0xD8, 16);
    camera.userName = readText(payload, 0xE8, 16);
    return camera;
}

// Datagrams get lost: whoever has not answered by half-time is asked once more.
static constexpr int ROUNDS = 2;

QVector<CFoundCamera> discoverUnicast(const QVector<QHostAddress> &addresses,
                                      std::chrono::milliseconds limit)
{
    QUdpSocket socket;
    QHash<quint32, CFoundCamera> found;
    QSet<quint32> missing;
    for (const QHostAddress &address : addresses)
        missing.insert(address.toIPv4Address());

    for (int round = 0; round < ROUNDS && !missing.isEmpty(); ++round) {
        for (const quint32 address : qAsConst(missing))
            socket.writeDatagram(DISCOVERY_REQUEST, QHostAddress(address), CONTROL_PORT);

        const QDeadlineTimer deadline(limit / ROUNDS);
        // Whoever floods this socket does not prolong the wait.
        while (!missing.isEmpty() && !deadline.hasExpired()
               && (socket.hasPendingDatagrams()
                   || socket.waitForReadyRead(static_cast<int>(deadline.remainingTime())))) {
            const QNetworkDatagram datagram = socket.receiveDatagram();
            const QHostAddress sender(datagram.senderAddress().toIPv4Address());
            const std::optional<CFoundCamera> camera = readDiscoveryAnswer(datagram.data(), sender);
            if (camera && missing.remove(sender.toIPv4Address()))
                found.insert(sender.toIPv4Address(), *camera);
        }
    }

    QVector<CFoundCamera> cameras;
    for (const QHostAddress &address : addresses) {
        const auto camera = found.find(address.toIPv4Address());
        if (camera == found.end())
            continue;
        cameras.append(*camera);
        found.erase(camera);
    }
    return cameras;
}

} // namespace Viewer::Camera::GenICam
