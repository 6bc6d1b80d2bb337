#include "cellrendering.h"

#include "constants.h"
#include "readablepalette.h"

#include <QPaintEngine>

namespace Plugin::FirmwareUpdater::Internal::View {

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
    const QPaintEngine *engine = painter->paintEngine();
    if (!engine || size.isEmpty())
        return;
    // Through a picture of its own: rendered straight into the device, the widget would miss the
    // view's place in its window, and it could not be painted at all while the painter is shared
    // with the widgets around it, as when a whole dialog is rendered.
    // The engine knows where the pixels go: when a view is rendered into an image, the painter's
    // own device is still the view.
    const qreal ratio = engine->paintDevice()->devicePixelRatioF();
    QPixmap picture((QSizeF(size) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    widget->render(&picture, QPoint(), QRegion(QRect(QPoint(0, 0), size)));
    painter->drawPixmap(position, picture);
}

void drawColumnSeparator(QPainter *painter, const QRect &cell)
{
    painter->setPen(QPen(Constants::LIGHT_GREY_COLOR, 2));
    painter->drawLine(cell.topRight(), cell.bottomRight());
}

void drawRowFrame(QPainter *painter, const QRect &cell, Qt::Edges edges)
{
    painter->setPen(QPen(Constants::ULTRA_LIGHT_BLUE_COLOR, 1));
    if (edges & Qt::TopEdge)
        painter->drawLine(cell.topLeft(), cell.topRight());
    if (edges & Qt::BottomEdge)
        painter->drawLine(cell.bottomLeft(), cell.bottomRight());
    if (edges & Qt::LeftEdge)
        painter->drawLine(cell.topLeft(), cell.bottomLeft());
    if (edges & Qt::RightEdge)
        painter->drawLine(cell.topRight(), cell.bottomRight());
}

} // namespace Plugin::FirmwareUpdater::Internal::View
