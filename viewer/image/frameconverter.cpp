#include "frameconverter.h"

#include "frame.h"
#include "framelayout.h"
#include "pixelformat.h"
#include "unpacking.h"

#include <opencv2/core/utility.hpp>
#include <opencv2/core/version.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>

namespace Viewer::Image {

using Text::CErrorText;
using EKind = CPixelFormat::EKind;
using EPacking = CPixelFormat::EPacking;
using EPattern = CPixelFormat::EPattern;

/// @p bytes for OpenCV, which reads them only, whatever its types say.
static cv::Mat toMatrix(const uchar *bytes, int width, int height, int type, qint64 stride)
{
    return {height, width, type, const_cast<uchar *>(bytes), static_cast<size_t>(stride)};
}

static cv::Mat toMatrix(QImage &image)
{
    const int type = image.format() == QImage::Format_RGB32 ? CV_8UC4 : CV_8UC3;
    return {image.height(), image.width(), type, image.bits(),
            static_cast<size_t>(image.bytesPerLine())};
}

/// The colours of RGB32 in memory are blue, green, red, and 255.
static int getMosaicCode(EPattern pattern)
{
    switch (pattern) {
    case EPattern::None:
    case EPattern::RG:
        break;
    case EPattern::GR:
        return cv::COLOR_BayerGRBG2BGRA;
    case EPattern::GB:
        return cv::COLOR_BayerGBRG2BGRA;
    case EPattern::BG:
        return cv::COLOR_BayerBGGR2BGRA;
    }
    return cv::COLOR_BayerRGGB2BGRA;
}

static void convertMosaic(const cv::Mat &mosaic, cv::Mat &colors, int code)
{
    // OpenCV leaves small pictures black. Mirrored at its edges, a mosaic goes on as it is.
    constexpr int SMALL = 8;
    constexpr int MARGIN = 4;
    if (mosaic.rows >= SMALL && mosaic.cols >= SMALL) {
        cv::cvtColor(mosaic, colors, code);
        return;
    }
    cv::Mat wide;
    cv::copyMakeBorder(mosaic, wide, MARGIN, MARGIN, MARGIN, MARGIN, cv::BORDER_REFLECT_101);
    cv::Mat wideColors;
    cv::cvtColor(wide, wideColors, code);
    wideColors(cv::Rect(MARGIN, MARGIN, mosaic.cols, mosaic.rows)).copyTo(colors);
}

/// Luma, red and blue difference of each pixel of a line, in the order that OpenCV has.
static void spreadYuv(EKind kind, const uchar *line, int width, uchar *pixels)
{
    const int luma = kind == EKind::Uyvy ? 1 : 0;
    const int chroma = 1 - luma;
    for (int x = 0; x < width; x += 2, line += 4) {
        for (int pixel = 0; pixel < 2; ++pixel, pixels += 3) {
            pixels[0] = line[luma + 2 * pixel];
            pixels[1] = line[chroma + 2];
            pixels[2] = line[chroma];
        }
    }
}

/// Paints the saturated pixels of line @p y; @p samples has room for a line.
static void markLine(const CFrame &frame, const CFrameLayout &layout, int y,
                     std::vector<quint16> &samples, QRgb color, QRgb *pixels)
{
    const CPixelFormat &format = layout.getFormat();
    const uchar *line = layout.getLine(y);
    constexpr uchar FULL = 255;
    switch (format.kind) {
    case EKind::Mono:
    case EKind::Bayer:
        unpackLine(format.packing, line, frame.width, samples.data());
        for (int x = 0; x < frame.width; ++x) {
            if (samples[static_cast<size_t>(x)] >= format.getMaximum())
                pixels[x] = color;
        }
        break;
    case EKind::Rgb:
    case EKind::Bgr:
        for (int x = 0; x < frame.width; ++x, line += 3) {
            if (line[0] == FULL || line[1] == FULL || line[2] == FULL)
                pixels[x] = color;
        }
        break;
    case EKind::Uyvy:
        ++line;
        [[fallthrough]];
    case EKind::Yuyv:
        for (int x = 0; x < frame.width; ++x) {
            if (line[2 * x] == FULL)
                pixels[x] = color;
        }
        break;
    }
}

static CConvertedFrame toResult(QImage image)
{
    if (image.isNull())
        return {{}, CErrorText::tr("out of memory")};
    return {std::move(image), {}};
}

Text::CLibraryVersion CFrameConverter::getLibrary()
{
    return {QStringLiteral("OpenCV"), QStringLiteral(CV_VERSION),
            QString::fromStdString(cv::getVersionString())};
}

CFrameConverter::CFrameConverter()
{
    [[maybe_unused]] static const bool ONE_CORE = [] {
        cv::setNumThreads(1);
        return true;
    }();
}

CConvertedFrame CFrameConverter::toDisplay(const CFrame &frame, const CDisplayOptions &options)
{
    const CFrameLayout layout(frame);
    if (!layout.getFault().isEmpty())
        return {{}, layout.getFault()};
    const CPixelFormat &format = layout.getFormat();
    const bool isMono = format.kind == EKind::Mono;
    if (isMono && !options.saturationColor) {
        return toResult(format.packing == EPacking::Bytes
                            ? wrapFrame(frame, layout.getStride(), QImage::Format_Grayscale8)
                            : makeGray(frame, layout));
    }
    QImage image = makeColor(frame, layout, QImage::Format_RGB32);
    if (image.isNull() || !options.saturationColor)
        return toResult(std::move(image));
    std::vector<quint16> samples(static_cast<size_t>(frame.width));
    for (int y = 0; y < frame.height; ++y) {
        markLine(frame, layout, y, samples, *options.saturationColor,
                 reinterpret_cast<QRgb *>(image.scanLine(y)));
    }
    return toResult(std::move(image));
}

CConvertedFrame CFrameConverter::toFullDepth(const CFrame &frame)
{
    const CFrameLayout layout(frame);
    if (!layout.getFault().isEmpty())
        return {{}, layout.getFault()};
    const CPixelFormat &format = layout.getFormat();
    if (format.kind == EKind::Rgb)
        return toResult(wrapFrame(frame, layout.getStride(), QImage::Format_RGB888));
    if (format.kind != EKind::Mono && format.kind != EKind::Bayer)
        return toResult(makeColor(frame, layout, QImage::Format_RGB888));
    if (format.packing == EPacking::Bytes)
        return toResult(wrapFrame(frame, layout.getStride(), QImage::Format_Grayscale8));
    QImage image = makeImage(frame, QImage::Format_Grayscale16);
    for (int y = 0; y < image.height(); ++y) {
        unpackLine(format.packing, layout.getLine(y), frame.width,
                   reinterpret_cast<quint16 *>(image.scanLine(y)));
    }
    return toResult(std::move(image));
}

QImage CFrameConverter::makeImage(const CFrame &frame, QImage::Format format)
{
    return m_memory.makeImage(frame.width, frame.height, format);
}

QImage CFrameConverter::makeGray(const CFrame &frame, const CFrameLayout &layout)
{
    QImage image = makeImage(frame, QImage::Format_Grayscale8);
    for (int y = 0; y < image.height(); ++y)
        unpackLineToBytes(layout.getFormat(), layout.getLine(y), frame.width, image.scanLine(y));
    return image;
}

QImage CFrameConverter::makeColor(const CFrame &frame, const CFrameLayout &layout,
                                  QImage::Format format)
{
    QImage image = makeImage(frame, format);
    if (image.isNull())
        return image;
    const CPixelFormat &pixelFormat = layout.getFormat();
    const EKind kind = pixelFormat.kind;
    const bool isRgb32 = format == QImage::Format_RGB32;
    const bool isYuv = kind == EKind::Uyvy || kind == EKind::Yuyv;
    const int channels = isYuv || kind == EKind::Rgb || kind == EKind::Bgr ? 3 : 1;
    const uchar *samples = frame.data;
    qint64 stride = layout.getStride();
    if (isYuv || pixelFormat.packing != EPacking::Bytes) {
        stride = qint64(frame.width) * channels;
        m_samples.resize(static_cast<size_t>(stride * frame.height));
        samples = m_samples.data();
        for (int y = 0; y < frame.height; ++y) {
            uchar *line = m_samples.data() + stride * y;
            if (isYuv)
                spreadYuv(kind, layout.getLine(y), frame.width, line);
            else
                unpackLineToBytes(pixelFormat, layout.getLine(y), frame.width, line);
        }
    }
    const cv::Mat from
        = toMatrix(samples, frame.width, frame.height, channels == 3 ? CV_8UC3 : CV_8UC1, stride);
    cv::Mat to = toMatrix(image);
    switch (kind) {
    case EKind::Mono:
        cv::cvtColor(from, to, cv::COLOR_GRAY2BGRA);
        break;
    case EKind::Bayer:
        convertMosaic(from, to, getMosaicCode(pixelFormat.pattern));
        break;
    case EKind::Rgb:
        cv::cvtColor(from, to, cv::COLOR_RGB2BGRA);
        break;
    case EKind::Bgr:
        cv::cvtColor(from, to, isRgb32 ? cv::COLOR_BGR2BGRA : cv::COLOR_BGR2RGB);
        break;
    case EKind::Uyvy:
    case EKind::Yuyv:
        // Cameras use all 256 values of the luma, video codes only 220 of them.
        if (isRgb32)
            cv::cvtColor(from, to, cv::COLOR_YCrCb2BGR, 4);
        else
            cv::cvtColor(from, to, cv::COLOR_YCrCb2RGB, 3);
        break;
    }
    return image;
}

} // namespace Viewer::Image
