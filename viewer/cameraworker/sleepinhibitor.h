#pragma once

#include <QDBusUnixFileDescriptor>
#include <QString>

#include <future>

namespace Viewer::CameraWorker {

/// Holds off sleep, shutdown and what the desktop does when the lid is closed, by a lock of logind
/// that lasts as long as this object and the process.
class CSleepInhibitor
{
public:
    /// Asks for the lock. @p why is a sentence for whoever wants to switch the computer off. Waits
    /// for a second at most; a lock that comes later is held as well. Where none is to be had, a
    /// line for developers says so, and nothing else happens.
    void hold(const QString &why);

private:
    std::future<QDBusUnixFileDescriptor> m_lock; ///< shared with the thread that asks
};

} // namespace Viewer::CameraWorker
