#pragma once

#include "viewer/camera/icamerakind.h"

#include <memory>

namespace Viewer::Camera::Simulation {

/// Cameras without hardware.
[[nodiscard]] std::unique_ptr<ICameraKind> makeKind();

} // namespace Viewer::Camera::Simulation
