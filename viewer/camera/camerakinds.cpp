#include "camerakinds.h"

#include "genicam/genicamkind.h"
#include "simulation/simulationkind.h"

namespace Viewer::Camera {

CCameraKinds makeCameraKinds()
{
    CCameraKinds kinds;
    kinds.push_back(Simulation::makeKind());
    kinds.push_back(GenICam::makeKind());
    return kinds;
}

} // namespace Viewer::Camera
