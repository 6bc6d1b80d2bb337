#include "updatefilebuilder.h"

#include <QCryptographicHash>
#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>

#include <zip.h>

namespace Test {

static void require(bool condition, const char *what)
{
    if (!condition)
        qFatal("The test's archive cannot be made: %s", what);
}

static QByteArray toBytes(quint32 number)
{
    QByteArray bytes(sizeof(number), Qt::Uninitialized);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

CUpdateFileBuilder &CUpdateFileBuilder::add(const QString &name, const QByteArray &content,
                                            EPacking packing)
{
    m_entries.append({name, content, packing});
    return *this;
}

CUpdateFileBuilder &CUpdateFileBuilder::patch(const QByteArray &before, const QByteArray &after)
{
    require(before.size() == after.size(), "a patch must keep the length");
    m_patches.append({before, after});
    return *this;
}

CUpdateFileBuilder &CUpdateFileBuilder::patchNumber(quint32 before, quint32 after)
{
    return patch(toBytes(before), toBytes(after));
}

QByteArray CUpdateFileBuilder::getBytes() const
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("archive.zip"));
    zip_t *archive = zip_open(QFile::encodeName(path).constData(), ZIP_CREATE, nullptr);
    require(archive, "open");
    for (const CEntry &entry : m_entries) {
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
    QByteArray bytes = file.readAll();
    for (const CPatch &patch : m_patches) {
        require(bytes.contains(patch.before), "nothing to patch");
        bytes.replace(patch.before, patch.after);
    }
    return bytes;
}

void CUpdateFileBuilder::write(const QString &path) const
{
    writeFile(path, getBytes());
}

QByteArray CUpdateFileBuilder::makeManifest(const QString &payloadName, const QByteArray &payload)
{
    return QByteArrayLiteral(R"({
  "formatVersion": 1,
  "updates": [
    {
      "version": "2.0.0",
      "description": "Feature release",
      "releaseNotes": "- One\n- Two",
      "models": ["VX-1", "VX-2"],
      "deviceVersions": ["R1"],
      "minimumVersion": "1.0.0",
      "steps": [
        { "kind": "CheckPreconditions", "estimatedMs": 100,
          "preconditions": [{ "feature": "DeviceStatus", "value": "0" }] },
        { "kind": "AcquireUpdateData", "estimatedMs": 101 },
        { "kind": "FeatureWrite", "estimatedMs": 102, "feature": "Mode", "value": "On" },
        { "kind": "FileUpload", "description": "Image", "payload": "@name@",
          "size": @size@, "sha256": "@sha256@", "targetFile": "FirmwareImage" },
        { "kind": "FeatureExecute", "estimatedMs": 103, "feature": "Activate" },
        { "kind": "DeviceReset", "estimatedMs": 4000 },
        { "kind": "FeatureAssert", "estimatedMs": 104,
          "feature": "DeviceFirmwareVersion", "value": "2.0.0" }
      ]
    }
  ]
}
)")
        .replace("@name@", payloadName.toUtf8())
        .replace("@size@", QByteArray::number(payload.size()))
        .replace("@sha256@", QCryptographicHash::hash(payload, QCryptographicHash::Sha256).toHex());
}

CUpdateFileBuilder CUpdateFileBuilder::makeValid(const QByteArray &payload, EPacking packing)
{
    const QString name = QStringLiteral("firmware.img");
    return CUpdateFileBuilder()
        .add(QStringLiteral("update.json"), makeManifest(name, payload))
        .add(name, payload, packing);
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "write");
}

} // namespace Test
