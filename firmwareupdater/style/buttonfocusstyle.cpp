#include "buttonfocusstyle.h"

#include <QPainter>
#include <QStyleOption>

namespace Plugin::FirmwareUpdater::Internal::Style {

/// Distance of the frame from the border of the button.
static constexpr int INSET = 3;

CButtonFocusStyle::CButtonFocusStyle(QObject *parent)
{
    setParent(parent);
}

void CButtonFocusStyle::drawControl(ControlElement element, const QStyleOption *option,
                                    QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    const QStyle::State byKeyboard = State_HasFocus | State_KeyboardFocusChange;
    if (element != CE_PushButton || (option->state & byKeyboard) != byKeyboard)
        return;
    painter->save();
    painter->setPen(option->palette.color(QPalette::Highlight));
    painter->drawRect(option->rect.adjusted(INSET, INSET, -INSET - 1, -INSET - 1));
    painter->restore();
}

} // namespace Plugin::FirmwareUpdater::Internal::Style
