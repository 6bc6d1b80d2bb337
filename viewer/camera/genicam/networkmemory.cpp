#include "networkmemory.h"

#include "logging.h"
#include "viewer/text/visibletext.h"

#include <QNetworkDatagram>
#include <QtEndian>

namespace Viewer::Camera::GenICam {

// The control protocol of GigE Vision: reading memory and what is answered to it.
static constexpr quint16 CONTROL_PORT = 3956;
static constexpr int HEADER_SIZE = 8;
static constexpr int ADDRESS_SIZE = 4;
static constexpr quint16 READ_MEMORY = 0x0084;
static constexpr quint16 READ_MEMORY_ANSWER = 0x0085;
static constexpr quint16 PENDING_ANSWER = 0x0089;
static constexpr int LONGEST_ANSWER = 576;

static constexpr quint32 FIRST_URL = 0x0200;
static constexpr quint32 SECOND_URL = 0x0400;
static constexpr int URL_SIZE = 512;

static quint16 readHalfWord(const QByteArray &bytes, int offset)
{
    return qFromBigEndian<quint16>(bytes.constData() + offset);
}

CNetworkMemory::CNetworkMemory(const QHostAddress &camera, const QDeadlineTimer &deadline)
    : CMemoryReader(quint64(1) << 32, 4, deadline)
{
    m_socket.connectToHost(camera, CONTROL_PORT);
}

void CNetworkMemory::send(const CRequest &request, const QDeadlineTimer &deadline)
{
    Q_UNUSED(deadline)
    QByteArray datagram(HEADER_SIZE + ADDRESS_SIZE + 4, '\0');
    qToBigEndian<quint16>(0x4201, datagram.data());
    qToBigEndian<quint16>(READ_MEMORY, datagram.data() + 2);
    qToBigEndian<quint16>(8, datagram.data() + 4);
    qToBigEndian<quint16>(request.id, datagram.data() + 6);
    qToBigEndian<quint32>(static_cast<quint32>(request.address), datagram.data() + HEADER_SIZE);
    qToBigEndian<quint16>(request.size, datagram.data() + HEADER_SIZE + 6);
    m_socket.write(datagram);
}

std::optional<CMemoryReader::CAnswer> CNetworkMemory::receive(const QDeadlineTimer &deadline)
{
    if (!m_socket.hasPendingDatagrams()
        && !m_socket.waitForReadyRead(static_cast<int>(deadline.remainingTime())))
        return {};
    const QByteArray datagram = m_socket.receiveDatagram(LONGEST_ANSWER).data();
    CAnswer answer;
    if (datagram.size() < HEADER_SIZE)
        return answer;
    answer.status = readHalfWord(datagram, 0);
    answer.id = readHalfWord(datagram, 6);
    answer.bytes = datagram.mid(HEADER_SIZE + ADDRESS_SIZE);
    if (readHalfWord(datagram, 2) == READ_MEMORY_ANSWER)
        answer.kind = CAnswer::EKind::Bytes;
    else if (readHalfWord(datagram, 2) == PENDING_ANSWER)
        answer.kind = CAnswer::EKind::Pending;
    return answer;
}

CDescriptionPlace CNetworkMemory::findDescription()
{
    QByteArray url;
    for (const quint32 address : {FIRST_URL, SECOND_URL}) {
        if (url.isEmpty())
            url = read(address, URL_SIZE).constData(); // up to the first NUL
    }
    qCDebug(genICamLog).noquote() << "description of" << m_socket.peerName() << "is"
                                  << Text::shorten(QString::fromUtf8(url));
    return readDescriptionPlace(url);
}

} // namespace Viewer::Camera::GenICam
