#pragma once

#include <QSize>

namespace Viewer::Camera::Simulation {

/// Paints the picture number @p frameNumber of a camera without a sensor: slanted bars in shades of
/// the colour @p hue (0 to 359) that move from frame to frame. @p pixels has three bytes for each
/// pixel, blue, green and red, and no gaps. Any thread.
void paintTestPattern(uchar *pixels, QSize size, quint64 frameNumber, int hue);

} // namespace Viewer::Camera::Simulation
