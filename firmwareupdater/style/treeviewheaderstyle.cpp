#include "treeviewheaderstyle.h"

#include "constants.h"
#include "icons.h"

#include <QPainter>
#include <QStyleOptionHeader>

namespace Plugin::FirmwareUpdater::Internal::Style {

/// Distance of a title from the separator on its left.
static constexpr int TITLE_INDENT = 11;

CTreeViewHeaderStyle::CTreeViewHeaderStyle() = default;

void CTreeViewHeaderStyle::drawControl(ControlElement element, const QStyleOption *option,
                                       QPainter *painter, const QWidget *widget) const
{
    if (element == CE_HeaderSection) {
        drawSection(*static_cast<const QStyleOptionHeader *>(option), painter);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void CTreeViewHeaderStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                         QPainter *painter, const QWidget *widget) const
{
    if (element == PE_IndicatorHeaderArrow) {
        if (const auto *header = qstyleoption_cast<const QStyleOptionHeader *>(option)) {
            drawSortArrow(*header, painter, widget);
        }
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

QRect CTreeViewHeaderStyle::subElementRect(SubElement element, const QStyleOption *option,
                                           const QWidget *widget) const
{
    if (element == SE_HeaderLabel) {
        const auto *header = static_cast<const QStyleOptionHeader *>(option);
        QRect rect = header->rect;
        rect.setHeight(header->fontMetrics.height());
        if (header->section != 0) {
            rect.setLeft(rect.left() + TITLE_INDENT);
        }
        return rect;
    }
    if (element == SE_HeaderArrow && (option->state & State_Horizontal)) {
        if (const auto *header = qstyleoption_cast<const QStyleOptionHeader *>(option)) {
            // Behind the title as if the section began at the origin: the option's rectangle is
            // left out on purpose.
            const int x = header->fontMetrics.horizontalAdvance(header->text) + 5;
            return {x, header->fontMetrics.ascent() - 7, 10, 7};
        }
    }
    return QProxyStyle::subElementRect(element, option, widget);
}

int CTreeViewHeaderStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                                      const QWidget *widget) const
{
    return metric == PM_HeaderMargin ? 0 : QProxyStyle::pixelMetric(metric, option, widget);
}

void CTreeViewHeaderStyle::drawSection(const QStyleOptionHeader &option, QPainter *painter) const
{
    const int titleHeight = option.fontMetrics.height();
    const QRect &rect = option.rect;
    const QBrush background = option.palette.brush(QPalette::Base);

    painter->save();
    if (option.state & (State_Sunken | State_MouseOver)) {
        const QColor &band
            = option.state & State_Sunken ? Constants::BLUE_COLOR : Constants::LIGHT_BLUE_COLOR;
        painter->fillRect(QRect(rect.left(), rect.top(), rect.right() + 1, titleHeight + 7), band);
        painter->fillRect(QRect(rect.left(), titleHeight + 8, rect.right() + 1, rect.bottom()),
                          background);
    } else {
        painter->fillRect(rect, background);
    }

    QPen pen = painter->pen();
    pen.setColor(Constants::GREY_COLOR);
    painter->setPen(pen);
    painter->drawLine(rect.left(), titleHeight + 7, rect.right(), titleHeight + 7);

    if (option.position != QStyleOptionHeader::End
        && option.position != QStyleOptionHeader::OnlyOneSection) {
        pen.setWidth(2);
        pen.setColor(Constants::LIGHT_GREY_COLOR);
        painter->setPen(pen);
        painter->drawLine(rect.right(), rect.top() + 3, rect.right(), titleHeight - 2);
    }
    painter->restore();
}

void CTreeViewHeaderStyle::drawSortArrow(const QStyleOptionHeader &option, QPainter *painter,
                                         const QWidget *widget) const
{
    if (option.sortIndicator == QStyleOptionHeader::None) {
        return;
    }
    QPixmap arrow = getIconPixmap(QStringLiteral("sort_icon_10x7_en"));
    if (option.sortIndicator == QStyleOptionHeader::SortUp) {
        arrow = arrow.transformed(QTransform().rotate(180), Qt::FastTransformation);
    }
    painter->drawPixmap(subElementRect(SE_HeaderArrow, &option, widget), arrow);
}

} // namespace Plugin::FirmwareUpdater::Internal::Style
