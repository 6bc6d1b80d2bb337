#pragma once

#include "updatemanifest.h"

#include "viewer/text/errortext.h"

#include <QDateTime>
#include <QSharedPointer>
#include <QString>
#include <QVector>

namespace Viewer::UpdateFile {

/// Remembers the last few update files that were read, faulty ones included, so that asking again
/// for an unchanged file costs a look at its size and modification time. One thread.
class CUpdateFileCache
{
public:
    /// So many files are remembered; the one asked for least recently goes first.
    static constexpr int CAPACITY = 8;

    /// What CUpdateFileReader::read() gives for the file, or gave when the file still had the size
    /// and the modification time that it has now. The same pointer comes back as long as the file
    /// is remembered and unchanged. @p path has native or plain separators; a relative one counts
    /// from the current directory. Throws CUpdateFileError with the same message each time.
    [[nodiscard]] QSharedPointer<const CUpdateManifest> read(const QString &path);

private:
    /// What tells one state of a file from another.
    struct CFileState
    {
        QString path;
        qint64 size = 0;
        QDateTime modified;

        bool operator==(const CFileState &other) const;
    };

    struct CResult
    {
        CFileState state;
        QSharedPointer<const CUpdateManifest> manifest; ///< null when the file is faulty
        Text::CErrorText cause; ///< the fault
    };

    static CFileState getFileState(const QString &path);
    static CResult readFile(const CFileState &state);

    QVector<CResult> m_results; ///< most recently asked for first
};

} // namespace Viewer::UpdateFile
