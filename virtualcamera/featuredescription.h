#pragma once

#include <QByteArray>

namespace VirtualCamera {

/// The description of the camera's features for a file access buffer of @p bufferLength bytes: XML
/// by the schema of GenICam, filled up with blanks to a whole word.
[[nodiscard]] QByteArray makeFeatureDescription(int bufferLength);

} // namespace VirtualCamera
