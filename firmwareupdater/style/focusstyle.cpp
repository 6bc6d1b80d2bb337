#include "focusstyle.h"

#include "constants.h"

#include <QPainter>
#include <QStyleOption>
#include <QTextFormat>

namespace Plugin::FirmwareUpdater::Internal::Style {

/// Distance of the frame from the border of the button.
static constexpr int INSET = 3;

CFocusStyle::CFocusStyle(QObject *parent)
{
    setParent(parent);
}

void CFocusStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                              const QWidget *widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    const QStyle::State byKeyboard = State_HasFocus | State_KeyboardFocusChange;
    if (element == CE_PushButton && (option->state & byKeyboard) == byKeyboard)
        drawFrame(painter, option->rect.adjusted(INSET, INSET, -INSET, -INSET), option->palette);
}

int CFocusStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                           QStyleHintReturn *returnData) const
{
    auto *const format = qstyleoption_cast<QStyleHintReturnVariant *>(returnData);
    if (hint != SH_TextControl_FocusIndicatorTextCharFormat || !option || !format)
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    QTextCharFormat link;
    link.setProperty(QTextFormat::OutlinePen, QPen(option->palette.color(QPalette::Highlight)));
    // A text has no room for the lower edge of a frame around its last line.
    link.setBackground(Constants::LIGHT_BLUE_COLOR);
    format->variant = link;
    return 1;
}

void CFocusStyle::drawFrame(QPainter *painter, const QRect &rect, const QPalette &palette)
{
    painter->save();
    painter->setPen(palette.color(QPalette::Highlight));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(rect.adjusted(0, 0, -1, -1));
    painter->restore();
}

} // namespace Plugin::FirmwareUpdater::Internal::Style
