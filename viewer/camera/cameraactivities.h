#pragma once

#include "ecameraactivity.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>
#include <mutex>

namespace Viewer::Camera {

/// Who in this process uses which camera: at most one of acquisition, recording and update. Shared
/// by the pool and its update jobs, which may outlive the pool. Any thread.
class CCameraActivities
{
public:
    using Listener = std::function<void(const QString &cameraId)>;

    /// Starts @p activity unless the camera is updated, or unless it does anything at all and is to
    /// be updated. Returns what it did before; it does @p activity now if that was permitted.
    ECameraActivity begin(const QString &cameraId, ECameraActivity activity);

    /// The camera is idle afterwards.
    void end(const QString &cameraId);

    [[nodiscard]] ECameraActivity get(const QString &cameraId) const;

    /// The ids of all cameras that are not idle.
    [[nodiscard]] QStringList getActive() const;

    [[nodiscard]] bool isUpdateRunning() const;

    /// The number of updates that have begun so far. If it is the same at two times and no update
    /// runs at either, none ran in between.
    [[nodiscard]] int getUpdateCount() const;

    /// Called after each change, on the thread that made it. Once this has returned, the previous
    /// listener is not called any more. The listener must not call back.
    void setListener(const Listener &listener);

    /// True when begin() permits @p wanted to a camera that does @p current.
    [[nodiscard]] static bool isPermitted(ECameraActivity current, ECameraActivity wanted);

private:
    void notify(const QString &cameraId) const;

    mutable std::mutex m_mutex;
    QHash<QString, ECameraActivity> m_activities; // of cameras that are not idle
    int m_runningUpdates = 0;
    int m_updateCount = 0;

    mutable std::mutex m_listenerMutex;
    Listener m_listener;
};

} // namespace Viewer::Camera
