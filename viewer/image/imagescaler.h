#pragma once

#include "imagememory.h"

#include <vector>

namespace Viewer::Image {

/// Makes images smaller, as Qt's painter would paint them but in a fraction of its time, into
/// memory that is used again. One thread at a time.
class CImageScaler
{
public:
    /// @p image, of `Format_Grayscale8` or `Format_RGB32`, at the @p size, interpolated between
    /// four pixels each, as `Format_RGB32`. The cost grows with @p size, not with that of the
    /// image. Null where there is no memory.
    [[nodiscard]] QImage scaleDown(const QImage &image, const QSize &size);

private:
    CImageMemory m_memory;
    std::vector<uchar> m_gray; // of a whole image, on the way to its colours
};

} // namespace Viewer::Image
