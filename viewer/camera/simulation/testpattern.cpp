#include "testpattern.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace Viewer::Camera::Simulation {

static constexpr int BAR_WIDTH = 128; // in pixels, from dark to bright
static constexpr int PIXELS_PER_FRAME = 4;
static constexpr int PIXEL_SIZE = 3; // bytes
static constexpr double SATURATION = 0.43;

/// The part of a colour with the @p hue and full brightness, 0 to 1, that has its own hue at
/// @p center.
static double getShare(int hue, int center)
{
    const double distance = std::abs(std::remainder(hue - center, 360.0)) / 60;
    return 1 - SATURATION * std::clamp(distance - 1, 0.0, 1.0);
}

void paintTestPattern(uchar *pixels, QSize size, quint64 frameNumber, int hue)
{
    // One row that is longer by a bar; every row of the picture is a window into it.
    QByteArray row((size.width() + BAR_WIDTH) * PIXEL_SIZE, '\0');
    const double shares[PIXEL_SIZE] = {getShare(hue, 240), getShare(hue, 120), getShare(hue, 0)};
    for (int i = 0; i < row.size(); ++i) {
        const int x = i / PIXEL_SIZE;
        const int brightness = 60 + 180 * (x % BAR_WIDTH) / BAR_WIDTH;
        row[i] = static_cast<char>(std::lround(brightness * shares[i % PIXEL_SIZE]));
    }
    const auto lineSize = static_cast<std::size_t>(size.width()) * PIXEL_SIZE;
    const int shift = static_cast<int>(frameNumber % BAR_WIDTH) * PIXELS_PER_FRAME;
    for (int y = 0; y < size.height(); ++y)
        std::memcpy(pixels + static_cast<std::size_t>(y) * lineSize,
                    row.constData() + (y + shift) % BAR_WIDTH * PIXEL_SIZE, lineSize);
}

} // namespace Viewer::Camera::Simulation
