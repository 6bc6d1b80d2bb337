#include "framevalues.h"

#include "frame.h"
#include "framelayout.h"
#include "pixelformat.h"
#include "unpacking.h"

#include <algorithm>
#include <vector>

namespace Viewer::Image {

using EKind = CPixelFormat::EKind;
using EPattern = CPixelFormat::EPattern;

/// Which component each sample of a line is; the list repeats itself.
static QVector<int> getComponents(const CPixelFormat &format, int y)
{
    switch (format.kind) {
    case EKind::Mono:
        break;
    case EKind::Bayer: {
        const EPattern pattern = format.pattern;
        const bool hasRed = (pattern == EPattern::RG || pattern == EPattern::GR) == (y % 2 == 0);
        const bool beginsGreen
            = (pattern == EPattern::GR || pattern == EPattern::GB) == (y % 2 == 0);
        const int color = hasRed ? 0 : 2;
        return beginsGreen ? QVector<int>{1, color} : QVector<int>{color, 1};
    }
    case EKind::Rgb:
        return {0, 1, 2};
    case EKind::Bgr:
        return {2, 1, 0};
    case EKind::Uyvy:
        return {1, 0, 2, 0};
    case EKind::Yuyv:
        return {0, 1, 0, 2};
    }
    return {0};
}

QVector<int> getPixel(const CFrame &frame, int x, int y)
{
    if (x < 0 || y < 0 || x >= frame.width || y >= frame.height)
        return {};
    const CFrameLayout layout(frame);
    if (!layout.getFault().isEmpty())
        return {};
    const uchar *line = layout.getLine(y);
    const uchar *pair = line + qint64(x) / 2 * 4;
    switch (layout.getFormat().kind) {
    case EKind::Mono:
    case EKind::Bayer:
        break;
    case EKind::Rgb:
        return {line[3 * x], line[3 * x + 1], line[3 * x + 2]};
    case EKind::Bgr:
        return {line[3 * x + 2], line[3 * x + 1], line[3 * x]};
    case EKind::Uyvy:
        return {line[2 * x + 1], pair[0], pair[2]};
    case EKind::Yuyv:
        return {line[2 * x], pair[1], pair[3]};
    }
    return {readSample(layout.getFormat().packing, line, x)};
}

CHistogram computeHistogram(const CFrame &frame, int bins)
{
    const CFrameLayout layout(frame);
    if (!layout.getFault().isEmpty())
        return {};
    const CPixelFormat &format = layout.getFormat();
    bins = qBound(1, bins, format.getMaximum() + 1);
    const bool isPlain = format.kind == EKind::Mono || format.kind == EKind::Bayer;
    const int samples = isPlain ? frame.width : layout.getLineSize();

    CHistogram histogram;
    histogram.counts.fill(QVector<quint32>(bins), format.kind == EKind::Mono ? 1 : 3);
    const qint64 pixels = qint64(frame.width) * frame.height;
    histogram.step = static_cast<int>((pixels - 1) / CHistogram::MAXIMUM_PIXELS) + 1;
    std::vector<quint16> values(static_cast<size_t>(samples));
    for (int y = 0; y < frame.height; ++y) {
        if (y / 2 % histogram.step != 0)
            continue;
        unpackLine(format.packing, layout.getLine(y), samples, values.data());
        const QVector<int> components = getComponents(format, y);
        for (int first = 0; first < components.size(); ++first) {
            quint32 *counts = histogram.counts[components.at(first)].data();
            for (int sample = first; sample < samples; sample += components.size()) {
                const qint64 bin
                    = qint64(values[static_cast<size_t>(sample)]) * bins >> format.significantBits;
                ++counts[std::min<qint64>(bin, bins - 1)];
            }
        }
    }
    return histogram;
}

} // namespace Viewer::Image
