#pragma once

#include "foundcamera.h"

#include <QVector>

namespace Viewer::Camera::GenICam {

/// Looks for cameras on all interfaces of this machine that are up, by broadcast.
/// Blocks for about a second. Any thread, one at a time: the search itself runs on a thread of its
/// own, to which no signal of the system is delivered, for a signal would end it early.
[[nodiscard]] QVector<CFoundCamera> searchNetwork();

} // namespace Viewer::Camera::GenICam
