#include "treeviewheaderstyle.h"

#include "constants.h"
#include "icons.h"

#include <QHeaderView>
#include <QPainter>
#include <QStyleOptionHeader>

namespace Plugin::FirmwareUpdater::Internal::Style {

/// Distance of a title from the separator on its left.
static constexpr int TITLE_INDENT = 11;

CTreeViewHeaderStyle::CTreeViewHeaderStyle() = default;

/// The title of @p option as it fits into its section's @p width. Qt 5 has elided it before it asks
/// a style; Qt 6 leaves that to the styles, and its own ones are not told to (6.4).
static QString elideTitle(const QStyleOptionHeader &option, int width, const QWidget *widget)
{
    const auto *const header = qobject_cast<const QHeaderView *>(widget);
    return header ? option.fontMetrics.elidedText(option.text, header->textElideMode(), width)
                  : option.text;
}

void CTreeViewHeaderStyle::drawControl(ControlElement element, const QStyleOption *option,
                                       QPainter *painter, const QWidget *widget) const
{
    if (element == CE_HeaderSection) {
        drawSection(*static_cast<const QStyleOptionHeader *>(option), painter);
        return;
    }
    if (element == CE_HeaderLabel) {
        QStyleOptionHeader elided = *static_cast<const QStyleOptionHeader *>(option);
        elided.text = elideTitle(elided, elided.rect.width(), widget);
        QProxyStyle::drawControl(element, &elided, painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void CTreeViewHeaderStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                         QPainter *painter, const QWidget *widget) const
{
    if (element == PE_IndicatorHeaderArrow) {
        if (const auto *header = qstyleoption_cast<const QStyleOptionHeader *>(option))
            drawSortArrow(*header, painter, widget);
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
        // One line of the font, or more where another font lends the letters that it lacks: those
        // of Chinese, Japanese and Korean are taller than what a Latin font reserves for a line.
        const int textHeight = header->fontMetrics.size(Qt::TextSingleLine, header->text).height();
        rect.setHeight(qMax(header->fontMetrics.height(), textHeight));
        if (header->section != 0)
            rect.setLeft(rect.left() + TITLE_INDENT);
        return rect;
    }
    if (element == SE_HeaderArrow && (option->state & State_Horizontal)) {
        if (const auto *header = qstyleoption_cast<const QStyleOptionHeader *>(option)) {
            // Behind the title as if the section began at the origin: the option's rectangle is
            // left out on purpose.
            const int width = subElementRect(SE_HeaderLabel, option, widget).width();
            const int x
                = header->fontMetrics.horizontalAdvance(elideTitle(*header, width, widget)) + 5;
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

    // Filled, not stroked: with more than one device pixel per pixel the ends of a line leave a
    // gap.
    painter->fillRect(QRect(rect.left(), titleHeight + 7, rect.width(), 1), Constants::GREY_COLOR);

    if (option.position != QStyleOptionHeader::End
        && option.position != QStyleOptionHeader::OnlyOneSection) {
        painter->setPen(QPen(Constants::LIGHT_GREY_COLOR, 2));
        painter->drawLine(rect.right(), rect.top() + 3, rect.right(), titleHeight - 2);
    }
    painter->restore();
}

void CTreeViewHeaderStyle::drawSortArrow(const QStyleOptionHeader &option, QPainter *painter,
                                         const QWidget *widget) const
{
    if (option.sortIndicator == QStyleOptionHeader::None)
        return;
    bool pointsUp = option.sortIndicator == QStyleOptionHeader::SortUp;
    if (const auto *header = qobject_cast<const QHeaderView *>(widget)) {
        // Qt's headers ask for SortDown at an ascending order. Here the arrow points up then.
        pointsUp = header->sortIndicatorOrder() == Qt::AscendingOrder;
    }
    QPixmap arrow
        = getIconPixmap(QStringLiteral("sort_icon_10x7_en"), getDevicePixelRatio(*painter));
    if (pointsUp)
        arrow = arrow.transformed(QTransform().rotate(180), Qt::FastTransformation);
    painter->drawPixmap(option.rect.topLeft(), arrow);
}

} // namespace Plugin::FirmwareUpdater::Internal::Style
