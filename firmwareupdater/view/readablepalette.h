#pragma once

#include <QPalette>

namespace Plugin::FirmwareUpdater::Internal::View {

/// Makes @p role dark, grey where disabled, in all colour groups of @p palette. The wizard's
/// dialogs are white by design, also where the application's colours are dark and its texts light.
void setReadableText(QPalette &palette, QPalette::ColorRole role);

/// Does so for all roles that texts and links on the dialogs' white are drawn with.
void setReadableTexts(QPalette &palette);

} // namespace Plugin::FirmwareUpdater::Internal::View
