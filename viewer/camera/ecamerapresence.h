#pragma once

namespace Viewer::Camera {

/// Whether a camera is there.
enum class ECameraPresence {
    Unknown, ///< it is none of this kind
    Absent,
    Present,
    InUseElsewhere, ///< present, and another application acquires from it
};

} // namespace Viewer::Camera
