#pragma once

#include <QString>

namespace Viewer::Process {

/// Where nuvexcameraworker lies: in `libexec/` beside the folder of this program, as nobody else
/// starts it. Needs the application object.
[[nodiscard]] QString getWorkerPath();

} // namespace Viewer::Process
