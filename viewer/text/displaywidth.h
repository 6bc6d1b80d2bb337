#pragma once

#include <QString>

namespace Viewer::Text {

/// How many columns @p text takes on a terminal, where letters of some scripts take two.
[[nodiscard]] int getDisplayWidth(const QString &text);

/// As much of @p text as takes at most @p width columns.
[[nodiscard]] QString cutToWidth(const QString &text, int width);

} // namespace Viewer::Text
