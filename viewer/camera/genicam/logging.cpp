#include "logging.h"

namespace Viewer::Camera::GenICam {

Q_LOGGING_CATEGORY(genICamLog, "viewer.camera.genicam", QtInfoMsg)

} // namespace Viewer::Camera::GenICam
