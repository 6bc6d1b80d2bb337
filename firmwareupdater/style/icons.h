#pragma once

#include <QPixmap>
#include <QString>

class QPainter;

namespace Plugin::FirmwareUpdater::Internal::Style {

/// The picture ":/firmwareupdater/icons/@p name", in double resolution where a screen has a device
/// pixel ratio above 1. Its size in device-independent pixels is that of the name in both cases.
///
/// QPixmap alone never looks for the "@2x" picture, and QIcon only when the application asks for
/// it.
[[nodiscard]] QPixmap getIconPixmap(const QString &name);

/// The number of device pixels per pixel where @p painter really paints: while a widget is rendered
/// into a picture, the painter's own device is still the widget.
[[nodiscard]] qreal getDevicePixelRatio(const QPainter &painter);

} // namespace Plugin::FirmwareUpdater::Internal::Style
