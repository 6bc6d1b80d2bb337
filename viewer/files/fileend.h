#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

namespace Viewer::Files {

/// The end of a text file, so that a huge one costs no more than its end.
class CFileEnd
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::Files::CFileEnd)

public:
    /// Reads at most @p maximumSize bytes. Of a longer file the last whole lines; what is no
    /// regular file, and might never end, is not opened.
    [[nodiscard]] static CFileEnd read(const QString &path, qint64 maximumSize);

    QByteArray text;
    bool isPartial = false; ///< the file has more in front
    QString error; ///< one sentence in the user's language; empty: the text is there
};

} // namespace Viewer::Files
