#include "simulationnotifier.h"

namespace Viewer::Camera::Simulation {

void CSimulationNotifier::setListener(const Listener &listener)
{
    const std::lock_guard lock(m_mutex);
    m_listener = listener;
}

void CSimulationNotifier::notify(const QString &cameraId) const
{
    const std::lock_guard lock(m_mutex);
    if (m_listener)
        m_listener(cameraId);
}

} // namespace Viewer::Camera::Simulation
