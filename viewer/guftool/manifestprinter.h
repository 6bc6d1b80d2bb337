#pragma once

#include "viewer/camerapool/updatefile/updatemanifest.h"

#include <QString>

namespace Viewer::GufTool {

/// Shows what an update file holds.
class CManifestPrinter
{
public:
    /// @p file is the update file's path, for display.
    CManifestPrinter(const QString &file, const CameraPool::UpdateFile::CUpdateManifest &manifest);

    /// Lines of text for people.
    [[nodiscard]] QString toText() const;

    /// A JSON object: "file", "formatVersion" and "updates" with the fields of the manifest; fields
    /// that the manifest may leave out are there, except the estimate of an upload.
    [[nodiscard]] QString toJson() const;

private:
    const QString m_file;
    const CameraPool::UpdateFile::CUpdateManifest m_manifest;
};

} // namespace Viewer::GufTool
