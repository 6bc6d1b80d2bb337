#pragma once

#include <QDBusMessage>
#include <QString>

namespace Viewer::Desktop {

/// What the viewer is called by those who show it to the user.
[[nodiscard]] QString getProductName();

/// Where programs of the whole computer and where those of the user's session meet: addresses for
/// callBus(), from the environment.
[[nodiscard]] QString getSystemBus();
[[nodiscard]] QString getSessionBus();

/// Connects to the bus at @p address, calls what @p call says and disconnects. Returns the answer,
/// or a message of the type ErrorMessage: there is no such bus or service, it refuses, or does not
/// answer. May take ten seconds, so nobody should wait for the thread that calls this; any thread,
/// but one call at a time in a process.
[[nodiscard]] QDBusMessage callBus(const QString &address, const QDBusMessage &call);

} // namespace Viewer::Desktop
