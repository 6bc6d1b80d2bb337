#include "updatefilebuilder.h"

#include <QCryptographicHash>
#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>

#include <zip.h>

namespace TestSupport {

static void require(bool condition, const char *what)
{
    if (!condition)
        qFatal("The test's archive cannot be made: %s", what);
}

QByteArray makeArchive(const QVector<CEntry> &entries)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("archive.zip"));
    zip_t *archive = zip_open(QFile::encodeName(path).constData(), ZIP_CREATE, nullptr);
    require(archive, "open");
    for (const CEntry &entry : entries) {
        zip_source_t *source = zip_source_buffer(
            archive, entry.content.constData(), static_cast<zip_uint64_t>(entry.content.size()), 0);
        const zip_int64_t added
            = zip_file_add(archive, entry.name.toUtf8().constData(), source, ZIP_FL_ENC_UTF_8);
        require(added >= 0, "add");
        const auto index = static_cast<zip_uint64_t>(added);
        const zip_int32_t method
            = entry.packing == EPacking::Deflated ? ZIP_CM_DEFLATE : ZIP_CM_STORE;
        require(zip_set_file_compression(archive, index, method, 0) == 0, "compress");
        if (entry.packing == EPacking::Encrypted)
            require(zip_file_set_encryption(archive, index, ZIP_EM_AES_256, "secret") == 0,
                    "encrypt");
    }
    require(zip_close(archive) == 0, "close");

    QFile file(path);
    require(file.open(QIODevice::ReadOnly), "read");
    return file.readAll();
}

QByteArray makeManifest(const QString &payloadName, const QByteArray &payload)
{
    QFile file(QStringLiteral(MANIFEST_PATH));
    require(file.open(QIODevice::ReadOnly), "manifest");
    return file.readAll()
        .replace("@name@", payloadName.toUtf8())
        .replace("@size@", QByteArray::number(payload.size()))
        .replace("@sha256@", QCryptographicHash::hash(payload, QCryptographicHash::Sha256).toHex());
}

QByteArray makeValid(const QByteArray &payload, EPacking packing, const QVector<CEntry> &others)
{
    const QString name = QStringLiteral("firmware.img");
    return makeArchive(QVector<CEntry>{{QStringLiteral("update.json"), makeManifest(name, payload)},
                                       {name, payload, packing}}
                       + others);
}

QByteArray patch(QByteArray archive, const QByteArray &before, const QByteArray &after)
{
    require(before.size() == after.size() && archive.contains(before), "patch");
    return archive.replace(before, after);
}

QByteArray patch(const QByteArray &archive, quint32 before, quint32 after)
{
    const auto toBytes = [](quint32 number) {
        number = qToLittleEndian(number);
        return QByteArray(reinterpret_cast<const char *>(&number), sizeof(number));
    };
    return patch(archive, toBytes(before), toBytes(after));
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "write");
}

} // namespace TestSupport
