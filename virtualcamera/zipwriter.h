#pragma once

#include <QByteArray>

namespace VirtualCamera {

/// Writes ZIP archives, and knows how to make small ones of large files.
class CZipWriter
{
public:
    /// Adds a file: @p content, filled up with blanks to @p size bytes, which is below 4 GiB. Costs
    /// no more than the packed bytes, however many blanks there are. Names are taken as they are.
    void add(const QByteArray &name, const QByteArray &content, qint64 size = 0);

    /// The archive of the files added so far, a whole number of words long.
    [[nodiscard]] QByteArray getArchive() const;

private:
    QByteArray m_files;
    QByteArray m_directory;
    int m_count = 0;
};

} // namespace VirtualCamera
