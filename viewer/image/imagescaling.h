#pragma once

#include <QImage>

namespace Viewer::Image {

/// @p image, of `Format_Grayscale8` or `Format_RGB32`, at the @p size, interpolated between four
/// pixels each, as `Format_RGB32`; what Qt's painter would paint, in a fraction of its time. The
/// cost grows with @p size, not with that of the image. Null where there is no memory.
[[nodiscard]] QImage scaleDown(const QImage &image, const QSize &size);

} // namespace Viewer::Image
