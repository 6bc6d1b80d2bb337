#pragma once

#include "viewer/text/errortext.h"

#include <QString>

namespace Viewer::UpdateFile {

/// The name of the manifest in the archive.
[[nodiscard]] QString getManifestName();

/// The name of the manifest's signature, which need not be there.
[[nodiscard]] QString getSignatureName();

/// Why @p name cannot name a file in an update file, as the end of a sentence that begins with the
/// name ("has a backslash; ..."); empty when it can. Names are relative paths with forward slashes
/// that stay inside the archive, also where it is unpacked by other programs.
[[nodiscard]] Text::CErrorText findEntryNameFault(const QString &name);

} // namespace Viewer::UpdateFile
