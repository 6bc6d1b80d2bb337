#include "testframes.h"
#include "viewer/image/frameconverter.h"
#include "viewer/image/framevalues.h"
#include "viewer/image/pixelformat.h"

#include <QTest>

#include <cmath>
#include <limits>

Q_DECLARE_METATYPE(Viewer::Image::CFrame)

using namespace Viewer::Image;
using TestFrames::getSamples;
using TestFrames::getSmoothColor;
using TestFrames::makeFrame;

class CFrameConverterTest : public QObject
{
    Q_OBJECT

private slots:
    void convertsEveryFormat_data();
    void convertsEveryFormat();
    void marksSaturatedPixels_data() { addFormats(); }
    void marksSaturatedPixels();
    void refusesWhatIsNotThere_data();
    void refusesWhatIsNotThere();
    void sharesMemory();
    void countsEveryStepOfALargeImage();

private:
    static void addFormats();
};

static bool isColor(const QString &format)
{
    return !format.startsWith("Mono");
}

/// What is to be seen of a pixel, from 0 to 255; of a colour what the scene had, not the sensor.
static QRgb getExpected(const QString &format, int x, int y)
{
    if (isColor(format)) {
        const TestFrames::Color color = getSmoothColor(x, y);
        return qRgb(qRound(color[0] * 255), qRound(color[1] * 255), qRound(color[2] * 255));
    }
    const int gray
        = getSamples(format, x, y, getSmoothColor)[0] >> (TestFrames::getBits(format) - 8);
    return qRgb(gray, gray, gray);
}

/// Peak signal-to-noise ratio to the expected picture in dB.
static double computePsnr(const QString &format, const QImage &image)
{
    double squares = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb expected = getExpected(format, x, y);
            const QRgb pixel = image.pixel(x, y);
            squares += std::pow(qRed(pixel) - qRed(expected), 2)
                + std::pow(qGreen(pixel) - qGreen(expected), 2)
                + std::pow(qBlue(pixel) - qBlue(expected), 2);
        }
    }
    const double mean = squares / (3.0 * image.width() * image.height());
    return mean > 0 ? 10 * std::log10(255 * 255 / mean) : std::numeric_limits<double>::infinity();
}

void CFrameConverterTest::addFormats()
{
    QTest::addColumn<QString>("format");
    for (const QString &format : TestFrames::getFormatNames())
        QTest::newRow(qPrintable(format)) << format;
}

void CFrameConverterTest::convertsEveryFormat_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QSize>("size");
    for (const QString &format : TestFrames::getFormatNames()) {
        const int even = format.startsWith("YUV") ? 1 : 0;
        QTest::newRow(qPrintable(format)) << format << QSize(37 + even, 21);
        QTest::newRow(qPrintable(format + ", small")) << format << QSize(3 + even, 2);
    }
}

