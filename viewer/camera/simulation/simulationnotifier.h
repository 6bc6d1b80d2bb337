#pragma once

#include <QString>

#include <functional>
#include <mutex>

namespace Viewer::Camera::Simulation {

/// Carries news of the simulated cameras, from whatever thread they come, to the object that owns
/// the simulation. Cameras can outlive that object, since a running update holds its camera.
class CSimulationNotifier
{
public:
    using Listener = std::function<void(const QString &cameraId)>;

    /// Once this has returned, the previous listener is not called any more. The listener is called
    /// on any thread and must not call back.
    void setListener(const Listener &listener);

    void notify(const QString &cameraId) const;

private:
    mutable std::mutex m_mutex;
    Listener m_listener;
};

} // namespace Viewer::Camera::Simulation
