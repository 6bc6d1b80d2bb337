#include "icons.h"

#include <QGuiApplication>

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

} // namespace Plugin::FirmwareUpdater::Internal::Style
