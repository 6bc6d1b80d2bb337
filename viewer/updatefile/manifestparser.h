#pragma once

#include "updatemanifest.h"

#include "viewer/text/errortext.h"

#include <QByteArray>
#include <QString>

namespace Viewer::UpdateFile {

/// The version of the manifest's format that this program writes and reads.
constexpr int FORMAT_VERSION = 1;

/// What a manifest says, or the first rule that it breaks.
struct CManifestResult
{
    CUpdateManifest manifest; ///< empty when there is a fault
    /// With line, column and field; one line without a final full stop; empty: no fault.
    Text::CErrorText fault;
};

/// Whether the uploads have to tell the sizes and digests of their payloads: the author of an
/// update file may leave them out, and has them filled in when the file is packed.
enum class EPayloadFacts { Required, Optional };

/// Reads the bytes of update.json and checks every rule that does not need the archive. A pure
/// function: takes any bytes, never throws.
[[nodiscard]] CManifestResult parseManifest(const QByteArray &json,
                                            EPayloadFacts payloadFacts = EPayloadFacts::Required);

/// Whether steps of this @p kind change something in the camera.
[[nodiscard]] bool changesCamera(Plugin::CameraPool::EFirmwareUpdateStep kind);

/// The name of a kind in the manifest, like "FileUpload"; empty for EFirmwareUpdateStep::Invalid.
[[nodiscard]] QString getStepKindName(Plugin::CameraPool::EFirmwareUpdateStep kind);

} // namespace Viewer::UpdateFile
