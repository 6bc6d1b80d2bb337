#pragma once

namespace Viewer::CameraWorker {

/// Takes from the process what an update does not need, before anything of a camera is touched: a
/// session of its own, no core dumps, no new rights, an address space of 1 GiB, no descriptors but
/// the three standard ones.
void confineProcess();

} // namespace Viewer::CameraWorker
