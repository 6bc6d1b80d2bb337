#pragma once

namespace Viewer::Camera {

/// What a camera is doing.
enum class ECameraActivity {
    Idle,
    Acquiring,
    Recording,
    Updating,
    InUseElsewhere, ///< another application acquires from the camera
};

} // namespace Viewer::Camera
