#pragma once

#include "viewer/updatefile/updatemanifest.h"

#include <chrono>

namespace Viewer::Camera {
class ICameraDevice;
}

namespace Viewer::Update {

/// How long one step of an update takes, about: what the update file says, else a usual time; for
/// an upload it follows from size and @p uploadRate (bytes per second). 1 ms to INT_MAX ms.
[[nodiscard]] std::chrono::milliseconds estimateStep(const UpdateFile::CUpdateStep &step,
                                                     qint64 uploadRate);

/// The sum over all steps, at most INT_MAX ms.
[[nodiscard]] std::chrono::milliseconds estimateEntry(const UpdateFile::CUpdateEntry &entry,
                                                      qint64 uploadRate);

/// How long to wait before a step that should take @p estimate is given up. Update files are
/// written for ideal conditions, hence the factor; nobody wants to wait for hours, hence its limit.
[[nodiscard]] std::chrono::milliseconds getTimeLimit(std::chrono::milliseconds estimate);

/// How long @p step may take with @p device before it has failed: never less than an upload takes
/// at the camera's best speed or a camera of this kind needs to restart, whatever the update file
/// promises.
[[nodiscard]] std::chrono::milliseconds getTimeLimit(const UpdateFile::CUpdateStep &step,
                                                     const Camera::ICameraDevice &device);

} // namespace Viewer::Update
