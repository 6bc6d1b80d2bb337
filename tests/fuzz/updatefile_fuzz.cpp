#include "fuzztarget.h"
#include "viewer/updatefile/updatearchive.h"
#include "viewer/updatefile/updatefileerror.h"
#include "viewer/updatefile/updatefilereader.h"
#include "virtualcamera/zipwriter.h"

#include <QCryptographicHash>
#include <QIODevice>

#include <sys/mman.h>
#include <unistd.h>

using namespace Viewer::UpdateFile;

/// The archive that @p text describes, so that seeds can be read and changes go deep:
///
///   @file NAME          a file, whose content are the lines up to the next line of this kind
///   @patch OFFSET HEX   bytes in the finished archive, counted from its end where OFFSET is
///   negative
///
/// @size@ and @sha256@ in a file's content stand for those of the last file. What does not begin
/// like this is the archive itself.
static QByteArray makeArchive(const QByteArray &text)
{
    if (!text.startsWith("@file "))
        return text;
    QList<QPair<QByteArray, QByteArray>> files;
    QList<QPair<int, QByteArray>> patches;
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &line : lines) {
        const QList<QByteArray> words = line.split(' ');
        if (line.startsWith("@file "))
            files.append({line.mid(6), {}});
        else if (line.startsWith("@patch ") && words.size() == 3)
            patches.append({words[1].toInt(), QByteArray::fromHex(words[2])});
        else
            files.last().second += line + '\n';
    }
    const QByteArray last = files.last().second;
    const QByteArray sha256 = QCryptographicHash::hash(last, QCryptographicHash::Sha256).toHex();
    VirtualCamera::CZipWriter writer;
    for (auto &[name, content] : files) {
        content.replace("@size@", QByteArray::number(last.size())).replace("@sha256@", sha256);
        writer.add(name, content);
    }
    QByteArray archive = writer.getArchive();
    for (const auto &[offset, bytes] : qAsConst(patches)) {
        const qint64 begin = offset < 0 ? archive.size() + qint64(offset) : offset;
        if (begin >= 0 && begin <= archive.size())
            archive.replace(static_cast<int>(begin), bytes.size(), bytes);
    }
    return archive;
}

/// Every payload of a file that has been accepted can be read as its manifest says.
static void check(const CUpdateManifest &manifest, const CUpdateArchive &archive)
{
    Fuzz::require(!manifest.updates.isEmpty());
    for (const CUpdateEntry &update : manifest.updates) {
        for (const CUpdateStep &step : update.steps) {
            if (step.payload.name.isEmpty())
                continue;
            const QByteArray payload = archive.openPayload(step.payload)->readAll();
            Fuzz::require(payload.size() == step.payload.size);
            Fuzz::require(QCryptographicHash::hash(payload, QCryptographicHash::Sha256)
                          == step.payload.sha256);
        }
    }
}

/// Whatever a file holds, it is either an update file whose payloads are whole or refused with one
/// line.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const int file = memfd_create("update.guf", 0);
    static const QString path = QStringLiteral("/proc/self/fd/%1").arg(file);
    const QByteArray bytes = makeArchive(Fuzz::toBytes(data, size));
    Fuzz::require(ftruncate(file, 0) == 0
                  && pwrite(file, bytes.constData(), static_cast<std::size_t>(bytes.size()), 0)
                      == bytes.size());
    try {
        const CUpdateArchive archive(path);
        check(CUpdateFileReader::read(archive), archive);
    } catch (const CUpdateFileError &error) {
        Fuzz::require(Fuzz::isReadable(error.getMessage()));
    }
    return 0;
}
