#pragma once

#include "updatemanifest.h"

#include <QString>

#include <functional>

namespace Viewer::UpdateFile {

class CUpdateArchive;

/// Reads whole update files. No state; any thread.
class CUpdateFileReader
{
public:
    /// Opens the update file, checks all of it (archive, manifest, size and SHA-256 of each
    /// payload) and returns what its manifest says. @p path is absolute, with native or plain
    /// separators. Throws CUpdateFileError, and nothing else but what @p checkpoint throws, which
    /// is called between small parts of the work to end it early.
    [[nodiscard]] static CUpdateManifest read(const QString &path,
                                              const std::function<void()> &checkpoint = {});

    /// The same for an archive that is open already.
    [[nodiscard]] static CUpdateManifest read(const CUpdateArchive &archive,
                                              const std::function<void()> &checkpoint = {});
};

} // namespace Viewer::UpdateFile
