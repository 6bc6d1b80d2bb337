#include "cellrendering.h"

#include "constants.h"
#include "readablepalette.h"

#include <QPainterPath>

namespace Plugin::FirmwareUpdater::Internal::View {

namespace {

/// What QPainter::begin() sets back.
class CPainterState
{
public:
    explicit CPainterState(const QPainter &painter)
        : m_pen(painter.pen())
        , m_brush(painter.brush())
        , m_brushOrigin(painter.brushOrigin())
        , m_background(painter.background())
        , m_backgroundMode(painter.backgroundMode())
        , m_font(painter.font())
        , m_opacity(painter.opacity())
        , m_compositionMode(painter.compositionMode())
        , m_renderHints(painter.renderHints())
        , m_layoutDirection(painter.layoutDirection())
        , m_transform(painter.worldTransform())
        , m_isClipped(painter.hasClipping())
        , m_clip(painter.clipPath())
    {
    }

    void restore(QPainter *painter) const
    {
        painter->setPen(m_pen);
        painter->setBrush(m_brush);
        painter->setBrushOrigin(m_brushOrigin);
        painter->setBackground(m_background);
        painter->setBackgroundMode(m_backgroundMode);
        painter->setFont(m_font);
        painter->setOpacity(m_opacity);
        painter->setCompositionMode(m_compositionMode);
        painter->setRenderHints(painter->renderHints(), false);
        painter->setRenderHints(m_renderHints);
        painter->setLayoutDirection(m_layoutDirection);
        painter->setWorldTransform(m_transform);
        if (m_isClipped) {
            painter->setClipPath(m_clip);
        }
    }

private:
    QPen m_pen;
    QBrush m_brush;
    QPoint m_brushOrigin;
    QBrush m_background;
    Qt::BGMode m_backgroundMode;
    QFont m_font;
    qreal m_opacity;
    QPainter::CompositionMode m_compositionMode;
    QPainter::RenderHints m_renderHints;
    Qt::LayoutDirection m_layoutDirection;
    QTransform m_transform;
    bool m_isClipped;
    QPainterPath m_clip;
};

} // namespace

void setUpCellWidget(QWidget *widget)
{
    QPalette palette = widget->palette();
    setReadableTexts(palette);
    palette.setColor(QPalette::Window, Constants::WHITE_COLOR);
    palette.setColor(QPalette::Base, Constants::WHITE_COLOR);
    palette.setColor(QPalette::Active, QPalette::AlternateBase, Constants::LIGHT_BLUE_COLOR);
    palette.setColor(QPalette::Active, QPalette::HighlightedText, Constants::BLUE_COLOR);
    widget->setPalette(palette);

    QFont font = widget->font();
    font.setPointSize(8);
    widget->setFont(font);

    widget->setAutoFillBackground(true);
}

QPalette::ColorRole getBackgroundRole(QStyle::State state)
{
    if (state & QStyle::State_Selected) {
        return QPalette::HighlightedText;
    }
    return state & QStyle::State_MouseOver ? QPalette::AlternateBase : QPalette::Base;
}

void renderCellWidget(QPainter *painter, QWidget *widget, const QPoint &position, const QSize &size)
{
    QPaintDevice *device = painter->device();
    if (!device || size.isEmpty()) {
        return;
    }
    const CPainterState state(*painter);
    const QPoint target = painter->worldTransform().map(position);
    QRegion source(QRect(QPoint(0, 0), size));
    if (painter->hasClipping()) {
        source &= painter->worldTransform().map(painter->clipRegion()).translated(-target);
    }

    painter->end();
    // The source's own corner comes to lie on the target.
    const QPoint corner = source.boundingRect().topLeft();
    if (!source.isEmpty()) {
        widget->render(device, target + corner, source);
    }
    painter->begin(device);
    state.restore(painter);
}

void drawColumnSeparator(QPainter *painter, const QRect &cell)
{
    painter->setPen(QPen(Constants::LIGHT_GREY_COLOR, 2));
    painter->drawLine(cell.topRight(), cell.bottomRight());
}

void drawRowFrame(QPainter *painter, const QRect &cell, Qt::Edges edges)
{
    painter->setPen(QPen(Constants::ULTRA_LIGHT_BLUE_COLOR, 1));
    if (edges & Qt::TopEdge) {
        painter->drawLine(cell.topLeft(), cell.topRight());
    }
    if (edges & Qt::BottomEdge) {
        painter->drawLine(cell.bottomLeft(), cell.bottomRight());
    }
    if (edges & Qt::LeftEdge) {
        painter->drawLine(cell.topLeft(), cell.bottomLeft());
    }
    if (edges & Qt::RightEdge) {
        painter->drawLine(cell.topRight(), cell.bottomRight());
    }
}

} // namespace Plugin::FirmwareUpdater::Internal::View
