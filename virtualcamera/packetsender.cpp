#include "packetsender.h"

#include "packetbatch.h"

#include <QHostAddress>

#include <array>
#include <cerrno>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/uio.h>
#include <unistd.h>

namespace VirtualCamera {

static sockaddr_in toSocketAddress(const CPeer &peer)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(peer.address);
    address.sin_port = htons(peer.port);
    return address;
}

CPacketSender::CPacketSender(quint32 address)
    : m_socket(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0))
{
    sockaddr_in own = toSocketAddress({address, 0});
    auto *const generic = reinterpret_cast<sockaddr *>(&own);
    socklen_t size = sizeof own;
    if (m_socket < 0 || bind(m_socket, generic, size) != 0
        || getsockname(m_socket, generic, &size) != 0) {
        m_error = QStringLiteral("Nothing can be streamed from the address %1: %2.")
                      .arg(QHostAddress(address).toString(), qt_error_string(errno));
        return;
    }
    m_port = ntohs(own.sin_port);
}

CPacketSender::~CPacketSender()
{
    if (m_socket >= 0)
        close(m_socket);
}

void CPacketSender::send(const CPacketBatch &batch)
{
    if (m_mayFragment != batch.mayBeFragmented()) {
        m_mayFragment = batch.mayBeFragmented();
        const int value = m_mayFragment ? IP_PMTUDISC_DONT : IP_PMTUDISC_DO;
        setsockopt(m_socket, IPPROTO_IP, IP_MTU_DISCOVER, &value, sizeof value);
    }
    sockaddr_in receiver = toSocketAddress(batch.getReceiver());
    std::array<iovec, CPacketBatch::MOST_PACKETS> pieces{};
    std::array<mmsghdr, CPacketBatch::MOST_PACKETS> messages{};
    const auto count = static_cast<unsigned>(batch.getCount());
    for (unsigned i = 0; i < count; ++i) {
        const CPacketBatch::CPacket &packet = batch.getPacket(static_cast<int>(i));
        pieces[i] = {packet.bytes, static_cast<std::size_t>(packet.size)};
        msghdr &header = messages[i].msg_hdr;
        header.msg_name = &receiver;
        header.msg_namelen = sizeof receiver;
        header.msg_iov = &pieces[i];
        header.msg_iovlen = 1;
    }
    for (unsigned sent = 0; sent < count;) {
        const int result = sendmmsg(m_socket, &messages[sent], count - sent, 0);
        // The one in front is too long, or nobody is there.
        sent += result > 0 ? static_cast<unsigned>(result) : 1U;
    }
}

} // namespace VirtualCamera
