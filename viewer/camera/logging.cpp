#include "logging.h"

namespace Viewer::Camera {

Q_LOGGING_CATEGORY(cameraPoolLog, "viewer.camerapool", QtInfoMsg)

} // namespace Viewer::Camera
