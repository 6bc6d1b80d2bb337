#include "cellrendering.h"

#include "constants.h"
#include "style/icons.h"
#include "view/readablepalette.h"

#include <cmath>

namespace Plugin::FirmwareUpdater::Internal::View {

/// How many pixels in front of the device's coordinate @p position a picture with @p ratio device
/// pixels per pixel has to begin, for its device pixels to be those of the device: to where a pixel
/// and a device pixel begin together, as nearly as they do somewhere near.
static int findOverhang(qreal position, qreal ratio)
{
    static constexpr int MAXIMUM = 10;
    static constexpr qreal TOLERANCE = 0.01;
    int nearest = 0;
    qreal least = 1;
    for (int overhang = 0; overhang <= MAXIMUM && least > TOLERANCE; ++overhang) {
        const qreal begin = position - overhang * ratio;
        const qreal shift = std::abs(begin - std::round(begin));
        if (shift < least) {
            least = shift;
            nearest = overhang;
        }
    }
    return nearest;
}

void setCellFont(QWidget *widget)
{
    QFont font = widget->font();
    font.setPointSize(8);
    widget->setFont(font);
}

void setUpCellWidget(QWidget *widget)
{
    QPalette palette = widget->palette();
    setReadableColors(palette);
    // Styles draw the outline of a check box in a darker shade of this colour, and nothing else.
    palette.setColor(QPalette::Window, Constants::OUTLINE_COLOR);
    palette.setColor(QPalette::Disabled, QPalette::Window, Constants::DISABLED_OUTLINE_COLOR);
    palette.setColor(QPalette::Base, Constants::WHITE_COLOR);
    palette.setColor(QPalette::Active, QPalette::AlternateBase, Constants::LIGHT_BLUE_COLOR);
    palette.setColor(QPalette::Active, QPalette::HighlightedText, Constants::BLUE_COLOR);
    // Rows that cannot be ticked show in grey that the mouse is over them.
    palette.setColor(QPalette::Disabled, QPalette::AlternateBase, Constants::LIGHT_GREY_COLOR);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, Constants::LIGHT_GREY_COLOR);
    widget->setPalette(palette);

    setCellFont(widget);
    widget->setAutoFillBackground(true);
}

QPalette::ColorRole getBackgroundRole(QStyle::State state)
{
    if (state & QStyle::State_Selected)
        return QPalette::HighlightedText;
    return state & QStyle::State_MouseOver ? QPalette::AlternateBase : QPalette::Base;
}

void renderCellWidget(QPainter *painter, QWidget *widget, const QPoint &position, const QSize &size)
{
    if (!painter->isActive() || size.isEmpty())
        return;
    // Through a picture of its own: rendered straight into the device, the widget would miss the
    // view's place in its window, and it could not be painted at all while the painter is shared
    // with the widgets around it, as when a whole dialog is rendered.
    const qreal ratio = Style::getDevicePixelRatio(*painter);
    const QPointF begin = painter->deviceTransform().map(QPointF(position));
    const QPoint overhang(findOverhang(begin.x(), ratio), findOverhang(begin.y(), ratio));
    const QRect rect(overhang, size);
    const QRect pixels = QRectF(QPointF(rect.topLeft()) * ratio, QSizeF(size) * ratio).toRect();

    QPixmap picture(pixels.right() + 1, pixels.bottom() + 1);
    picture.setDevicePixelRatio(ratio);
    // The widget may leave out device pixels of which it covers only a part.
    if (ratio != std::floor(ratio))
        picture.fill(widget->palette().color(widget->backgroundRole()));
    widget->render(&picture, overhang, QRegion(QRect(QPoint(0, 0), size)));
    painter->drawPixmap(position - overhang + QPointF(pixels.topLeft()) / ratio, picture, pixels);
}

void drawColumnSeparator(QPainter *painter, const QRect &cell)
{
    painter->setPen(QPen(Constants::LIGHT_GREY_COLOR, 2));
    painter->drawLine(cell.topRight(), cell.bottomRight());
}

void drawRowFrame(QPainter *painter, const QRect &cell, Qt::Edges edges)
{
    // Filled, not stroked: with more than one device pixel per pixel a line leaves the cell.
    const auto draw = [painter](const QPoint &begin, const QPoint &end) {
        painter->fillRect(QRect(begin, end), Constants::ULTRA_LIGHT_BLUE_COLOR);
    };
    if (edges & Qt::TopEdge)
        draw(cell.topLeft(), cell.topRight());
    if (edges & Qt::BottomEdge)
        draw(cell.bottomLeft(), cell.bottomRight());
    if (edges & Qt::LeftEdge)
        draw(cell.topLeft(), cell.bottomLeft());
    if (edges & Qt::RightEdge)
        draw(cell.topRight(), cell.bottomRight());
}

} // namespace Plugin::FirmwareUpdater::Internal::View
