#pragma once

#include "sha256.h"

#include "viewer/text/errortext.h"

#include <QByteArray>
#include <QIODevice>

#include <memory>

struct zip;
struct zip_file;

namespace Viewer::UpdateFile {

/// Reads one file of an open archive, exactly as many bytes as announced, and checks at the last
/// one that no more follow and that the digest is right. Sequential, not buffered. See
/// CUpdateArchive::openPayload().
class CPayloadDevice : public QIODevice
{
    Q_OBJECT

public:
    /// A file of @p archive to be read.
    struct CSource
    {
        QString archivePath; ///< for the sentences
        QString name;
        quint64 index = 0; ///< within the archive
        qint64 size = 0; ///< unpacked, in bytes
        QByteArray sha256; ///< 32 raw bytes; empty: any content will do
    };

    /// Opens the device; where that fails, isOpen() is false and errorString() is the sentence.
    CPayloadDevice(std::shared_ptr<zip> archive, const CSource &source);
    ~CPayloadDevice() override;

    /// What is wrong with the file, without the archive's path; empty as long as nothing is.
    [[nodiscard]] Text::CErrorText getFault() const;

    [[nodiscard]] bool isSequential() const override;
    [[nodiscard]] bool atEnd() const override;
    [[nodiscard]] qint64 bytesAvailable() const override;

protected:
    qint64 readData(char *data, qint64 maximumSize) override;
    qint64 writeData(const char *data, qint64 size) override;

private:
    struct CFileCloser
    {
        void operator()(zip_file *file) const;
    };

    bool checkEnd();
    void setFault(const Text::CErrorText &cause);

    const std::shared_ptr<zip> m_archive; ///< outlives the file read from it
    const CSource m_source;
    std::unique_ptr<zip_file, CFileCloser> m_file;
    CSha256 m_hash;
    qint64 m_remaining = 0;
    Text::CErrorText m_fault;
};

} // namespace Viewer::UpdateFile
