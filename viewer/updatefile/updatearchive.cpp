#include "updatearchive.h"

#include "archivedirectory.h"
#include "entryname.h"
#include "payloaddevice.h"
#include "updatefileerror.h"
#include "updatefilelimits.h"
#include "viewer/signature/signaturelimits.h"
#include "viewer/text/visibletext.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <unistd.h>
#include <zip.h>

namespace Viewer::UpdateFile {

using Text::CErrorText;
namespace {

constexpr int BLOCK_SIZE = 64 * 1024;

/// What the first bytes of an archive that is not empty are.
const QByteArray ARCHIVE_BEGIN = QByteArrayLiteral("PK\x03\x04");

CErrorText getDamageText()
{
    return CErrorText::tr("the archive is damaged; copy the file again");
}

CErrorText describeOpenFault(int zipError, const QByteArray &firstBytes)
{
    switch (zipError) {
    case ZIP_ER_NOZIP:
        if (firstBytes == ARCHIVE_BEGIN)
            return CErrorText::tr("the archive is cut off at its end; copy the file again");
        return CErrorText::tr("this is not an update file, as it is not a ZIP archive");
    case ZIP_ER_MULTIDISK:
        return CErrorText::tr("the archive is one part of several; pack it as one file");
    case ZIP_ER_MEMORY:
        return CErrorText::tr("there is not enough memory to read the archive");
    case ZIP_ER_READ:
    case ZIP_ER_SEEK:
    case ZIP_ER_OPEN:
        return CErrorText::tr("the file cannot be read from the disk");
    default:
        return getDamageText();
    }
}

} // namespace

Text::CLibraryVersion CUpdateArchive::getLibrary()
{
    return {QStringLiteral("libzip"), QStringLiteral(LIBZIP_VERSION),
            QString::fromLatin1(zip_libzip_version())};
}

CUpdateArchive::CUpdateArchive(const QString &path)
    : m_path(QFileInfo(QDir::fromNativeSeparators(path)).absoluteFilePath())
{
    openFile();
    readDirectory();
}

CUpdateArchive::~CUpdateArchive() = default;

QString CUpdateArchive::getPath() const
{
    return m_path;
}

QStringList CUpdateArchive::getFileNames() const
{
    QStringList names;
    for (const CEntry &entry : m_files)
        names.append(entry.name);
    return names;
}

QByteArray CUpdateArchive::readManifest() const
{
    const CEntry *entry = findFile(getManifestName());
    if (!entry) {
        const QString ending = QLatin1Char('/') + getManifestName();
        for (const CEntry &file : m_files) {
            if (file.name.endsWith(ending))
                fail(
                    CErrorText::tr("update.json is in a folder of the archive (\"%1\"); it must be "
                                   "at the top level")
                        .arg(Text::shorten(file.name)));
        }
        fail(CErrorText::tr("there is no update.json in the archive"));
    }
    return readWhole(*entry, Limits::MANIFEST_SIZE);
}

std::optional<QByteArray> CUpdateArchive::readSignature() const
{
    const CEntry *const entry = findFile(getSignatureName());
    if (!entry)
        return std::nullopt;
    return readWhole(*entry, Signature::Limits::SIGNATURE_SIZE);
}

QByteArray CUpdateArchive::readWhole(const CEntry &entry, qint64 maximumSize) const
{
    if (entry.size > maximumSize)
        fail(CErrorText::tr("%1 has %2 bytes; at most %3 are allowed")
                 .arg(entry.name, QString::number(entry.size), QString::number(maximumSize)));
    const auto device = openFile(entry, QByteArray());
    const QByteArray bytes = device->readAll();
    if (!device->getFault().isEmpty())
        fail(device->getFault());
    return bytes;
}

void CUpdateArchive::checkPayload(const CPayload &payload,
                                  const std::function<void()> &checkpoint) const
{
    const auto device = openFile(getPayloadEntry(payload), payload.sha256);
    QByteArray block(BLOCK_SIZE, Qt::Uninitialized);
    while (!device->atEnd()) {
        if (checkpoint)
            checkpoint();
        device->read(block.data(), block.size());
    }
    if (!device->getFault().isEmpty())
        fail(device->getFault());
}

std::unique_ptr<QIODevice> CUpdateArchive::openPayload(const CPayload &payload) const
{
    return openFile(getPayloadEntry(payload), payload.sha256);
}

void CUpdateArchive::openFile()
{
    const QFileInfo info(m_path);
    if (!info.exists())
        fail(CErrorText::tr("the file does not exist"));
    if (info.isDir())
        fail(CErrorText::tr("this is a folder, not a file"));
    // A pipe or a device could block for ever.
    if (!info.isFile())
        fail(CErrorText::tr("this is not a regular file"));

    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        fail(CErrorText::tr("the file cannot be opened; check its access rights"));
    if (file.size() == 0)
        fail(CErrorText::tr("the file is empty"));
    if (file.size() > Limits::ARCHIVE_SIZE)
        fail(CErrorText::tr("the file has %1 bytes; at most %2 are allowed")
                 .arg(QString::number(file.size()), QString::number(Limits::ARCHIVE_SIZE)));
    const QByteArray firstBytes = file.read(ARCHIVE_BEGIN.size());
    checkDirectory(file);

    // A second descriptor of the same open file, which the library closes with the archive.
    const int descriptor = dup(file.handle());
    if (descriptor < 0)
        fail(CErrorText::tr("the file cannot be opened; too many files are open"));
    int zipError = ZIP_ER_OK;
    zip_t *const archive = zip_fdopen(descriptor, 0, &zipError);
    if (!archive) {
        ::close(descriptor);
        fail(describeOpenFault(zipError, firstBytes));
    }
    m_zip = std::shared_ptr<zip>(archive, zip_discard);
}

void CUpdateArchive::checkDirectory(QIODevice &file) const
{
    const CArchiveDirectory directory = readArchiveDirectory(file, Limits::ENTRIES);
    if (directory.entryCount > static_cast<quint64>(Limits::ENTRIES))
        fail(CErrorText::tr("the archive has %1 entries; at most %2 are allowed")
                 .arg(QString::number(directory.entryCount), QString::number(Limits::ENTRIES)));
    if (directory.isDamaged)
        fail(getDamageText());
    for (int index = 0; index < directory.names.size(); ++index)
        static_cast<void>(readName(directory.names.at(index), static_cast<quint64>(index)));
}

QString CUpdateArchive::readName(const QByteArray &stored, quint64 index) const
{
    // Guessing another encoding would hide control characters behind harmless ones.
    const QString name = QString::fromUtf8(stored.constData(), stored.size());
    if (name.isEmpty() || name.toUtf8() != stored)
        fail(CErrorText::tr("entry %1 of the archive has no name, or one that is not UTF-8")
                 .arg(QString::number(index + 1)));
    const bool isFolder = name.endsWith(QLatin1Char('/')) && name.size() > 1;
    const CErrorText fault = findEntryNameFault(isFolder ? name.chopped(1) : name);
    if (!fault.isEmpty())
        fail(CErrorText::tr("the entry name \"%1\" %2").arg(Text::shorten(name), fault));
    return name;
}

void CUpdateArchive::readDirectory()
{
    const qint64 entryCount = zip_get_num_entries(m_zip.get(), 0);
    QSet<QString> names;
    qint64 unpackedSize = 0;
    for (qint64 index = 0; index < entryCount; ++index) {
        const CEntry entry = readEntry(static_cast<quint64>(index));
        if (names.contains(entry.name))
            fail(CErrorText::tr("the archive has two entries named \"%1\"")
                     .arg(Text::shorten(entry.name)));
        names.insert(entry.name);

        if (entry.size > Limits::UNPACKED_SIZE - unpackedSize)
            fail(CErrorText::tr("the archive unpacks to more than %1 bytes")
                     .arg(QString::number(Limits::UNPACKED_SIZE)));
        unpackedSize += entry.size;
        if (!entry.isFolder)
            m_files.append(entry);
    }
}

CUpdateArchive::CEntry CUpdateArchive::readEntry(quint64 index) const
{
    CEntry entry;
    entry.index = index;
    entry.name = readName(zip_get_name(m_zip.get(), index, ZIP_FL_ENC_RAW), index);
    entry.isFolder = entry.name.endsWith(QLatin1Char('/'));
    if (entry.isFolder)
        entry.name.chop(1);

    constexpr zip_uint64_t NEEDED
        = ZIP_STAT_SIZE | ZIP_STAT_COMP_METHOD | ZIP_STAT_ENCRYPTION_METHOD;
    zip_stat_t status;
    zip_stat_init(&status);
    if (zip_stat_index(m_zip.get(), index, 0, &status) != 0 || (status.valid & NEEDED) != NEEDED)
        fail(CErrorText::tr("the entry \"%1\" of the archive is damaged")
                 .arg(Text::shorten(entry.name)));
    if (status.encryption_method != ZIP_EM_NONE)
        fail(CErrorText::tr("the entry \"%1\" is encrypted; pack it without a password")
                 .arg(Text::shorten(entry.name)));
    if (status.comp_method != ZIP_CM_STORE && status.comp_method != ZIP_CM_DEFLATE)
        fail(CErrorText::tr("the entry \"%1\" is compressed by a method other than Deflate")
                 .arg(Text::shorten(entry.name)));
    constexpr auto LARGEST = static_cast<zip_uint64_t>(Limits::UNPACKED_SIZE);
    entry.size = static_cast<qint64>(qMin<zip_uint64_t>(status.size, LARGEST + 1));
    return entry;
}

const CUpdateArchive::CEntry *CUpdateArchive::findFile(const QString &name) const
{
    for (const CEntry &entry : m_files) {
        if (entry.name == name)
            return &entry;
    }
    return nullptr;
}

const CUpdateArchive::CEntry &CUpdateArchive::getPayloadEntry(const CPayload &payload) const
{
    const CEntry *entry = findFile(payload.name);
    if (!entry)
        fail(CErrorText::tr("the payload \"%1\" is missing in the archive")
                 .arg(Text::shorten(payload.name)));
    if (entry->size != payload.size) {
        const CErrorText text = entry->size < payload.size
            ? CErrorText::tr(
                "the payload \"%1\" is too short: it has %2 bytes where update.json says "
                "%3")
            : CErrorText::tr(
                "the payload \"%1\" is too long: it has %2 bytes where update.json says "
                "%3");
        fail(text.arg(Text::shorten(payload.name), QString::number(entry->size),
                      QString::number(payload.size)));
    }
    return *entry;
}

std::unique_ptr<CPayloadDevice> CUpdateArchive::openFile(const CEntry &entry,
                                                         const QByteArray &sha256) const
{
    auto device = std::make_unique<CPayloadDevice>(
        m_zip, CPayloadDevice::CSource{m_path, entry.name, entry.index, entry.size, sha256});
    if (!device->isOpen())
        fail(device->getFault());
    return device;
}

void CUpdateArchive::fail(const CErrorText &cause) const
{
    throw CUpdateFileError(m_path, cause);
}

} // namespace Viewer::UpdateFile
