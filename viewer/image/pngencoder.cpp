#include "pngencoder.h"

#include <QtEndian>

#include <cstring>
#include <vector>
#include <zlib.h>

namespace Viewer::Image {

static void appendNumber(QByteArray &bytes, quint32 number)
{
    const quint32 bigEndian = qToBigEndian(number);
    bytes.append(reinterpret_cast<const char *>(&bigEndian), sizeof bigEndian);
}

static void appendChunk(QByteArray &file, const char *type, const QByteArray &content)
{
    appendNumber(file, static_cast<quint32>(content.size()));
    const int begin = file.size();
    file.append(type).append(content);
    appendNumber(
        file,
        static_cast<quint32>(crc32(0, reinterpret_cast<const Bytef *>(file.constData()) + begin,
                                   static_cast<uInt>(file.size() - begin))));
}

/// The line as PNG has it: the filter and, high bytes first, differences to the pixel on the left.
static void filterLine(const uchar *line, int size, int bytesPerPixel, bool hasWords,
                       uchar *filtered)
{
    constexpr uchar FILTER_SUB = 1;
    *filtered++ = FILTER_SUB;
    if (hasWords) {
        uchar left[2] = {0, 0};
        for (int i = 0; i < size; i += 2) {
            quint16 value = 0;
            std::memcpy(&value, line + i, sizeof value);
            const uchar bytes[2] = {static_cast<uchar>(value >> 8), static_cast<uchar>(value)};
            for (int k = 0; k < 2; ++k) {
                filtered[i + k] = static_cast<uchar>(bytes[k] - left[k]);
                left[k] = bytes[k];
            }
        }
        return;
    }
    std::memcpy(filtered, line, static_cast<size_t>(bytesPerPixel));
    for (int i = bytesPerPixel; i < size; ++i)
        filtered[i] = static_cast<uchar>(line[i] - line[i - bytesPerPixel]);
}

static QByteArray packLines(const QImage &image)
{
    const bool hasWords = image.format() == QImage::Format_Grayscale16;
    const int bytesPerPixel = image.depth() / 8;
    const int lineSize = image.width() * bytesPerPixel;
    z_stream stream = {};
    constexpr int WINDOW_BITS = 15;
    constexpr int MEMORY_LEVEL = 9;
    if (deflateInit2(&stream, Z_BEST_SPEED, Z_DEFLATED, WINDOW_BITS, MEMORY_LEVEL, Z_HUFFMAN_ONLY)
        != Z_OK)
        return {};
    const uLong bound = deflateBound(
        &stream, static_cast<uLong>(lineSize + 1) * static_cast<uLong>(image.height()));
    QByteArray packed(static_cast<int>(bound), Qt::Uninitialized);
    stream.next_out = reinterpret_cast<Bytef *>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    std::vector<uchar> line(static_cast<size_t>(lineSize) + 1);
    for (int y = 0; y < image.height(); ++y) {
        filterLine(image.constScanLine(y), lineSize, bytesPerPixel, hasWords, line.data());
        stream.next_in = line.data();
        stream.avail_in = static_cast<uInt>(line.size());
        // There is room for everything, so it takes all.
        deflate(&stream, y + 1 < image.height() ? Z_NO_FLUSH : Z_FINISH);
    }
    packed.truncate(static_cast<int>(stream.total_out));
    deflateEnd(&stream);
    return packed;
}

Text::CLibraryVersion getPngLibrary()
{
    return {QStringLiteral("zlib"), QStringLiteral(ZLIB_VERSION),
            QString::fromLatin1(zlibVersion())};
}

QByteArray encodePng(const QImage &image, const PngTexts &texts)
{
    const QByteArray packed = packLines(image);
    if (packed.isEmpty())
        return {};
    QByteArray header;
    appendNumber(header, static_cast<quint32>(image.width()));
    appendNumber(header, static_cast<quint32>(image.height()));
    constexpr char GRAY = 0;
    constexpr char TRUE_COLOR = 2;
    header.append(image.format() == QImage::Format_Grayscale16 ? char(16) : char(8));
    header.append(image.format() == QImage::Format_RGB888 ? TRUE_COLOR : GRAY);
    header.append(3, '\0'); // compression, filter method, interlacing: the only ones, none

    QByteArray file;
    file.reserve(packed.size() + 4096);
    file.append("\x89PNG\r\n\x1a\n", 8);
    appendChunk(file, "IHDR", header);
    for (const auto &[name, text] : texts) {
        // UTF-8, not packed, without language and translated name.
        appendChunk(file, "iTXt", name + QByteArray(5, '\0') + text.toUtf8());
    }
    appendChunk(file, "IDAT", packed);
    appendChunk(file, "IEND", {});
    return file;
}

} // namespace Viewer::Image
