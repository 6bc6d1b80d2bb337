#include "gvsp.h"

#include <QtEndian>

namespace VirtualCamera::Gvsp {

static constexpr quint32 IMAGE = 0x0001;

static void writeWords(uchar *target, std::initializer_list<quint32> words)
{
    for (const quint32 word : words) {
        qToBigEndian(word, target);
        target += sizeof word;
    }
}

void writeHeader(uchar *target, EStatus status, quint16 block, EContent content, quint32 packet)
{
    writeWords(target,
               {static_cast<quint32>(status) << 16 | block,
                static_cast<quint32>(content) << 24 | (packet & 0xffffff)});
}

void writeLeader(uchar *target, std::chrono::nanoseconds time, const CPixelFormat &format,
                 const QRect &region)
{
    const auto ticks = static_cast<quint64>(time.count());
    writeWords(target,
               {IMAGE, static_cast<quint32>(ticks >> 32), static_cast<quint32>(ticks), format.code,
                static_cast<quint32>(region.width()), static_cast<quint32>(region.height()),
                static_cast<quint32>(region.x()), static_cast<quint32>(region.y()), 0});
}

void writeTrailer(uchar *target, int rows)
{
    writeWords(target, {IMAGE, static_cast<quint32>(rows)});
}

} // namespace VirtualCamera::Gvsp
