#include "histogrampainter.h"

#include "viewer/image/framevalues.h"

#include <QColor>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace Viewer::ImageView {

static const QColor BACKGROUND(0, 0, 0, 170);
static const QColor GRAY(0xe0, 0xe0, 0xe0);
// Red, green and blue that can be told apart on a dark ground; U and V have those of their colours.
static const QColor COLORS[] = {{0xff, 0x60, 0x60}, {0x60, 0xe0, 0x60}, {0x70, 0xa0, 0xff}};
static constexpr QSize LARGEST(264, 104);
static constexpr int DISTANCE = 8;
static constexpr int PADDING = 4;

void paintHistogram(QPainter &painter, const QRect &area, const Image::CHistogram &histogram)
{
    if (histogram.counts.isEmpty())
        return;
    // Of a small image it leaves three quarters to be seen.
    QRect panel(QPoint(), LARGEST.boundedTo(area.size() / 2 - QSize(DISTANCE, DISTANCE)));
    panel.moveBottomRight(area.bottomRight() - QPoint(DISTANCE, DISTANCE));
    const QRectF plot = panel.adjusted(PADDING, PADDING, -PADDING, -PADDING);
    if (plot.width() < 1 || plot.height() < 1)
        return;
    painter.save();
    painter.fillRect(panel, BACKGROUND);
    painter.setRenderHint(QPainter::Antialiasing);
    quint32 greatest = 1;
    for (const QVector<quint32> &counts : histogram.counts)
        greatest = std::max(greatest, *std::max_element(counts.cbegin(), counts.cend()));
    const bool isGray = histogram.counts.size() == 1;
    for (int component = 0; component < histogram.counts.size(); ++component) {
        const QVector<quint32> &counts = histogram.counts.at(component);
        QPainterPath path(plot.bottomLeft());
        for (int bin = 0; bin < counts.size(); ++bin) {
            const qreal y
                = plot.bottom() - plot.height() * std::sqrt(qreal(counts.at(bin)) / greatest);
            path.lineTo(plot.left() + plot.width() * bin / counts.size(), y);
            path.lineTo(plot.left() + plot.width() * (bin + 1) / counts.size(), y);
        }
        path.lineTo(plot.bottomRight());
        const QColor color = isGray ? GRAY : COLORS[component % 3];
        QColor area = color;
        area.setAlpha(isGray ? 255 : 70);
        painter.fillPath(path, area);
        painter.strokePath(path, color);
    }
    painter.restore();
}

} // namespace Viewer::ImageView
