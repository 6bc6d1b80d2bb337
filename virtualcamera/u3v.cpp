#include "u3v.h"

#include <QtEndian>

namespace VirtualCamera::U3v {

// Letters of the protocol's name, and which part of it.
static constexpr quint32 CONTROL_MAGIC = 0x43563355;
static constexpr quint32 LEADER_MAGIC = 0x4C563355;
static constexpr quint32 TRAILER_MAGIC = 0x54563355;

static constexpr quint16 ANSWER_WANTED = 0x4000;
static constexpr quint16 IMAGE = 0x0001;

template <typename Number>
static Number read(const QByteArray &bytes, int offset)
{
    return qFromLittleEndian<Number>(bytes.constData() + offset);
}

template <typename Number>
static void append(QByteArray &bytes, Number number)
{
    char target[sizeof number];
    qToLittleEndian(number, target);
    bytes.append(target, sizeof number);
}

std::optional<CRequest> parseRequest(const QByteArray &transfer)
{
    if (transfer.size() < HEADER_SIZE || read<quint32>(transfer, 0) != CONTROL_MAGIC)
        return {};
    CRequest request;
    request.wantsAnswer = (read<quint16>(transfer, 4) & ANSWER_WANTED) != 0;
    request.command = read<quint16>(transfer, 6);
    request.id = read<quint16>(transfer, 10);
    request.payload = transfer.mid(HEADER_SIZE);
    request.isComplete = request.payload.size() == read<quint16>(transfer, 8)
        && transfer.size() <= LONGEST_TRANSFER;
    return request;
}

QByteArray makeAnswer(Gvcp::EStatus status, quint16 command, quint16 id, const QByteArray &payload)
{
    QByteArray answer;
    append(answer, CONTROL_MAGIC);
    append(answer, static_cast<quint16>(status));
    append(answer, static_cast<quint16>(command + 1));
    append(answer, static_cast<quint16>(payload.size()));
    append(answer, id);
    return answer + payload;
}

QByteArray makeHalfWord(quint16 number)
{
    QByteArray bytes;
    append(bytes, quint16(0));
    append(bytes, number);
    return bytes;
}

QByteArray makeLeader(quint64 block, std::chrono::nanoseconds time, const CPixelFormat &format,
                      const QRect &region)
{
    QByteArray leader;
    append(leader, LEADER_MAGIC);
    append(leader, quint16(0));
    append(leader, quint16(LEADER_SIZE));
    append(leader, block);
    append(leader, quint16(0));
    append(leader, IMAGE);
    append(leader, static_cast<quint64>(time.count()));
    for (const quint32 word :
         {format.code, static_cast<quint32>(region.width()), static_cast<quint32>(region.height()),
          static_cast<quint32>(region.x()), static_cast<quint32>(region.y()), 0U})
        append(leader, word);
    return leader;
}

QByteArray makeTrailer(quint64 block, quint64 payloadSize, int rows)
{
    QByteArray trailer;
    append(trailer, TRAILER_MAGIC);
    append(trailer, quint16(0));
    append(trailer, quint16(TRAILER_SIZE));
    append(trailer, block);
    append(trailer, quint32(0)); // all is well
    append(trailer, payloadSize);
    append(trailer, static_cast<quint32>(rows));
    return trailer;
}

} // namespace VirtualCamera::U3v
