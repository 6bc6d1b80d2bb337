#pragma once

#include <QLoggingCategory>

namespace Viewer::Update {

/// "viewer.update": the steps of updates. Debug lines only where QT_LOGGING_RULES asks for them.
Q_DECLARE_LOGGING_CATEGORY(updateLog)

} // namespace Viewer::Update
