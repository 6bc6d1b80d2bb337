#include "icons.h"

#include <QGuiApplication>
#include <QPaintEngine>
#include <QPainter>

namespace Plugin::FirmwareUpdater::Internal::Style {

QPixmap getIconPixmap(const QString &name)
{
    const QString path = QStringLiteral(":/firmwareupdater/icons/") + name;
    if (qGuiApp->devicePixelRatio() > 1) {
        QPixmap pixmap(path + QStringLiteral("@2x"));
        pixmap.setDevicePixelRatio(2);
        return pixmap;
    }
    return QPixmap(path);
}

qreal getDevicePixelRatio(const QPainter &painter)
{
    const QPaintEngine *engine = painter.paintEngine();
    return engine ? engine->paintDevice()->devicePixelRatioF() : 1;
}

} // namespace Plugin::FirmwareUpdater::Internal::Style
