#pragma once

#include <QImage>
#include <QSize>

namespace Viewer::CameraPool {

/// The picture number @p frameNumber of a camera without a sensor: slanted bars in shades of the
/// colour @p hue (0 to 359) that move from frame to frame. Any thread.
[[nodiscard]] QImage makeTestPattern(QSize size, int frameNumber, int hue);

} // namespace Viewer::CameraPool
