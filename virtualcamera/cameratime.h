#pragma once

#include <chrono>

namespace VirtualCamera {

/// A point in time since an arbitrary beginning; time never runs back. It is also what the camera's
/// time stamps count.
using Time = std::chrono::nanoseconds;

} // namespace VirtualCamera