void CFrameConverterTest::convertsEveryFormat()
{
    QFETCH(QString, format);
    QFETCH(QSize, size);
    const CFrame frame = makeFrame(format, size.width(), size.height(), 5);
    CFrameConverter converter;
    const bool isExact = !format.startsWith("Bayer") && !format.startsWith("YUV");

    const CConvertedFrame shown = converter.toDisplay(frame);
    QCOMPARE(shown.fault.getEnglish(), QString());
    QCOMPARE(shown.image.format(),
             isColor(format) ? QImage::Format_RGB32 : QImage::Format_Grayscale8);
    QCOMPARE(shown.image.size(), size);
    const double psnr = computePsnr(format, shown.image);
    QVERIFY2(isExact ? std::isinf(psnr) : psnr >= 40, qPrintable(QString::number(psnr)));

    const QImage kept = converter.toFullDepth(frame).image;
    QCOMPARE(kept.size(), size);
    const bool isRaw = !isColor(format) || format.startsWith("Bayer");
    const int bits = TestFrames::getBits(format);
    if (!isRaw) {
        QCOMPARE(kept.format(), QImage::Format_RGB888);
        QVERIFY(isExact ? kept == shown.image.convertToFormat(QImage::Format_RGB888)
                        : computePsnr(format, kept) >= 40);
    } else {
        QCOMPARE(kept.format(), bits == 8 ? QImage::Format_Grayscale8 : QImage::Format_Grayscale16);
    }

    const int bins = 1 << bits;
    QVector<QVector<quint32>> counts(format.startsWith("Mono") ? 1 : 3, QVector<quint32>(bins));
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            QVector<int> samples = getSamples(format, x, y, getSmoothColor);
            if (format.startsWith(
                    "YUV")) { // U of the left pixel and V of the right one are for both
                samples[1] = getSamples(format, x / 2 * 2, y, getSmoothColor)[1];
                samples[2] = getSamples(format, x / 2 * 2 + 1, y, getSmoothColor)[2];
            }
            QCOMPARE(getPixel(frame, x, y), samples);
            if (isRaw && bits > 8) {
                const auto *line = reinterpret_cast<const quint16 *>(kept.constScanLine(y));
                QCOMPARE(int(line[x]), samples[0]);
            } else if (isRaw) {
                QCOMPARE(int(kept.constScanLine(y)[x]), samples[0]);
            }
            if (format.startsWith("Bayer")) {
                const QString colors = format.mid(5, 2);
                const bool isGreen = (colors.at(0) == 'G') == ((x + y) % 2 == 0);
                const bool isRedLine = colors.contains('R') == (y % 2 == 0);
                ++counts[isGreen ? 1 : isRedLine ? 0 : 2][samples[0]];
                continue;
            }
            ++counts[0][samples[0]];
            for (int i = 1; i < samples.size(); ++i) {
                if (!format.startsWith("YUV") || x % 2 == 0)
                    ++counts[i][samples[i]];
            }
        }
    }
    QCOMPARE(computeHistogram(frame, bins).counts, counts);
    QVERIFY(getPixel(frame, size.width(), 0).isEmpty());
    QVERIFY(getPixel(frame, 0, -1).isEmpty());
}

void CFrameConverterTest::marksSaturatedPixels()
{
    QFETCH(QString, format);
    const CFrame frame = makeFrame(format, 12, 10, 0, [](int x, int y) {
        return x == 5 && y == 4 ? TestFrames::Color{1, 1, 1} : TestFrames::Color{0.4, 0.4, 0.4};
    });
    CDisplayOptions options;
    options.saturationColor = qRgb(1, 2, 3);
    const QImage image = CFrameConverter().toDisplay(frame, options).image;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            QCOMPARE(image.pixel(x, y) == *options.saturationColor, x == 5 && y == 4);
    }
}

