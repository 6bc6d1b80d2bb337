#include "simulationkind.h"

#include "simulation.h"

namespace Viewer::Camera::Simulation {

std::unique_ptr<ICameraKind> makeKind()
{
    return std::make_unique<CSimulation>();
}

} // namespace Viewer::Camera::Simulation
