#pragma once

#include "updatefilebuilder.h"

#include <QCryptographicHash>
#include <QStringList>

namespace TestSupport {

/// Writes an update file for the model "VX-1400M" with one entry for each of @p versions. Each has
/// every kind of step, all but the upload with an estimate (63 ms together), and a payload
/// "firmware-<version>.img" of @p imageSize bytes that simulated cameras take for a firmware image.
inline void writeUpdateFile(const QString &path, const QStringList &versions, int imageSize)
{
    static const char *const Entry = R"({ "version": "%1", "models": ["VX-1400M"], "steps": [
  { "kind": "CheckPreconditions", "estimatedMs": 1, "description": "Is it ready?",
    "preconditions": [{ "feature": "DeviceStatus", "value": "0" }] },
  { "kind": "AcquireUpdateData", "estimatedMs": 2 },
  { "kind": "FeatureWrite", "estimatedMs": 4, "feature": "FirmwareUpdateMode", "value": "On" },
  { "kind": "FileUpload", "payload": "firmware-%1.img", "size": %2, "sha256": "%3",
    "targetFile": "FirmwareImage" },
  { "kind": "FeatureExecute", "estimatedMs": 8, "feature": "FirmwareActivate" },
  { "kind": "DeviceReset", "estimatedMs": 16 },
  { "kind": "FeatureAssert", "estimatedMs": 32, "feature": "DeviceFirmwareVersion",
    "value": "%1" } ] })";

    QVector<CEntry> files;
    QStringList entries;
    for (const QString &version : versions) {
        QByteArray image = "model: VX-1400M\nversion: " + version.toLatin1() + "\n\n";
        image.append(imageSize - image.size(), 'x');
        files.append({QString("firmware-%1.img").arg(version), image});
        const QByteArray digest = QCryptographicHash::hash(image, QCryptographicHash::Sha256);
        entries.append(
            QString(Entry).arg(version, QString::number(image.size()), digest.toHex().constData()));
    }
    const QString manifest
        = QString(R"({ "formatVersion": 1, "updates": [%1] })").arg(entries.join(','));
    files.append({"update.json", manifest.toUtf8()});
    writeFile(path, makeArchive(files));
}

} // namespace TestSupport
