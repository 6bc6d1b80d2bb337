#pragma once

#include <QGuiApplication>
#include <QPixmap>
#include <QString>

class QPainter;

namespace Plugin::FirmwareUpdater::Internal::Style {

/// The picture ":/firmwareupdater/icons/@p name" for a device with @p ratio device pixels per
/// pixel, if none is given for the screen with the most. Its size in device-independent pixels is
/// that of the name, up to the last device pixel. So none has to be scaled when it is drawn there,
/// which painters would do without smoothing it.
///
/// QPixmap alone never looks for the "@2x" picture, and QIcon only when the application asks for
/// it.
[[nodiscard]] QPixmap getIconPixmap(const QString &name, qreal ratio = qGuiApp->devicePixelRatio());

/// The number of device pixels per pixel where @p painter really paints: while a widget is rendered
/// into a picture, the painter's own device is still the widget.
[[nodiscard]] qreal getDevicePixelRatio(const QPainter &painter);

} // namespace Plugin::FirmwareUpdater::Internal::Style
