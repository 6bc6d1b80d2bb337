#pragma once

#include "viewer/text/errortext.h"

#include <QString>

namespace Viewer::Files {

/// Whether a file or folder is safe from other users of the computer: what they can write must
/// neither run as code of this process nor be taken for this user's own. Says who besides root and
/// the user of this process could write @p path, which is followed if it is a link, as a clause
/// without a full stop; empty: nobody. A group that consists of the owner alone counts as the
/// owner.
[[nodiscard]] Text::CErrorText findPathFault(const QString &path);

} // namespace Viewer::Files
