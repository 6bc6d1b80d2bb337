#pragma once

#include "updatemanifest.h"

#include "viewer/text/errortext.h"

#include <QByteArray>
#include <QString>

namespace Viewer::CameraPool::UpdateFile {

/// The version of the manifest's format that this program writes and reads.
constexpr int FORMAT_VERSION = 1;

/// What a manifest says, or the first rule that it breaks.
struct CManifestResult
{
    CUpdateManifest manifest; ///< empty when there is a fault
    Text::CErrorText fault; ///< one line without a final full stop; empty: no fault
};

/// Reads the bytes of update.json and checks every rule that does not need the archive. A pure
/// function: takes any bytes, never throws.
[[nodiscard]] CManifestResult parseManifest(const QByteArray &json);

/// The name of a kind in the manifest, like "FileUpload"; empty for EFirmwareUpdateStep::Invalid.
[[nodiscard]] QString getStepKindName(Plugin::CameraPool::EFirmwareUpdateStep kind);

} // namespace Viewer::CameraPool::UpdateFile
