#pragma once

namespace Viewer::NuvexUpdate {

/// How the program ends.
enum class EExitCode {
    Done = 0, ///< all as asked, also when nothing had to change
    Failed = 1, ///< at least one camera was not updated
    WrongUse = 2,
    NoCamera = 3, ///< none was found, or none fits
    FaultyFile = 4,
    InUse = 5, ///< a camera is in use or being updated
    Stopped = 6, ///< by the user
};

} // namespace Viewer::NuvexUpdate
