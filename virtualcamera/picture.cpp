#include "picture.h"

#include <algorithm>
#include <cstring>

namespace VirtualCamera {

static_assert(PATTERN_ROW_SHIFT % 4 == 0 && PATTERN_FRAME_SHIFT % 4 == 0,
              "Each shift of a row begins with a byte of its own");

static void appendBytes(QByteArray &bytes, std::initializer_list<quint32> values)
{
    for (const quint32 value : values)
        bytes.append(static_cast<char>(value & 0xff));
}

// Appends two pixels that stand side by side.
static void appendPacked(QByteArray &bytes, int depth, quint32 left, quint32 right)
{
    const int rest = depth - 8;
    const quint32 mask = (1U << rest) - 1;
    appendBytes(bytes, {left >> rest, (left & mask) | (right & mask) << 4, right >> rest});
}

static void appendBitStream(QByteArray &bytes, int depth, const std::array<CPixel, 4> &pixels)
{
    quint64 bits = 0;
    for (int i = 3; i >= 0; --i)
        bits = bits << depth | pixels[static_cast<std::size_t>(i)][0];
    for (int i = 0; i < depth / 2; ++i)
        bytes.append(static_cast<char>(bits >> 8 * i & 0xff));
}

static void appendWhole(QByteArray &bytes, const CPixelFormat &format, const CPixel &pixel)
{
    if (format.colours == EColours::Rgb)
        appendBytes(bytes, {pixel[0], pixel[1], pixel[2]});
    else if (format.depth == 8)
        appendBytes(bytes, {pixel[0]});
    else
        appendBytes(bytes, {pixel[0], static_cast<quint32>(pixel[0]) >> 8});
}

// Appends four pixels that stand side by side: so many fill whole bytes in every format.
static void appendPixels(QByteArray &bytes, const CPixelFormat &format,
                         const std::array<CPixel, 4> &pixels)
{
    if (format.layout == ELayout::Stream)
        return appendBitStream(bytes, format.depth, pixels);
    for (std::size_t i = 0; i < pixels.size(); i += 2) {
        const CPixel &left = pixels[i];
        const CPixel &right = pixels[i + 1];
        switch (format.layout) {
        case ELayout::Whole:
            appendWhole(bytes, format, left);
            appendWhole(bytes, format, right);
            break;
        case ELayout::Packed:
            appendPacked(bytes, format.depth, left[0], right[0]);
            break;
        case ELayout::Bgr:
            appendBytes(bytes, {left[2], left[1], left[0], right[2], right[1], right[0]});
            break;
        case ELayout::Uyvy:
            appendBytes(bytes, {left[1], left[0], left[2], right[0]});
            break;
        case ELayout::Yuyv:
            appendBytes(bytes, {left[0], left[1], right[0], left[2]});
            break;
        case ELayout::Stream:
            break;
        }
    }
}

CPicture::CPicture(const CPixelFormat &format, const QRect &region, ETestPattern pattern)
    : m_format(format)
    , m_region(region)
    , m_rowSize(region.width() * format.getPixelSize() / 8)
{
    for (int y = 0; y < 2; ++y) {
        QByteArray &tape = m_tapes[static_cast<std::size_t>(y)];
        tape.reserve((PATTERN_PERIOD + region.width()) * format.getPixelSize() / 8);
        for (int x = 0; x < PATTERN_PERIOD + region.width(); x += 4) {
            const auto getPixel = [&](int i) { return computePixel(0, x + i, y, format, pattern); };
            appendPixels(tape, format, {getPixel(0), getPixel(1), getPixel(2), getPixel(3)});
        }
    }
}

void CPicture::copy(quint32 frame, int offset, int size, uchar *target) const
{
    while (size > 0) {
        const int y = m_region.y() + offset / m_rowSize;
        const int inRow = offset % m_rowSize;
        const int length = std::min(size, m_rowSize - inRow);
        // The tape of odd rows is that of row 1.
        const qint64 place = m_region.x() + static_cast<qint64>(y - y % 2) * PATTERN_ROW_SHIFT
            + static_cast<qint64>(frame) * PATTERN_FRAME_SHIFT;
        const int start = static_cast<int>(place % PATTERN_PERIOD) * m_format.getPixelSize() / 8;
        const QByteArray &tape = m_tapes[static_cast<std::size_t>(y % 2)];
        std::memcpy(target, tape.constData() + start + inRow, static_cast<std::size_t>(length));
        offset += length;
        size -= length;
        target += length;
    }
}

} // namespace VirtualCamera
