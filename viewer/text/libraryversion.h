#pragma once

#include <QString>

namespace Viewer::Text {

/// A library that this program uses. A computer may have another version of it than the one that
/// the program was built with.
struct CLibraryVersion
{
    QString name;
    QString built; ///< the version at build time
    QString running; ///< the version that is loaded
};

} // namespace Viewer::Text
