#pragma once

#include <QByteArray>
#include <QVector>

class QIODevice;

namespace Viewer::UpdateFile {

/// What the directory at the end of a ZIP archive says. It is looked at before the library is: that
/// one reads whatever number of entries it is told of, and takes a NUL in a name for a blank.
struct CArchiveDirectory
{
    quint64 entryCount = 0; ///< the largest that an end record tells; 0: there is no end record
    bool isDamaged = false; ///< no sound archive has such an end

    /// Of the entries, in their order, as they are stored. Only filled where there are not more
    /// than was asked for; ends where something else than an entry stands.
    QVector<QByteArray> names;
};

/// Reads the end of @p file, which must be open and can seek, and the names of at most
/// @p maximumEntries entries. The position of @p file is left anywhere.
[[nodiscard]] CArchiveDirectory readArchiveDirectory(QIODevice &file, int maximumEntries);

} // namespace Viewer::UpdateFile
