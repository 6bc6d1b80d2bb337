#include "memoryreader.h"

#include "camerafeatures.h"
#include "featuredescription.h"
#include "logging.h"
#include "viewer/text/visibletext.h"

#include <QNetworkDatagram>
#include <QtEndian>

#include <algorithm>

namespace Viewer::Camera::GenICam {

using Text::CErrorText;

// The control protocol of GigE Vision: reading memory and what is answered to it.
static constexpr quint16 CONTROL_PORT = 3956;
static constexpr int HEADER_SIZE = 8;
static constexpr quint16 READ_MEMORY = 0x0084;
static constexpr quint16 READ_MEMORY_ANSWER = 0x0085;
static constexpr quint16 PENDING_ANSWER = 0x0089;
static constexpr quint16 ACCESS_DENIED = 0x8006;
static constexpr quint16 BLOCK_SIZE = 512;

static constexpr quint32 FIRST_URL = 0x0200;
static constexpr quint32 SECOND_URL = 0x0400;
static constexpr int URL_SIZE = 512;

/// Datagrams get lost: how often one is sent, and how long each is waited for.
static constexpr int ATTEMPTS = 3;
static constexpr int ATTEMPT_MS = 300;

static quint16 readHalfWord(const QByteArray &bytes, int offset)
{
    return qFromBigEndian<quint16>(bytes.constData() + offset);
}

CMemoryReader::CMemoryReader(const QHostAddress &camera, const QDeadlineTimer &deadline)
    : m_deadline(deadline)
{
    m_socket.connectToHost(camera, CONTROL_PORT);
}

CMemoryReader::~CMemoryReader() = default;

QByteArray CMemoryReader::read(quint64 address, qint64 size)
{
    QByteArray bytes;
    bytes.reserve(static_cast<int>(size) + BLOCK_SIZE);
    while (bytes.size() < size) {
        const quint64 place = address + static_cast<quint64>(bytes.size());
        if (place + BLOCK_SIZE > quint64(1) << 32)
            throw CFeatureError(CErrorText::tr("its feature description could not be read"),
                                CFeatureError::EReason::Refused);
        // Memory is read by whole words.
        const qint64 wanted = (std::min<qint64>(size - bytes.size(), BLOCK_SIZE) + 3) / 4 * 4;
        bytes += readBlock(static_cast<quint32>(place), static_cast<quint16>(wanted));
    }
    bytes.truncate(static_cast<int>(size));
    return bytes;
}

QByteArray CMemoryReader::readBlock(quint32 address, quint16 size)
{
    QByteArray request(HEADER_SIZE + 8, '\0');
    m_id = m_id == 0xFFFF ? 1 : m_id + 1; // 0 is no id
    qToBigEndian<quint16>(0x4201, request.data());
    qToBigEndian<quint16>(READ_MEMORY, request.data() + 2);
    qToBigEndian<quint16>(8, request.data() + 4);
    qToBigEndian<quint16>(m_id, request.data() + 6);
    qToBigEndian<quint32>(address, request.data() + HEADER_SIZE);
    qToBigEndian<quint16>(size, request.data() + HEADER_SIZE + 6);

    for (int attempt = 0; attempt < ATTEMPTS && !m_deadline.hasExpired(); ++attempt) {
        m_socket.write(request);
        const QByteArray answer = waitForAnswer(std::min(m_deadline, QDeadlineTimer(ATTEMPT_MS)));
        if (answer.isEmpty())
            continue;
        const quint16 status = readHalfWord(answer, 0);
        if (status == ACCESS_DENIED)
            throw CFeatureError(getInUseText(), CFeatureError::EReason::InUse);
        if (status != 0 || answer.size() != HEADER_SIZE + 4 + size)
            throw CFeatureError(CErrorText::tr("its feature description could not be read"),
                                CFeatureError::EReason::Refused);
        return answer.mid(HEADER_SIZE + 4);
    }
    throw CFeatureError(
        CErrorText::tr("%1: %2").arg(CErrorText::tr("it could not be opened"), getNoAnswerText()),
        CFeatureError::EReason::NoAnswer);
}

QByteArray CMemoryReader::waitForAnswer(const QDeadlineTimer &deadline)
{
    QDeadlineTimer patience = deadline;
    while (!patience.hasExpired()
           && (m_socket.hasPendingDatagrams()
               || m_socket.waitForReadyRead(static_cast<int>(patience.remainingTime())))) {
        const QByteArray answer = m_socket.receiveDatagram(HEADER_SIZE + 4 + BLOCK_SIZE + 1).data();
        if (answer.size() < HEADER_SIZE || readHalfWord(answer, 6) != m_id)
            continue;
        if (readHalfWord(answer, 2) == READ_MEMORY_ANSWER)
            return answer;
        // The camera asks for patience; how much is ours to say.
        if (readHalfWord(answer, 2) == PENDING_ANSWER)
            patience = m_deadline;
    }
    return {};
}

void checkFeatureDescription(const QHostAddress &camera, const QDeadlineTimer &deadline)
{
    CMemoryReader reader(camera, deadline);
    QByteArray url;
    for (const quint32 address : {FIRST_URL, SECOND_URL}) {
        if (url.isEmpty())
            url = reader.read(address, URL_SIZE).constData(); // up to the first NUL
    }
    const CDescriptionPlace place = readDescriptionPlace(url);
    qCDebug(genICamLog).noquote() << "description of" << camera.toString() << "is"
                                  << Text::shorten(QString::fromUtf8(url)) << place.size << "bytes";
    CErrorText fault = place.fault;
    if (fault.isEmpty())
        fault = findDescriptionFault(reader.read(place.address, place.size), place.isPacked);
    if (!fault.isEmpty())
        throw CFeatureError(fault, CFeatureError::EReason::Refused);
}

} // namespace Viewer::Camera::GenICam
