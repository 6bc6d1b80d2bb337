#pragma once

#include <QPalette>

class QLabel;

namespace Plugin::FirmwareUpdater::Internal::View {

/// Makes @p role dark, grey where disabled, in all colour groups of @p palette. The wizard's
/// dialogs are white by design, also where the application's colours are dark and its texts light.
void setReadableText(QPalette &palette, QPalette::ColorRole role);

/// Makes dark all roles that texts and links on the dialogs' white are drawn with, and light those
/// of buttons and scroll bars, which would stand out of a white page under a dark palette.
void setReadableColors(QPalette &palette);

/// Shows @p text, whose links have a colour that can be read on white. Only a text with links is a
/// stop for Tab.
void showTextWithLinks(QLabel *label, const QString &text);

} // namespace Plugin::FirmwareUpdater::Internal::View
