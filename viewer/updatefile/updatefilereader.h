#pragma once

#include "updatemanifest.h"

#include <QString>

namespace Viewer::UpdateFile {

class CUpdateArchive;

/// Reads whole update files. No state; any thread.
class CUpdateFileReader
{
public:
    /// Opens the update file, checks all of it (archive, manifest, size and SHA-256 of each
    /// payload) and returns what its manifest says. @p path is absolute, with native or plain
    /// separators. Throws CUpdateFileError, and nothing else.
    [[nodiscard]] static CUpdateManifest read(const QString &path);

    /// The same for an archive that is open already.
    [[nodiscard]] static CUpdateManifest read(const CUpdateArchive &archive);
};

} // namespace Viewer::UpdateFile
