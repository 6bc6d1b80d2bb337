#pragma once

#include <QColor>

/// The colours of the wizard's dialogs, which stay white under every colour scheme.
namespace Plugin::FirmwareUpdater::Constants {

inline const QColor WHITE_COLOR(255, 255, 255);
inline const QColor LIGHT_GREY_COLOR(240, 240, 240);
inline const QColor GREY_COLOR(223, 223, 223);
inline const QColor ULTRA_LIGHT_BLUE_COLOR(153, 209, 255);
inline const QColor LIGHT_BLUE_COLOR(229, 243, 255);
inline const QColor BLUE_COLOR(204, 235, 255);

/// Texts on those backgrounds.
inline const QColor TEXT_COLOR(0, 0, 0);
inline const QColor DISABLED_TEXT_COLOR(120, 120, 120);
inline const QColor LINK_COLOR(0, 85, 170);

/// Of these, styles make the outlines of check boxes.
inline const QColor OUTLINE_COLOR(130, 130, 130);
inline const QColor DISABLED_OUTLINE_COLOR(170, 170, 170);

} // namespace Plugin::FirmwareUpdater::Constants
