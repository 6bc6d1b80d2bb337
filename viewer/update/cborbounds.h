#pragma once

#include <QByteArray>

namespace Viewer::Update {

/// More than any message between viewer and worker has.
inline constexpr int MAXIMUM_MESSAGE = 1024 * 1024; // bytes

/// Whether the CBOR item at the front of @p bytes, as far as it has come, may be a message: Qt's
/// reader would believe an item that says that it has gigabytes, and make room for them.
[[nodiscard]] bool isBounded(const QByteArray &bytes);

} // namespace Viewer::Update
