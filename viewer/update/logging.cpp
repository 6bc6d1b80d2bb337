#include "logging.h"

namespace Viewer::Update {

Q_LOGGING_CATEGORY(updateLog, "viewer.update", QtInfoMsg)

} // namespace Viewer::Update
