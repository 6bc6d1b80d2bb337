#pragma once

#include <QByteArray>
#include <QCborMap>

#include <optional>

namespace Viewer::Process {

/// More than any message between the viewer and a worker has.
inline constexpr int MAXIMUM_MESSAGE = 1024 * 1024; // bytes

/// More than any list in a message has.
inline constexpr int MAXIMUM_ENTRIES = 1000;

/// Whether the CBOR item at the front of @p bytes, as far as it has come, may be a message: Qt's
/// reader would believe an item that says that it has gigabytes, and make room for them.
[[nodiscard]] bool isBounded(const QByteArray &bytes);

/// Takes the message, a map, at the front of what another process has sent so far. Nothing: it has
/// not come as a whole yet, or, when @p isBroken, what stands there is none and never becomes one.
[[nodiscard]] std::optional<QCborMap> takeMessage(QByteArray &bytes, bool &isBroken);

} // namespace Viewer::Process
