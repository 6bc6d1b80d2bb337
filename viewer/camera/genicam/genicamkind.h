#pragma once

#include "viewer/camera/icamerakind.h"

#include <memory>

namespace Viewer::Camera::GenICam {

/// Real cameras. Where the library for them was missing when the viewer was built, there are none,
/// and the options say so.
[[nodiscard]] std::unique_ptr<ICameraKind> makeKind();

} // namespace Viewer::Camera::GenICam
