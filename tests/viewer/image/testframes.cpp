#include "testframes.h"

#include "viewer/image/pixelformat.h"

#include <QRegularExpression>
#include <QVector>

#include <cmath>
#include <vector>

namespace TestFrames {

Color getSmoothColor(int x, int y)
{
    return {0.5 + 0.4 * std::sin(x / 60.0), 0.5 + 0.4 * std::cos(y / 70.0),
            0.5 - 0.4 * std::sin((x + y) / 80.0)};
}

QStringList getFormatNames()
{
    QStringList names{"Mono14", "Mono16", "RGB8", "BGR8", "YUV422_8", "YUV422_8_UYVY"};
    const QStringList depths{"8", "10", "12", "10Packed", "12Packed", "10p", "12p"};
    for (const char *color : {"Mono", "BayerRG", "BayerGR", "BayerGB", "BayerBG"}) {
        for (const QString &depth : depths)
            names.append(color + depth);
        if (QString(color) != "Mono")
            names.append(color + QString("16"));
    }
    return names;
}

int getBits(const QString &format)
{
    const QString depth = format.startsWith("YUV") ? "8" : format;
    static const QRegularExpression number("[0-9]+");
    return number.match(depth).captured().toInt();
}

QVector<int> getSamples(const QString &format, int x, int y, const Picture &picture)
{
    const Color color = picture(x, y);
    const double maximum = (1 << getBits(format)) - 1;
    const auto round = [](double value) { return static_cast<int>(std::lround(value)); };
    if (format.startsWith("Mono"))
        return {round(color[1] * maximum)};
    if (format.startsWith("Bayer")) {
        const QString pattern = format.mid(5, 2);
        // The second line of RG is GB, of GR BG, of GB RG, of BG GR.
        const QString lines = pattern == "RG" ? "RGGB"
            : pattern == "GR"                 ? "GRBG"
            : pattern == "GB"                 ? "GBRG"
                                              : "BGGR";
        const auto index = QString("RGB").indexOf(lines.at(y % 2 * 2 + x % 2));
        return {round(color[static_cast<size_t>(index)] * maximum)};
    }
    if (!format.startsWith("YUV"))
        return {round(color[0] * 255), round(color[1] * 255), round(color[2] * 255)};
    const double luma = 0.299 * color[0] + 0.587 * color[1] + 0.114 * color[2];
    return {round(luma * 255), round((color[2] - luma) / 1.772 * 255 + 128),
            round((color[0] - luma) / 1.402 * 255 + 128)};
}

static std::vector<uchar> packLine(const QString &format, const QVector<int> &samples)
{
    const int bits = getBits(format);
    std::vector<bool> line;
    const auto append = [&line](int value, int from, int count) {
        for (int bit = from; bit < from + count; ++bit)
            line.push_back(value >> bit & 1);
    };
    for (int i = 0; i < samples.size(); ++i) {
        if (format.endsWith("Packed")) {
            const int low = bits - 8;
            const int next = i + 1 < samples.size() ? samples[i + 1] : 0;
            if (i % 2 == 0) {
                append(samples[i], low, 8);
                append(samples[i], 0, low);
                append(0, 0, 4 - low);
                append(next, 0, low);
                append(0, 0, 4 - low);
            } else {
                append(samples[i], low, 8);
            }
        } else {
            append(samples[i], 0, bits);
            if (!format.endsWith("p"))
                append(0, 0, (16 - bits) % 8);
        }
    }
    std::vector<uchar> bytes((line.size() + 7) / 8);
    for (size_t bit = 0; bit < line.size(); ++bit)
        bytes[bit / 8] = static_cast<uchar>(bytes[bit / 8] | line[bit] << bit % 8);
    return bytes;
}

Viewer::Image::CFrame makeFrame(const QString &format, int width, int height, int linePadding,
                                const Picture &picture)
{
    auto bytes = std::make_shared<std::vector<uchar>>();
    for (int y = 0; y < height; ++y) {
        QVector<int> samples;
        for (int x = 0; x < width; ++x) {
            QVector<int> pixel = getSamples(format, x, y, picture);
            if (format == "BGR8")
                std::swap(pixel[0], pixel[2]);
            if (format == "YUV422_8")
                pixel = {pixel[0], pixel[1 + x % 2]};
            if (format == "YUV422_8_UYVY")
                pixel = {pixel[1 + x % 2], pixel[0]};
            samples += pixel;
        }
        const std::vector<uchar> line = packLine(format, samples);
        bytes->insert(bytes->end(), line.begin(), line.end());
        if (y + 1 < height)
            bytes->insert(bytes->end(), static_cast<size_t>(linePadding), 0xee);
    }
    bytes->shrink_to_fit(); // so that a reader behind the end is found
    Viewer::Image::CFrame frame;
    frame.data = bytes->data();
    frame.size = static_cast<qint64>(bytes->size());
    frame.memory = bytes;
    frame.pixelFormat = Viewer::Image::CPixelFormat::find(format)->code;
    frame.width = width;
    frame.height = height;
    frame.linePadding = linePadding;
    frame.number = 42;
    frame.timestamp = 1234567890123;
    return frame;
}

} // namespace TestFrames
