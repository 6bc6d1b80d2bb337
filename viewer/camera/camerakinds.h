#pragma once

#include "icamerakind.h"

#include <memory>
#include <vector>

namespace Viewer::Camera {

using CCameraKinds = std::vector<std::unique_ptr<ICameraKind>>;

/// One of each kind that there is, in the order in which their transport layers are listed. The one
/// place that names them.
[[nodiscard]] CCameraKinds makeCameraKinds();

} // namespace Viewer::Camera
