#pragma once

#include <QLoggingCategory>

namespace Viewer::PluginSystem {

/// "viewer.plugins": what was found, loaded and refused. Debug lines only where QT_LOGGING_RULES
/// asks for them.
Q_DECLARE_LOGGING_CATEGORY(pluginLog)

} // namespace Viewer::PluginSystem
