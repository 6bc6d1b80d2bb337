#include "logging.h"

namespace Viewer::Camera {

Q_LOGGING_CATEGORY(cameraLog, "viewer.camera", QtInfoMsg)

} // namespace Viewer::Camera
