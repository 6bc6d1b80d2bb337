#include "updatefilecache.h"

#include "updatefileerror.h"
#include "updatefilereader.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace Viewer::UpdateFile {

QSharedPointer<const CUpdateManifest> CUpdateFileCache::read(const QString &path)
{
    const QFileInfo info(QDir::fromNativeSeparators(path));
    // Access rights are not part of a file's state here, so a file that cannot be opened now is
    // looked at again the next time.
    if (!info.isFile() || !info.isReadable())
        return QSharedPointer<CUpdateManifest>::create(
            CUpdateFileReader::read(info.absoluteFilePath()));

    const CFileState state = getFileState(info.absoluteFilePath());
    const auto known
        = std::find_if(m_results.begin(), m_results.end(),
                       [&state](const CResult &result) { return result.state == state; });
    if (known != m_results.end()) {
        std::rotate(m_results.begin(), known, known + 1);
    } else {
        CResult result = readFile(state);
        // Written to meanwhile: nobody knows which state has been read.
        if (!(getFileState(state.path) == state))
            result.state = CFileState();
        m_results.erase(std::remove_if(m_results.begin(), m_results.end(),
                                       [&state](const CResult &other) {
                                           return other.state.path == state.path;
                                       }),
                        m_results.end());
        m_results.prepend(std::move(result));
        if (m_results.size() > CAPACITY)
            m_results.resize(CAPACITY);
    }

    const CResult &result = m_results.constFirst();
    if (!result.manifest)
        throw CUpdateFileError(state.path, result.cause);
    return result.manifest;
}

bool CUpdateFileCache::CFileState::operator==(const CFileState &other) const
{
    return path == other.path && size == other.size && modified == other.modified;
}

CUpdateFileCache::CFileState CUpdateFileCache::getFileState(const QString &path)
{
    const QFileInfo info(path);
    return {path, info.size(), info.lastModified()};
}

CUpdateFileCache::CResult CUpdateFileCache::readFile(const CFileState &state)
{
    CResult result;
    result.state = state;
    try {
        result.manifest
            = QSharedPointer<CUpdateManifest>::create(CUpdateFileReader::read(state.path));
    } catch (const CUpdateFileError &error) {
        result.cause = error.getCause();
    }
    return result;
}

} // namespace Viewer::UpdateFile
