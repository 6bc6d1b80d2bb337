#pragma once

#include <QLoggingCategory>

namespace Viewer::Camera {

/// "viewer.camera": what is remembered of cameras. Debug lines only where QT_LOGGING_RULES asks for
/// them.
Q_DECLARE_LOGGING_CATEGORY(cameraLog)

} // namespace Viewer::Camera
