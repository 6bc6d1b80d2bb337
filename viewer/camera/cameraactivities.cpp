#include "cameraactivities.h"

namespace Viewer::Camera {

ECameraActivity CCameraActivities::begin(const QString &cameraId, ECameraActivity activity)
{
    ECameraActivity previous = ECameraActivity::Idle;
    {
        const std::lock_guard lock(m_mutex);
        previous = m_activities.value(cameraId, ECameraActivity::Idle);
        if (!isPermitted(previous, activity))
            return previous;
        m_activities.insert(cameraId, activity);
        if (activity == ECameraActivity::Updating) {
            ++m_runningUpdates;
            ++m_updateCount;
        }
    }
    notify(cameraId);
    return previous;
}

void CCameraActivities::end(const QString &cameraId)
{
    {
        const std::lock_guard lock(m_mutex);
        const ECameraActivity previous = m_activities.take(cameraId);
        if (previous == ECameraActivity::Idle)
            return;
        if (previous == ECameraActivity::Updating)
            --m_runningUpdates;
    }
    notify(cameraId);
}

ECameraActivity CCameraActivities::get(const QString &cameraId) const
{
    const std::lock_guard lock(m_mutex);
    return m_activities.value(cameraId, ECameraActivity::Idle);
}

QStringList CCameraActivities::getActive() const
{
    const std::lock_guard lock(m_mutex);
    return m_activities.keys();
}

bool CCameraActivities::isUpdateRunning() const
{
    const std::lock_guard lock(m_mutex);
    return m_runningUpdates > 0;
}

int CCameraActivities::getUpdateCount() const
{
    const std::lock_guard lock(m_mutex);
    return m_updateCount;
}

void CCameraActivities::setListener(const Listener &listener)
{
    const std::lock_guard lock(m_listenerMutex);
    m_listener = listener;
}

bool CCameraActivities::isPermitted(ECameraActivity current, ECameraActivity wanted)
{
    return current == ECameraActivity::Idle
        || (current != ECameraActivity::Updating && wanted != ECameraActivity::Updating);
}

void CCameraActivities::notify(const QString &cameraId) const
{
    const std::lock_guard lock(m_listenerMutex);
    if (m_listener)
        m_listener(cameraId);
}

} // namespace Viewer::Camera
