#include "testpattern.h"

#include <QColor>
#include <QVector>

#include <cstring>

namespace Viewer::CameraPool {

static constexpr int BAR_WIDTH = 128; // in pixels, from dark to bright
static constexpr int PIXELS_PER_FRAME = 4;

QImage makeTestPattern(QSize size, int frameNumber, int hue)
{
    QImage frame(size, QImage::Format_RGB32);
    if (frame.isNull())
        return frame;
    // One row that is longer by a bar; every row of the picture is a window into it.
    QVector<QRgb> row(size.width() + BAR_WIDTH);
    for (int x = 0; x < row.size(); ++x)
        row[x] = QColor::fromHsv(hue, 110, 60 + 180 * (x % BAR_WIDTH) / BAR_WIDTH).rgb();
    for (int y = 0; y < size.height(); ++y) {
        const int offset = (y + frameNumber % BAR_WIDTH * PIXELS_PER_FRAME) % BAR_WIDTH;
        std::memcpy(frame.scanLine(y), row.constData() + offset,
                    static_cast<size_t>(size.width()) * sizeof(QRgb));
    }
    return frame;
}

} // namespace Viewer::CameraPool
