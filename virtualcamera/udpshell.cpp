#include "udpshell.h"

#include <QHostAddress>
#include <QNetworkDatagram>

#include <algorithm>
#include <sys/timerfd.h>
#include <thread>
#include <unistd.h>

namespace VirtualCamera {

static CCameraSettings withStreamPort(CCameraSettings settings, quint16 port)
{
    settings.streamPort = port;
    return settings;
}

CUdpShell::CUdpShell(const CCameraSettings &settings, const QString &flashFile, QObject *parent)
    : QObject(parent)
    , m_address(settings.address)
    , m_answerDelay(settings.answerDelay)
    , m_voice(stdout, flashFile)
    , m_packetSender(settings.streamsFrom == 0 ? settings.address : settings.streamsFrom)
    , m_camera(withStreamPort(settings, m_packetSender.getPort()), m_voice)
    , m_timer(timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC | TFD_NONBLOCK))
    , m_timerNotifier(m_timer, QSocketNotifier::Read)
{
    m_clock.start();
    connect(&m_timerNotifier, &QSocketNotifier::activated, this, &CUdpShell::tick);
    for (QUdpSocket *const socket : {&m_socket, &m_broadcastSocket})
        connect(socket, &QUdpSocket::readyRead, this, [this, socket] { readDatagrams(*socket); });
}

CUdpShell::~CUdpShell()
{
    m_timerNotifier.setEnabled(false);
    close(m_timer);
}

bool CUdpShell::start(QString &error)
{
    if (!m_voice.check(error))
        return false;
    const QHostAddress address(m_address);
    if (!m_socket.bind(address, Gvcp::PORT, QAbstractSocket::DontShareAddress)) {
        error = QStringLiteral("The address %1 with port %2 cannot be used: %3.")
                    .arg(address.toString(), QString::number(Gvcp::PORT), m_socket.errorString());
        return false;
    }
    error = m_packetSender.getError();
    if (!error.isEmpty())
        return false;
    // All cameras of a machine listen to the one address.
    m_broadcastSocket.bind(QHostAddress(QHostAddress::Broadcast), Gvcp::PORT,
                           QAbstractSocket::ShareAddress | QAbstractSocket::ReuseAddressHint);
    m_voice.printLine("READY " + address.toString().toLatin1() + ':'
                      + QByteArray::number(Gvcp::PORT));
    return true;
}

void CUdpShell::readDatagrams(QUdpSocket &socket)
{
    while (socket.hasPendingDatagrams()) {
        const QNetworkDatagram datagram = socket.receiveDatagram();
        const CPeer sender{datagram.senderAddress().toIPv4Address(),
                           static_cast<quint16>(datagram.senderPort())};
        std::this_thread::sleep_for(m_answerDelay);
        send(m_camera.handle(datagram.data(), sender, getTime()));
    }
    goOn();
}

void CUdpShell::send(const QVector<CDatagram> &datagrams)
{
    for (const CDatagram &datagram : datagrams) {
        m_socket.writeDatagram(datagram.bytes, QHostAddress(datagram.receiver.address),
                               datagram.receiver.port);
    }
}

void CUdpShell::tick()
{
    send(m_camera.tick(getTime()));
    goOn();
}

void CUdpShell::goOn()
{
    m_camera.takePackets(getTime(), m_packets);
    if (!m_packets.isEmpty())
        m_packetSender.send(m_packets);
    itimerspec timer{};
    if (const std::optional<Time> deadline = m_camera.getNextDeadline()) {
        // 0 would stop the timer.
        const qint64 rest = std::max<qint64>((*deadline - getTime()).count(), 1);
        constexpr qint64 SECOND = 1'000'000'000;
        timer.it_value = {rest / SECOND, rest % SECOND};
    }
    // It is set anew even where it has expired, so that nobody need read it.
    timerfd_settime(m_timer, 0, &timer, nullptr);
}

Time CUdpShell::getTime() const
{
    return Time(m_clock.nsecsElapsed());
}

void CUdpShell::printStatistics()
{
    m_voice.printStatistics(m_camera.getStatistics(), m_camera.getStreamStatistics(),
                            m_camera.getUploadedBytes());
}

} // namespace VirtualCamera
