#include "logging.h"

namespace Viewer::PluginSystem {

Q_LOGGING_CATEGORY(pluginLog, "viewer.plugins", QtInfoMsg)

} // namespace Viewer::PluginSystem
