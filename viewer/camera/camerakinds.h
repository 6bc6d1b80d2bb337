#pragma once

#include "icamerakind.h"

namespace Viewer::Camera {

/// One of each kind that there is, in the order in which their transport layers are listed. The one
/// place that names them.
[[nodiscard]] CCameraKinds makeCameraKinds();

} // namespace Viewer::Camera
