#pragma once

#include <QString>

namespace Viewer::Text {

/// @p text on one line: a character that cannot be shown becomes a question mark.
[[nodiscard]] QString toSingleLine(const QString &text);

/// @p text from a file or a camera, for use within a sentence: on one line, and cut off when it has
/// more than @p length characters.
[[nodiscard]] QString shorten(const QString &text, int length = 80);

/// True when @p text has a character that cannot be shown on a line: a control or formatting
/// character, a line or paragraph separator, half a surrogate pair. @p lineBreaksAllowed lets line
/// feeds and tabulators pass.
[[nodiscard]] bool hasUnprintable(const QString &text, bool lineBreaksAllowed = false);

} // namespace Viewer::Text
