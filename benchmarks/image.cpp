// What an image costs on its way to the screen and into a file, 1920 x 1200 pixels on one core: 60
// of them a second leave 16.7 ms for each. The scene is smooth and has the noise of a sensor, as
// what packs a picture depends on it.

#include "comparison.h"
#include "viewer/image/frame.h"
#include "viewer/image/frameconverter.h"
#include "viewer/image/pixelformat.h"
#include "viewer/image/pngencoder.h"

#include <QBuffer>
#include <QImageWriter>

#include <opencv2/imgproc.hpp>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <vector>

using namespace Viewer::Image;

static constexpr int WIDTH = 1920;
static constexpr int HEIGHT = 1200;

/// Samples of @p bits, each in two bytes or, up to eight bits, in one.
static CFrame makeFrame(const char *format, int bits)
{
    const int bytesPerSample = bits > 8 ? 2 : 1;
    auto bytes = std::make_shared<std::vector<uchar>>();
    const double maximum = (1 << bits) - 1;
    std::mt19937 random(1);
    std::normal_distribution<double> noise(0, maximum / 170);
    for (int y = 0; y < HEIGHT; ++y) {
        for (int x = 0; x < WIDTH; ++x) {
            const double scene = maximum * (0.5 + 0.35 * std::sin(x / 170.0) * std::cos(y / 130.0));
            const auto value = static_cast<int>(qBound(0.0, scene + noise(random), maximum));
            bytes->push_back(static_cast<uchar>(value));
            if (bytesPerSample == 2)
                bytes->push_back(static_cast<uchar>(value >> 8));
        }
    }
    CFrame frame;
    frame.data = bytes->data();
    frame.size = static_cast<qint64>(bytes->size());
    frame.memory = std::move(bytes);
    frame.pixelFormat = CPixelFormat::find(QLatin1String(format))->code;
    frame.width = WIDTH;
    frame.height = HEIGHT;
    return frame;
}

/// Milliseconds for one run of @p action, as the mean of some.
static double measure(const std::function<void()> &action)
{
    constexpr int RUNS = 8;
    return Benchmark::measureThreadMs([&action] {
               for (int run = 0; run < RUNS; ++run)
                   action();
           })
        / RUNS;
}

static void compareMosaic()
{
    const CFrame frame = makeFrame("BayerRG8", 8);
    CFrameConverter converter;
    const cv::Mat mosaic(HEIGHT, WIDTH, CV_8UC1, const_cast<uchar *>(frame.data));
    cv::Mat colors(HEIGHT, WIDTH, CV_8UC4);
    Benchmark::compare(
        "BayerRG8 to the screen / OpenCV alone, ms", Benchmark::atMost(1.15),
        [&] { return measure([&] { static_cast<void>(converter.toDisplay(frame)); }); },
        [&] { return measure([&] { cv::cvtColor(mosaic, colors, cv::COLOR_BayerRGGB2BGRA); }); });
}

static void compareUnpacking()
{
    // What the samples are costs nothing here.
    CFrame frame = makeFrame("Mono12", 12);
    frame.pixelFormat = CPixelFormat::find(QLatin1String("Mono12Packed"))->code;
    frame.size = WIDTH * HEIGHT * 3 / 2;
    CFrameConverter converter;
    std::vector<uchar> copy(static_cast<size_t>(frame.size));
    const auto copyBytes
        = [&] { return measure([&] { std::memcpy(copy.data(), frame.data, copy.size()); }); };
    Benchmark::compare(
        "Mono12Packed to the screen / memcpy, ms", Benchmark::atMost(12),
        [&] { return measure([&] { static_cast<void>(converter.toDisplay(frame)); }); }, copyBytes);
    Benchmark::compare(
        "Mono12Packed at full depth / memcpy, ms", Benchmark::atMost(18),
        [&] { return measure([&] { static_cast<void>(converter.toFullDepth(frame)); }); },
        copyBytes);
}

static void compareWriting(const char *format, int bits)
{
    const CFrame frame = makeFrame(format, bits);
    CFrameConverter converter;
    QByteArray ours;
    QByteArray theirs;
    Benchmark::compare(
        qPrintable(QStringLiteral("%1 to PNG / QImageWriter, ms").arg(QLatin1String(format))),
        Benchmark::atMost(0.5),
        [&] {
            return Benchmark::measureThreadMs(
                [&] { ours = encodePng(converter.toFullDepth(frame).image, {}); });
        },
        [&] {
            return Benchmark::measureThreadMs([&] {
                theirs.clear();
                QBuffer buffer(&theirs);
                buffer.open(QIODevice::WriteOnly);
                QImageWriter writer(&buffer, "png");
                constexpr int FASTEST_THAT_PACKS = 89;
                writer.setQuality(FASTEST_THAT_PACKS);
                writer.write(converter.toFullDepth(frame).image);
            });
        },
        7);
    std::printf("  %lld bytes and %lld bytes\n", static_cast<long long>(ours.size()),
                static_cast<long long>(theirs.size()));
}

int main()
{
    Benchmark::printHeader();
    compareMosaic();
    compareUnpacking();
    compareWriting("Mono8", 8);
    compareWriting("Mono12", 12);
    return EXIT_SUCCESS;
}
