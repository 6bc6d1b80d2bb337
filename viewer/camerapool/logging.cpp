#include "logging.h"

namespace Viewer::CameraPool {

Q_LOGGING_CATEGORY(cameraPoolLog, "viewer.camerapool", QtInfoMsg)

} // namespace Viewer::CameraPool
