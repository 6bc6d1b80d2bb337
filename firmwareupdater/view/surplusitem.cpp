#include "surplusitem.h"

#include <QWidget>

namespace Plugin::FirmwareUpdater::Internal::View {

CSurplusItem::CSurplusItem(QWidget *widget, int standardPageHeight)
    : QWidgetItem(widget)
    , m_standardPageHeight(standardPageHeight)
{
}

QSize CSurplusItem::sizeHint() const
{
    const int surplus = wid->window()->height() - m_standardPageHeight;
    return QWidgetItem::sizeHint() + QSize(0, qMax(surplus, 0));
}

} // namespace Plugin::FirmwareUpdater::Internal::View
