#pragma once

#include <QString>

namespace Viewer::Files {

/// The folder @p name among those in which the viewer keeps what it did:
/// `$XDG_STATE_HOME/nuvexviewer/<name>`, below `~/.local/state` where the variable is not set or
/// not absolute. Empty if there is no home folder either. Nothing is made. Any thread, as long as
/// nobody changes the environment.
[[nodiscard]] QString getStateFolder(const QString &name);

/// What the user has set for the viewer is below this folder: `$XDG_CONFIG_HOME/nuvexviewer`, below
/// `~/.config` where the variable is not set or not absolute. Otherwise the same.
[[nodiscard]] QString getConfigFolder();

/// Makes the folder @p path, and those above it that are missing, for this user alone. One that is
/// there already stays as it is. An error number, or 0. Any thread.
[[nodiscard]] int makePrivateFolder(const QString &path);

} // namespace Viewer::Files
