#include "iconstyle.h"

#include "icons.h"

#include <QLabel>
#include <QPainter>

namespace Plugin::FirmwareUpdater::Internal::Style {

CIconStyle::CIconStyle(QLabel *label)
{
    setParent(label);
    label->setStyle(this);
}

void CIconStyle::setIcon(QLabel *label, const QString &name)
{
    auto *style = label->findChild<CIconStyle *>(QString(), Qt::FindDirectChildrenOnly);
    if (!style)
        style = new CIconStyle(label);
    style->m_name = name;
    // For its size, and for screen readers.
    label->setPixmap(getIconPixmap(name));
}

void CIconStyle::drawItemPixmap(QPainter *painter, const QRect &rect, int alignment,
                                const QPixmap & /*pixmap*/) const
{
    const QPixmap icon = getIconPixmap(m_name, getDevicePixelRatio(*painter));
    const QSize size = icon.size() / icon.devicePixelRatio();
    const QRect place
        = alignedRect(Qt::LeftToRight, static_cast<Qt::Alignment>(alignment), size, rect);
    painter->drawPixmap(place.topLeft(), icon);
}

} // namespace Plugin::FirmwareUpdater::Internal::Style
