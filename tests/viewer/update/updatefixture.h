#pragma once

#include "updatefilebuilder.h"

#include <QCryptographicHash>
#include <QStringList>

namespace TestSupport {

/// What cameras of the model "VX-1400M" take for a firmware image.
inline QByteArray makeImage(const QString &version, int size)
{
    const QByteArray header = "model: VX-1400M\nversion: " + version.toLatin1() + "\n\n";
    return header + QByteArray(size - header.size(), 'x');
}

/// Writes an update file for the model "VX-1400M" with one entry for each of @p versions. Each has
/// every kind of step, all but the upload with an estimate (63 ms together), and a payload
/// "firmware-<version>.img" by makeImage(), of @p imageSize bytes. The status before and the
/// version after the update are checked @p checkCount times.
inline void writeUpdateFile(const QString &path, const QStringList &versions, int imageSize,
                            int checkCount = 1)
{
    static const char *const Entry = R"({ "version": "%1", "models": ["VX-1400M"], "steps": [
  { "kind": "CheckPreconditions", "estimatedMs": 1, "description": "Is it ready?",
    "preconditions": [%4] },
  { "kind": "AcquireUpdateData", "estimatedMs": 2 },
  { "kind": "FeatureWrite", "estimatedMs": 4, "feature": "FirmwareUpdateMode", "value": "On" },
  { "kind": "FileUpload", "payload": "firmware-%1.img", "size": %2, "sha256": "%3",
    "targetFile": "FirmwareImage" },
  { "kind": "FeatureExecute", "estimatedMs": 8, "feature": "FirmwareActivate" },
  { "kind": "DeviceReset", "estimatedMs": 16 },
  %5 ] })";
    const QString precondition = R"({ "feature": "DeviceStatus", "value": "0" })";
    const auto repeat = [checkCount](const QString &text) {
        return QString(text + ',').repeated(checkCount).chopped(1);
    };

    QVector<CEntry> files;
    QStringList entries;
    for (const QString &version : versions) {
        const QByteArray image = makeImage(version, imageSize);
        files.append({QString("firmware-%1.img").arg(version), image});
        const QByteArray digest = QCryptographicHash::hash(image, QCryptographicHash::Sha256);
        const QString check = QString(R"({ "kind": "FeatureAssert", "estimatedMs": 32,
            "feature": "DeviceFirmwareVersion", "value": "%1" })")
                                  .arg(version);
        entries.append(QString(Entry).arg(version, QString::number(image.size()),
                                          digest.toHex().constData(), repeat(precondition),
                                          repeat(check)));
    }
    const QString manifest
        = QString(R"({ "formatVersion": 1, "updates": [%1] })").arg(entries.join(','));
    files.append({"update.json", manifest.toUtf8()});
    writeFile(path, makeArchive(files));
}

} // namespace TestSupport
