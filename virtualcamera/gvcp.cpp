#include "gvcp.h"

#include <QtEndian>

#include <cstring>
#include <limits>

namespace VirtualCamera::Gvcp {

static constexpr quint8 KEY = 0x42;
static constexpr quint8 ACKNOWLEDGE_FLAG = 0x01;

static quint16 readHalfWord(const QByteArray &bytes, int offset)
{
    return qFromBigEndian<quint16>(bytes.constData() + offset);
}

std::optional<CRequest> parseRequest(const QByteArray &datagram)
{
    if (datagram.size() < HEADER_SIZE || static_cast<quint8>(datagram.at(0)) != KEY)
        return {};

    CRequest request;
    request.wantsAnswer = (static_cast<quint8>(datagram.at(1)) & ACKNOWLEDGE_FLAG) != 0;
    request.command = readHalfWord(datagram, 2);
    request.id = readHalfWord(datagram, 6);
    request.payload = datagram.mid(HEADER_SIZE);
    request.isComplete = request.id != 0 && request.payload.size() <= MAXIMUM_PAYLOAD
        && request.payload.size() == readHalfWord(datagram, 4);
    return request;
}

std::optional<CResendRequest> parseResendRequest(const QByteArray &payload)
{
    if (payload.size() != 12 || readHalfWord(payload, 0) != 0)
        return {};
    return CResendRequest{readHalfWord(payload, 2), readWord(payload, 4) & 0xffffff,
                          readWord(payload, 8) & 0xffffff};
}

QByteArray makeOrder(ECommand command)
{
    QByteArray order;
    appendHalfWord(order, KEY << 8);
    appendHalfWord(order, static_cast<quint16>(command));
    appendHalfWord(order, 0);
    appendHalfWord(order, 1);
    return order;
}

QByteArray makeAnswer(EStatus status, quint16 command, quint16 id, const QByteArray &payload)
{
    QByteArray answer;
    answer.reserve(HEADER_SIZE + payload.size());
    appendHalfWord(answer, static_cast<quint16>(status));
    // Each command is followed by its acknowledge.
    appendHalfWord(answer, static_cast<quint16>(command + 1));
    appendHalfWord(answer, static_cast<quint16>(payload.size()));
    appendHalfWord(answer, id);
    return answer + payload;
}

quint32 readWord(const QByteArray &bytes, int offset)
{
    return qFromBigEndian<quint32>(bytes.constData() + offset);
}

void appendWord(QByteArray &bytes, quint32 word)
{
    word = qToBigEndian(word);
    bytes.append(reinterpret_cast<const char *>(&word), sizeof word);
}

void appendHalfWord(QByteArray &bytes, quint16 word)
{
    word = qToBigEndian(word);
    bytes.append(reinterpret_cast<const char *>(&word), sizeof word);
}

float toFloat(quint32 word)
{
    float number = 0;
    std::memcpy(&number, &word, sizeof number);
    return number;
}

quint32 toWord(float number)
{
    static_assert(std::numeric_limits<float>::is_iec559);
    quint32 word = 0;
    std::memcpy(&word, &number, sizeof word);
    return word;
}

} // namespace VirtualCamera::Gvcp
