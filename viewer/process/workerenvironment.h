#pragma once

#include <QProcessEnvironment>

namespace Viewer::Process {

/// What a worker gets of this process's environment: nothing but what says where things are, in
/// which language, and what developers want to see.
[[nodiscard]] QProcessEnvironment makeWorkerEnvironment();

} // namespace Viewer::Process
