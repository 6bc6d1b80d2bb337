#pragma once

#include <QLoggingCategory>

namespace Viewer::CameraPool {

/// "viewer.camerapool", from level info on.
Q_DECLARE_LOGGING_CATEGORY(cameraPoolLog)

} // namespace Viewer::CameraPool
