#include "sleepinhibitor.h"

#include "viewer/desktop/buscall.h"
#include "viewer/update/logging.h"

#include <exception>
#include <thread>
#include <utility>

namespace Viewer::CameraWorker {

using Update::updateLog;

/// A sound system answers in milliseconds, and the camera is not to wait for any other.
static constexpr std::chrono::seconds PATIENCE{1};

static QDBusUnixFileDescriptor takeLock(const QString &why)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("Inhibit"));
    call << QStringLiteral("sleep:shutdown:handle-lid-switch") << Desktop::getProductName() << why
         << QStringLiteral("block");
    const QDBusMessage answer = Desktop::callBus(Desktop::getSystemBus(), call);
    const auto lock = answer.arguments().value(0).value<QDBusUnixFileDescriptor>();
    if (lock.isValid())
        qCDebug(updateLog, "sleep and shutdown are held off");
    else
        qCDebug(updateLog, "sleep and shutdown are not held off: %s",
                qUtf8Printable(answer.errorMessage()));
    return lock;
}

void CSleepInhibitor::hold(const QString &why)
{
    std::promise<QDBusUnixFileDescriptor> promise;
    m_lock = promise.get_future();
    try {
        // Nothing can end a wait for a bus, so nobody waits for the end of this thread either.
        std::thread([promise = std::move(promise), why]() mutable {
            try {
                promise.set_value(takeLock(why));
            } catch (const std::exception &exception) {
                qCDebug(updateLog, "sleep and shutdown are not held off: %s", exception.what());
            }
        }).detach();
    } catch (const std::exception &exception) {
        qCDebug(updateLog, "sleep and shutdown are not held off: %s", exception.what());
        return;
    }
    m_lock.wait_for(PATIENCE);
}

} // namespace Viewer::CameraWorker
