#pragma once

#include <QPixmap>
#include <QString>

namespace Plugin::FirmwareUpdater::Internal::Style {

/// The picture ":/firmwareupdater/icons/@p name", in double resolution where a screen has a device
/// pixel ratio above 1. Its size in device-independent pixels is that of the name in both cases.
///
/// QPixmap alone never looks for the "@2x" picture, and QIcon only when the application asks for
/// it.
[[nodiscard]] QPixmap getIconPixmap(const QString &name);

} // namespace Plugin::FirmwareUpdater::Internal::Style
