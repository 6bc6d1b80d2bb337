#include "updatefixture.h"

#include "updatefilebuilder.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Test {

using Plugin::CameraPool::EFirmwareUpdateStep;
using namespace Viewer::CameraPool;
using UpdateFile::CUpdateEntry;
using UpdateFile::CUpdateManifest;
using UpdateFile::CUpdateStep;

QByteArray makeImage(const QString &model, const QString &version, int size)
{
    const QByteArray header
        = QStringLiteral("model: %1\nversion: %2\n\n").arg(model, version).toLatin1();
    return header + QByteArray(std::max(0, size - header.size()), 'x');
}

CUpdateEntry makeEntry(const QString &version, const QByteArray &image)
{
    const auto makeStep = [](EFirmwareUpdateStep kind, int estimatedMs) {
        CUpdateStep step;
        step.kind = kind;
        step.estimatedMs = estimatedMs;
        return step;
    };
    CUpdateStep check = makeStep(EFirmwareUpdateStep::CheckPreconditions, 1);
    check.preconditions = {{QStringLiteral("Ready"), QStringLiteral("1")}};
    check.description = QStringLiteral("Is it ready?");
    const CUpdateStep acquire = makeStep(EFirmwareUpdateStep::AcquireUpdateData, 2);
    CUpdateStep write = makeStep(EFirmwareUpdateStep::FeatureWrite, 4);
    write.feature = {QStringLiteral("FirmwareUpdateMode"), QStringLiteral("On")};
    CUpdateStep upload;
    upload.kind = EFirmwareUpdateStep::FileUpload;
    upload.payload = {QStringLiteral("firmware.img"), image.size(),
                      QCryptographicHash::hash(image, QCryptographicHash::Sha256)};
    upload.targetFile = QStringLiteral("FirmwareImage");
    CUpdateStep activate = makeStep(EFirmwareUpdateStep::FeatureExecute, 8);
    activate.feature.feature = QStringLiteral("FirmwareActivate");
    const CUpdateStep reset = makeStep(EFirmwareUpdateStep::DeviceReset, 16);
    CUpdateStep assertion = makeStep(EFirmwareUpdateStep::FeatureAssert, 32);
    assertion.feature = {QStringLiteral("DeviceFirmwareVersion"), version};

    CUpdateEntry entry;
    entry.version = version;
    entry.models = QStringList{QStringLiteral("VX-1400M")};
    entry.steps = {check, acquire, write, upload, activate, reset, assertion};
    return entry;
}

void writePayload(const QString &path, const QByteArray &image)
{
    CUpdateFileBuilder().add(QStringLiteral("firmware.img"), image).write(path);
}

void writeUpdateFile(const QString &path, const QStringList &versions, int imageSize)
{
    CUpdateFileBuilder builder;
    QJsonArray updates;
    for (const QString &version : versions) {
        const auto makeStep = [](const char *kind) {
            return QJsonObject{{QStringLiteral("kind"), QString::fromLatin1(kind)},
                               {QStringLiteral("estimatedMs"), 100}};
        };
        const QString payload = QStringLiteral("firmware-%1.img").arg(version);
        const QByteArray image = makeImage(QStringLiteral("VX-1400M"), version, imageSize);
        builder.add(payload, image);

        QJsonObject check = makeStep("CheckPreconditions");
        check.insert(
            QStringLiteral("preconditions"),
            QJsonArray{QJsonObject{{QStringLiteral("feature"), QStringLiteral("DeviceStatus")},
                                   {QStringLiteral("value"), QStringLiteral("0")}}});
        QJsonObject write = makeStep("FeatureWrite");
        write.insert(QStringLiteral("feature"), QStringLiteral("FirmwareUpdateMode"));
        write.insert(QStringLiteral("value"), QStringLiteral("On"));
        QJsonObject upload = makeStep("FileUpload");
        upload.remove(QStringLiteral("estimatedMs"));
        upload.insert(QStringLiteral("payload"), payload);
        upload.insert(QStringLiteral("size"), image.size());
        upload.insert(QStringLiteral("sha256"),
                      QString::fromLatin1(
                          QCryptographicHash::hash(image, QCryptographicHash::Sha256).toHex()));
        upload.insert(QStringLiteral("targetFile"), QStringLiteral("FirmwareImage"));
        QJsonObject activate = makeStep("FeatureExecute");
        activate.insert(QStringLiteral("feature"), QStringLiteral("FirmwareActivate"));
        QJsonObject assertion = makeStep("FeatureAssert");
        assertion.insert(QStringLiteral("feature"), QStringLiteral("DeviceFirmwareVersion"));
        assertion.insert(QStringLiteral("value"), version);
        updates.append(
            QJsonObject{{QStringLiteral("version"), version},
                        {QStringLiteral("models"), QJsonArray{QStringLiteral("VX-1400M")}},
                        {QStringLiteral("steps"),
                         QJsonArray{check, makeStep("AcquireUpdateData"), write, upload, activate,
                                    makeStep("DeviceReset"), assertion}}});
    }
    const QJsonObject root{{QStringLiteral("formatVersion"), 1},
                           {QStringLiteral("updates"), updates}};
    builder.add(QStringLiteral("update.json"), QJsonDocument(root).toJson()).write(path);
}

QSharedPointer<CFirmwareUpdateInfo> makeInfo(const CUpdateEntry &entry, const QString &path)
{
    const auto manifest = QSharedPointer<CUpdateManifest>::create();
    manifest->updates = {entry};
    return QSharedPointer<CFirmwareUpdateInfo>(new CFirmwareUpdateInfo(manifest, 0, path));
}

} // namespace Test
