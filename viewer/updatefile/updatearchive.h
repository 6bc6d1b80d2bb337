#pragma once

#include "updatemanifest.h"
#include "viewer/text/libraryversion.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

class QIODevice;
struct zip;

namespace Viewer::Text {
class CErrorText;
}

namespace Viewer::UpdateFile {

class CPayloadDevice;

/// The archive of an update file, kept open: a file that takes its place on the disk meanwhile
/// cannot change what is read. One thread at a time; no thread affinity, so it may be opened on one
/// thread and used on another.
class CUpdateArchive
{
public:
    /// The library that unpacks archives.
    [[nodiscard]] static Text::CLibraryVersion getLibrary();

    /// Opens the file and checks what holds for the archive as a whole: its size, the number,
    /// names, compression and encryption of its entries and their declared sizes. @p path has
    /// native or plain separators. Throws CUpdateFileError.
    explicit CUpdateArchive(const QString &path);
    ~CUpdateArchive();
    Q_DISABLE_COPY(CUpdateArchive)

    [[nodiscard]] QString getPath() const;

    /// The names of the files in the archive, without folders, in the archive's order.
    [[nodiscard]] QStringList getFileNames() const;

    /// The bytes of the manifest. Throws CUpdateFileError when there is none, or it is too large.
    [[nodiscard]] QByteArray readManifest() const;

    /// The bytes of the manifest's signature, unread; nothing: there is none. Throws
    /// CUpdateFileError when it is too large.
    [[nodiscard]] std::optional<QByteArray> readSignature() const;

    /// Reads the payload from end to end, without keeping it, and throws CUpdateFileError unless it
    /// has exactly the size and the SHA-256 that @p payload tells. See CUpdateFileReader::read()
    /// for @p checkpoint.
    void checkPayload(const CPayload &payload, const std::function<void()> &checkpoint = {}) const;

    /// A sequential device, open for reading, that gives the payload's bytes. Throws
    /// CUpdateFileError when the archive has no such file or one of another size.
    ///
    /// The last read fails when the bytes do not match the SHA-256: read() then returns -1 and
    /// errorString() is the sentence, so nobody gets all bytes of a damaged payload. The device
    /// keeps the archive open and belongs to the calling thread, as every QObject does; it is to be
    /// destroyed there.
    [[nodiscard]] std::unique_ptr<QIODevice> openPayload(const CPayload &payload) const;

private:
    struct CEntry
    {
        QString name; ///< of a folder without the slash at its end
        quint64 index = 0; ///< within the archive
        qint64 size = 0; ///< declared, at most one more than the limit of all together
        bool isFolder = false;
    };

    void openFile();
    /// Finds what the library would not tell, or not in time.
    void checkDirectory(QIODevice &file) const;

    void readDirectory();
    [[nodiscard]] QString readName(const QByteArray &stored, quint64 index) const;
    [[nodiscard]] CEntry readEntry(quint64 index) const;
    [[nodiscard]] const CEntry *findFile(const QString &name) const;
    [[nodiscard]] const CEntry &getPayloadEntry(const CPayload &payload) const;
    [[nodiscard]] QByteArray readWhole(const CEntry &entry, qint64 maximumSize) const;
    [[nodiscard]] std::unique_ptr<CPayloadDevice> openFile(const CEntry &entry,
                                                           const QByteArray &sha256) const;
    [[noreturn]] void fail(const Text::CErrorText &cause) const;

    QString m_path;
    std::shared_ptr<zip> m_zip;
    QVector<CEntry> m_files;
};

} // namespace Viewer::UpdateFile
