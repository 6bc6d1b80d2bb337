#include "icons.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPixmapCache>

namespace Plugin::FirmwareUpdater::Internal::Style {

QPixmap getIconPixmap(const QString &name, qreal ratio)
{
    const QString path = QStringLiteral(":/firmwareupdater/icons/") + name;
    if (qFuzzyCompare(ratio, 1))
        return QPixmap(path);
    const QString key = path + QLatin1Char('@') + QString::number(ratio);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap.load(path + QStringLiteral("@2x"));
        pixmap = pixmap.scaled((QSizeF(pixmap.size()) * ratio / 2).toSize(), Qt::IgnoreAspectRatio,
                               Qt::SmoothTransformation);
        pixmap.setDevicePixelRatio(ratio);
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

qreal getDevicePixelRatio(const QPainter &painter)
{
    const QPaintEngine *engine = painter.paintEngine();
    return engine ? engine->paintDevice()->devicePixelRatioF() : 1;
}

} // namespace Plugin::FirmwareUpdater::Internal::Style
