#include "memoryreader.h"

#include "camerafeatures.h"
#include "featuredescription.h"

#include <QNetworkDatagram>
#include <QtEndian>

#include <algorithm>

namespace Viewer::Camera::GenICam {

using Text::CErrorText;

// The control protocol of GigE Vision: reading memory and what is answered to it.
static constexpr quint16 ControlPort = 3956;
static constexpr int HeaderSize = 8;
static constexpr quint16 ReadMemory = 0x0084;
static constexpr quint16 ReadMemoryAnswer = 0x0085;
static constexpr quint16 PendingAnswer = 0x0089;
static constexpr quint16 AccessDenied = 0x8006;
static constexpr quint16 BlockSize = 512;

static constexpr quint32 FirstUrl = 0x0200;
static constexpr quint32 SecondUrl = 0x0400;
static constexpr int UrlSize = 512;

/// Datagrams get lost: how often one is sent, and how long each is waited for.
static constexpr int Attempts = 3;
static constexpr int AttemptMs = 300;

static quint16 readHalfWord(const QByteArray &bytes, int offset)
{
    return qFromBigEndian<quint16>(bytes.constData() + offset);
}

CMemoryReader::CMemoryReader(const QHostAddress &camera, const QDeadlineTimer &deadline)
    : m_deadline(deadline)
{
    m_socket.connectToHost(camera, ControlPort);
}

CMemoryReader::~CMemoryReader() = default;

QByteArray CMemoryReader::read(quint64 address, qint64 size)
{
    QByteArray bytes;
    bytes.reserve(static_cast<int>(size) + BlockSize);
    while (bytes.size() < size) {
        const quint64 place = address + static_cast<quint64>(bytes.size());
        if (place + BlockSize > quint64(1) << 32)
            throw CFeatureError(CErrorText::tr("its feature description could not be read"),
                                CFeatureError::EReason::Refused);
        // Memory is read by whole words.
        const qint64 wanted = (std::min<qint64>(size - bytes.size(), BlockSize) + 3) / 4 * 4;
        bytes += readBlock(static_cast<quint32>(place), static_cast<quint16>(wanted));
    }
    bytes.truncate(static_cast<int>(size));
    return bytes;
}

QByteArray CMemoryReader::readBlock(quint32 address, quint16 size)
{
    QByteArray request(HeaderSize + 8, '\0');
    m_id = m_id == 0xFFFF ? 1 : m_id + 1; // 0 is no id
    qToBigEndian<quint16>(0x4201, request.data());
    qToBigEndian<quint16>(ReadMemory, request.data() + 2);
    qToBigEndian<quint16>(8, request.data() + 4);
    qToBigEndian<quint16>(m_id, request.data() + 6);
    qToBigEndian<quint32>(address, request.data() + HeaderSize);
    qToBigEndian<quint16>(size, request.data() + HeaderSize + 6);

    for (int attempt = 0; attempt < Attempts && !m_deadline.hasExpired(); ++attempt) {
        m_socket.write(request);
        const QByteArray answer = waitForAnswer(std::min(m_deadline, QDeadlineTimer(AttemptMs)));
        if (answer.isEmpty())
            continue;
        const quint16 status = readHalfWord(answer, 0);
        if (status == AccessDenied)
            throw CFeatureError(getInUseText(), CFeatureError::EReason::Refused);
        if (status != 0 || answer.size() != HeaderSize + 4 + size)
            throw CFeatureError(CErrorText::tr("its feature description could not be read"),
                                CFeatureError::EReason::Refused);
        return answer.mid(HeaderSize + 4);
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
        const QByteArray answer = m_socket.receiveDatagram(HeaderSize + 4 + BlockSize + 1).data();
        if (answer.size() < HeaderSize || readHalfWord(answer, 6) != m_id)
            continue;
        if (readHalfWord(answer, 2) == ReadMemoryAnswer)
            return answer;
        // The camera asks for patience; how much is ours to say.
        if (readHalfWord(answer, 2) == PendingAnswer)
            patience = m_deadline;
    }
    return {};
}

void checkFeatureDescription(const QHostAddress &camera, const QDeadlineTimer &deadline)
{
    CMemoryReader reader(camera, deadline);
    QByteArray url;
    for (const quint32 address : {FirstUrl, SecondUrl}) {
        if (url.isEmpty())
            url = reader.read(address, UrlSize).constData(); // up to the first NUL
    }
    const CDescriptionPlace place = readDescriptionPlace(url);
    CErrorText fault = place.fault;
    if (fault.isEmpty())
        fault = findDescriptionFault(reader.read(place.address, place.size), place.isPacked);
    if (!fault.isEmpty())
        throw CFeatureError(fault, CFeatureError::EReason::Refused);
}

} // namespace Viewer::Camera::GenICam
