#pragma once

#include <QLoggingCategory>

namespace Viewer::Camera {

/// "viewer.camerapool", from level info on.
Q_DECLARE_LOGGING_CATEGORY(cameraPoolLog)

} // namespace Viewer::Camera
