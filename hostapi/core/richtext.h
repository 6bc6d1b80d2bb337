#pragma once

#include "hostapi_global.h"

#include <QString>

namespace Core::Text {

/// What Qt's labels may show of rich text that comes from a file, a camera or somebody else.
///
/// Qt reads the files and fetches the addresses that images, objects and style sheets name while it
/// lays a text out; a pipe or a device among them stops or fills the whole program. So structure,
/// lists, tables, emphasis and links to @ref isWebLink() addresses stay, and everything else loses
/// its markup. Text that names nothing of the kind comes back as it is. Any thread.
[[nodiscard]] HOSTAPI_EXPORT QString toSafeRichText(const QString &text);

/// @p text as a tool tip that shows it as it stands, in its lines: of a plain text Qt guesses
/// whether it is markup. Any thread.
[[nodiscard]] HOSTAPI_EXPORT QString toToolTip(const QString &text);

/// True for an http, https or mailto address without blanks: what the desktop may be asked to open
/// for a link from outside.
[[nodiscard]] HOSTAPI_EXPORT bool isWebLink(const QString &target);

} // namespace Core::Text
