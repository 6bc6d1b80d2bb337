#pragma once

#include <QString>

namespace Viewer::Process {

// Where the parts of the viewer lie, seen from the folder of the running program: an installation
// may stand, or be moved, anywhere. A build folder looks like one but for what the functions say,
// so neither ever uses a part of the other. All need the application object.

/// nuvexcameraworker, which nobody else starts.
[[nodiscard]] QString getWorkerPath();

/// The folder of the plug-ins that came with the viewer: that of an installation where there is
/// one, otherwise the program's own, as in a build folder.
[[nodiscard]] QString getPluginFolder();

/// The folder of the sample update files; empty: none is installed.
[[nodiscard]] QString findSampleFolder();

/// The first page of the manual; empty: none is installed.
[[nodiscard]] QString findManual();

} // namespace Viewer::Process