void CFrameConverterTest::refusesWhatIsNotThere_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<CFrame>("frame");
    QTest::addColumn<QString>("fault");
    const auto add = [](const char *name, const char *format, void (*spoil)(CFrame & frame),
                        const char *fault) {
        CFrame frame = makeFrame(format, 16, 4, 3);
        spoil(frame);
        QTest::newRow(name) << QString(format) << frame << QString(fault);
    };
    add(
        "nothing wrong", "Mono8", [](CFrame &) {}, "");
    add(
        "unknown format", "Mono8", [](CFrame &frame) { frame.pixelFormat = 0x8210ABC; },
        "the pixel format 0x08210abc is unknown");
    add(
        "no width", "Mono8", [](CFrame &frame) { frame.width = 0; },
        "an image of 0 x 4 pixels (Mono8) cannot be shown");
    add(
        "negative height", "RGB8", [](CFrame &frame) { frame.height = -1; },
        "an image of 16 x -1 pixels (RGB8) cannot be shown");
    add(
        "huge", "Mono12p", [](CFrame &frame) { frame.width = frame.height = INT_MAX; },
        "an image of 2147483647 x 2147483647 pixels (Mono12p) cannot be shown");
    add(
        "too many pixels", "BGR8",
        [](CFrame &frame) {
            frame.width = frame.height = 65535;
            frame.size = LLONG_MAX;
        },
        "an image of 65535 x 65535 pixels (BGR8) cannot be shown");
    add(
        "half a pair", "YUV422_8", [](CFrame &frame) { frame.width = 15; },
        "an image of 15 x 4 pixels (YUV422_8) cannot be shown");
    add(
        "negative padding", "BayerRG8", [](CFrame &frame) { frame.linePadding = -17; },
        "-17 bytes behind each line of an image are impossible");
    add(
        "huge padding", "BayerRG8", [](CFrame &frame) { frame.linePadding = INT_MAX; },
        "2147483647 bytes behind each line of an image are impossible");
    add(
        "one byte short", "Mono10p", [](CFrame &frame) { --frame.size; },
        "the image has 88 of the 89 bytes that 16 x 4 pixels (Mono10p) need");
    add(
        "padding too large", "Mono8", [](CFrame &frame) { ++frame.linePadding; },
        "the image has 73 of the 76 bytes that 16 x 4 pixels (Mono8) need");
    add(
        "negative size", "Mono8", [](CFrame &frame) { frame.size = LLONG_MIN; },
        "the image has -9223372036854775808 of the 73 bytes that 16 x 4 pixels (Mono8) need");
    add(
        "no data", "Mono8", [](CFrame &frame) { frame.data = nullptr; },
        "the image has 0 of the 73 bytes that 16 x 4 pixels (Mono8) need");
}

void CFrameConverterTest::refusesWhatIsNotThere()
{
    QFETCH(CFrame, frame);
    QFETCH(QString, fault);
    CFrameConverter converter;
    const bool isReadable = fault.isEmpty();
    for (const CConvertedFrame &result :
         {converter.toDisplay(frame), converter.toFullDepth(frame)}) {
        QCOMPARE(result.fault.getEnglish(), fault);
        QCOMPARE(result.image.isNull(), !isReadable);
    }
    QCOMPARE(getPixel(frame, 0, 0).isEmpty(), !isReadable);
    QCOMPARE(computeHistogram(frame, 16).counts.isEmpty(), !isReadable);
}

void CFrameConverterTest::sharesMemory()
{
    CFrame frame = makeFrame("Mono8", 16, 4, 3);
    CFrameConverter converter;
    QImage image = converter.toDisplay(frame).image;
    QCOMPARE(image.constBits(), frame.data);
    const std::weak_ptr<const void> memory = std::exchange(frame.memory, nullptr);
    QVERIFY(!memory.expired());
    QVERIFY(converter.toDisplay(frame).image.constBits() != frame.data); // the bytes may go
    image = {};
    QVERIFY(memory.expired());

    // What is not used any more is used again, and nothing else.
    frame = makeFrame("BayerRG8", 16, 4);
    const QImage first = converter.toDisplay(frame).image;
    QImage second = converter.toDisplay(frame).image;
    const uchar *bytes = second.constBits();
    QVERIFY(bytes != first.constBits());
    second = {};
    QCOMPARE(converter.toDisplay(frame).image.constBits(), bytes);
}

void CFrameConverterTest::countsEveryStepOfALargeImage()
{
    const std::vector<uchar> bytes(2048 * 1024, 255);
    CFrame frame = makeFrame("BayerGB8", 2, 2);
    frame.width = 2048;
    frame.height = 1024;
    frame.data = bytes.data();
    frame.size = static_cast<qint64>(bytes.size());
    const CHistogram histogram = computeHistogram(frame, 1000);
    QCOMPARE(histogram.step, 2);
    // Lines 0, 1, 4, 5, ... 1020, 1021: 256 of green and blue and as many of red and green.
    for (int color = 0; color < 3; ++color) {
        QCOMPARE(histogram.counts[color].size(), 256);
        QCOMPARE(histogram.counts[color][255], quint32(256 * 1024 * (color == 1 ? 2 : 1)));
    }
}

QTEST_GUILESS_MAIN(CFrameConverterTest)
#include "tst_frameconverter.moc"
