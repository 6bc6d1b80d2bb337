#pragma once

#include <QLoggingCategory>

namespace Viewer::Camera::GenICam {

/// "viewer.camera.genicam": real cameras, from the search to the reset. Debug lines only where
/// QT_LOGGING_RULES asks for them.
Q_DECLARE_LOGGING_CATEGORY(genICamLog)

} // namespace Viewer::Camera::GenICam
