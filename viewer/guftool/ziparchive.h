#pragma once

#include "viewer/text/errortext.h"

#include <QString>

#include <memory>
#include <zip.h>

namespace Viewer::GufTool {

struct CZipDiscarder
{
    void operator()(zip_t *archive) const;
};

/// Forgets all changes unless finishArchive() writes them.
using CZipPointer = std::unique_ptr<zip_t, CZipDiscarder>;

/// Adds a file, in place of one of this name, and takes @p source over, also when it fails.
[[nodiscard]] bool addFile(zip_t *archive, const QString &name, zip_source_t *source);

/// Writes @p archive, if everything @p isAdded. Returns what went wrong, now or before; empty:
/// nothing.
[[nodiscard]] Text::CErrorText finishArchive(CZipPointer archive, bool isAdded);

} // namespace Viewer::GufTool
