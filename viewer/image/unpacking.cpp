#include "unpacking.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace Viewer::Image {

using EPacking = CPixelFormat::EPacking;

static int readLsbSample(const uchar *line, int bits, int index)
{
    const qint64 bit = qint64(bits) * index;
    const uchar *bytes = line + bit / 8;
    // With 9 to 12 bits at an even place a sample always has bits in two bytes, never in three.
    return (bytes[0] | bytes[1] << 8) >> (bit % 8) & ((1 << bits) - 1);
}

int readSample(EPacking packing, const uchar *line, int index)
{
    const uchar *group = line + qint64(index) / 2 * 3;
    switch (packing) {
    case EPacking::Bytes:
        return line[index];
    case EPacking::Words:
        return line[2 * qint64(index)] | line[2 * qint64(index) + 1] << 8;
    case EPacking::GigE10:
        return index % 2 == 0 ? group[0] << 2 | (group[1] & 3)
                              : group[2] << 2 | (group[1] >> 4 & 3);
    case EPacking::GigE12:
        return index % 2 == 0 ? group[0] << 4 | (group[1] & 15) : group[2] << 4 | group[1] >> 4;
    case EPacking::Lsb10:
        return readLsbSample(line, 10, index);
    case EPacking::Lsb12:
        return readLsbSample(line, 12, index);
    }
    return 0;
}

void unpackLine(EPacking packing, const uchar *line, int count, quint16 *values)
{
    int done = 0; // by the loops over whole groups
    switch (packing) {
    case EPacking::Bytes:
        std::copy(line, line + count, values);
        return;
    case EPacking::Words:
        qFromLittleEndian<quint16>(line, count, values);
        return;
    case EPacking::GigE10:
        for (const uchar *group = line; done + 2 <= count; done += 2, group += 3) {
            values[done] = static_cast<quint16>(group[0] << 2 | (group[1] & 3));
            values[done + 1] = static_cast<quint16>(group[2] << 2 | (group[1] >> 4 & 3));
        }
        break;
    case EPacking::GigE12:
        for (const uchar *group = line; done + 2 <= count; done += 2, group += 3) {
            values[done] = static_cast<quint16>(group[0] << 4 | (group[1] & 15));
            values[done + 1] = static_cast<quint16>(group[2] << 4 | group[1] >> 4);
        }
        break;
    case EPacking::Lsb10:
        for (const uchar *group = line; done + 4 <= count; done += 4, group += 5) {
            values[done] = static_cast<quint16>(group[0] | (group[1] & 3) << 8);
            values[done + 1] = static_cast<quint16>(group[1] >> 2 | (group[2] & 15) << 6);
            values[done + 2] = static_cast<quint16>(group[2] >> 4 | (group[3] & 63) << 4);
            values[done + 3] = static_cast<quint16>(group[3] >> 6 | group[4] << 2);
        }
        break;
    case EPacking::Lsb12:
        for (const uchar *group = line; done + 2 <= count; done += 2, group += 3) {
            values[done] = static_cast<quint16>(group[0] | (group[1] & 15) << 8);
            values[done + 1] = static_cast<quint16>(group[1] >> 4 | group[2] << 4);
        }
        break;
    }
    for (; done < count; ++done)
        values[done] = static_cast<quint16>(readSample(packing, line, done));
}

void unpackLineToBytes(const CPixelFormat &format, const uchar *line, int count, uchar *values)
{
    const int shift = format.significantBits - 8;
    int done = 0;
    switch (format.packing) {
    case EPacking::Bytes:
        std::memcpy(values, line, static_cast<size_t>(count));
        return;
    case EPacking::Words: {
        const int maximum = format.getMaximum();
        for (; done < count; ++done) {
            const int value = line[2 * done] | line[2 * done + 1] << 8;
            values[done] = static_cast<uchar>(std::min(value, maximum) >> shift);
        }
        return;
    }
    case EPacking::GigE10:
    case EPacking::GigE12:
        for (const uchar *group = line; done + 2 <= count; done += 2, group += 3) {
            values[done] = group[0];
            values[done + 1] = group[2];
        }
        break;
    case EPacking::Lsb10:
        for (const uchar *group = line; done + 4 <= count; done += 4, group += 5) {
            values[done] = static_cast<uchar>(group[0] >> 2 | group[1] << 6);
            values[done + 1] = static_cast<uchar>(group[1] >> 4 | group[2] << 4);
            values[done + 2] = static_cast<uchar>(group[2] >> 6 | group[3] << 2);
            values[done + 3] = group[4];
        }
        break;
    case EPacking::Lsb12:
        for (const uchar *group = line; done + 2 <= count; done += 2, group += 3) {
            values[done] = static_cast<uchar>(group[0] >> 4 | group[1] << 4);
            values[done + 1] = group[2];
        }
        break;
    }
    for (; done < count; ++done)
        values[done] = static_cast<uchar>(readSample(format.packing, line, done) >> shift);
}

} // namespace Viewer::Image
