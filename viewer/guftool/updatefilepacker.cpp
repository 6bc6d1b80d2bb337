#include "updatefilepacker.h"

#include "updatefilesigner.h"
#include "viewer/text/visibletext.h"
#include "viewer/updatefile/entryname.h"
#include "viewer/updatefile/manifestparser.h"
#include "viewer/updatefile/sha256.h"
#include "viewer/updatefile/updatefileerror.h"
#include "viewer/updatefile/updatefilelimits.h"
#include "viewer/updatefile/updatefilereader.h"
#include "ziparchive.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <cstdio>

namespace Viewer::GufTool {

using namespace UpdateFile;
using Plugin::CameraPool::EFirmwareUpdateStep;
using Text::CErrorText;

namespace {

const QString UPDATES = QStringLiteral("updates");
const QString STEPS = QStringLiteral("steps");

QStringList collectPayloadNames(const CUpdateManifest &manifest)
{
    QStringList names;
    for (const CUpdateEntry &update : manifest.updates) {
        for (const CUpdateStep &step : update.steps) {
            if (step.kind == EFirmwareUpdateStep::FileUpload && !names.contains(step.payload.name))
                names.append(step.payload.name);
        }
    }
    return names;
}

/// False: the file cannot be read to its end.
bool addFileTo(CSha256 &hash, QFile &file)
{
    QByteArray block(64 * 1024, Qt::Uninitialized);
    qint64 size = 0;
    while ((size = file.read(block.data(), block.size())) > 0)
        hash.addData(block.constData(), size);
    return size == 0;
}

/// Returns what went wrong; empty: nothing.
CErrorText writeArchive(const QString &file, const QByteArray &manifest, const QDir &folder,
                        const QStringList &payloadNames)
{
    int zipError = ZIP_ER_OK;
    CZipPointer archive(
        zip_open(QFile::encodeName(file).constData(), ZIP_CREATE | ZIP_EXCL, &zipError));
    if (!archive)
        return CErrorText::tr("the archive cannot be created");
    bool isAdded = addFile(archive.get(), getManifestName(),
                           zip_source_buffer(archive.get(), manifest.constData(),
                                             static_cast<zip_uint64_t>(manifest.size()), 0));
    for (const QString &name : payloadNames) {
        const QByteArray path = QFile::encodeName(folder.filePath(name));
        isAdded = isAdded
            && addFile(archive.get(), name,
                       zip_source_file(archive.get(), path.constData(), 0, -1));
    }
    return finishArchive(std::move(archive), isAdded);
}

} // namespace

CUpdateFilePacker::CUpdateFilePacker(const QString &folder)
    : m_folder(folder)
{
}

CUpdateManifest CUpdateFilePacker::pack(const QString &file, const SignatureMaker &sign) const
{
    // The author's own text, so that a fault is told with the line in which it stands there.
    const QByteArray source = readSource();
    const CManifestResult result = parseManifest(source, EPayloadFacts::Optional);
    if (!result.fault.isEmpty())
        fail(result.fault);
    const QStringList payloadNames = collectPayloadNames(result.manifest);
    checkPayloads(payloadNames);
    const QByteArray json = completeManifest(source);

    // Beside the file, as only a rename within one file system replaces it in one go.
    const QFileInfo target(file);
    const QTemporaryDir workFolder(
        target.absoluteDir().filePath(QStringLiteral(".guftool-XXXXXX")));
    if (!workFolder.isValid())
        throw CUpdateFileError(file, CErrorText::tr("its folder does not exist or is read-only"));
    const QString draft = workFolder.filePath(QStringLiteral("draft.guf"));
    const CErrorText writeFault = writeArchive(draft, json, QDir(m_folder), payloadNames);
    if (!writeFault.isEmpty())
        throw CUpdateFileError(file, writeFault);

    try {
        if (sign)
            setSignature(draft, sign);
        CUpdateManifest manifest = CUpdateFileReader::read(draft);
        if (std::rename(QFile::encodeName(draft).constData(),
                        QFile::encodeName(target.absoluteFilePath()).constData())
            != 0)
            throw CUpdateFileError(file, CErrorText::tr("the file cannot be replaced"));
        return manifest;
    } catch (const CUpdateFileError &error) {
        throw CUpdateFileError(file, error.getCause());
    }
}

void CUpdateFilePacker::checkPayloads(const QStringList &names) const
{
    qint64 totalSize = 0;
    for (const QString &name : names) {
        const QFileInfo info(QDir(m_folder).filePath(name));
        if (!info.isFile())
            fail(CErrorText::tr("the payload \"%1\" is missing in the folder")
                     .arg(Text::shorten(name)));
        if (info.size() == 0)
            fail(CErrorText::tr("the payload \"%1\" is empty").arg(Text::shorten(name)));
        totalSize += info.size();
    }
    // The manifest and the payloads are all that the archive will hold.
    constexpr qint64 LARGEST = Limits::UNPACKED_SIZE - Limits::MANIFEST_SIZE;
    if (totalSize > LARGEST)
        fail(CErrorText::tr("the payloads have %1 bytes together; at most %2 are allowed")
                 .arg(QString::number(totalSize), QString::number(LARGEST)));
}

QByteArray CUpdateFilePacker::readSource() const
{
    const QFileInfo info(QDir(m_folder).filePath(getManifestName()));
    if (!QFileInfo(m_folder).isDir())
        fail(CErrorText::tr("this is not a folder"));
    if (!info.isFile())
        fail(CErrorText::tr("there is no update.json in the folder"));
    if (info.size() > Limits::MANIFEST_SIZE)
        fail(CErrorText::tr("%1 has %2 bytes; at most %3 are allowed")
                 .arg(getManifestName(), QString::number(info.size()),
                      QString::number(Limits::MANIFEST_SIZE)));
    QFile source(info.filePath());
    if (!source.open(QIODevice::ReadOnly))
        fail(CErrorText::tr("update.json cannot be opened; check its access rights"));
    return source.readAll();
}

QByteArray CUpdateFilePacker::completeManifest(const QByteArray &source) const
{
    // Known to be faultless here, so that every field is of its type.
    QJsonObject manifest = QJsonDocument::fromJson(source).object();
    QJsonArray updates = manifest.value(UPDATES).toArray();
    for (QJsonValueRef updateValue : updates) {
        QJsonObject update = updateValue.toObject();
        QJsonArray steps = update.value(STEPS).toArray();
        for (QJsonValueRef step : steps)
            step = completeStep(step.toObject());
        update.insert(STEPS, steps);
        updateValue = update;
    }
    manifest.insert(UPDATES, updates);
    return QJsonDocument(manifest).toJson();
}

QJsonObject CUpdateFilePacker::completeStep(QJsonObject step) const
{
    const QString sizeField = QStringLiteral("size");
    const QString digestField = QStringLiteral("sha256");
    const QString name = step.value(QStringLiteral("payload")).toString();
    if (name.isEmpty())
        return step;
    QFile payload(QDir(m_folder).filePath(name));
    if (!step.contains(sizeField))
        step.insert(sizeField, payload.size());
    if (step.contains(digestField))
        return step;
    CSha256 hash;
    if (!payload.open(QIODevice::ReadOnly) || !addFileTo(hash, payload))
        fail(CErrorText::tr("the payload \"%1\" cannot be read").arg(Text::shorten(name)));
    const QByteArray digest = hash.takeResult();
    if (digest.isEmpty())
        fail(CErrorText::tr("the SHA-256 of the payload \"%1\" cannot be computed; check the "
                            "settings of OpenSSL on this computer")
                 .arg(Text::shorten(name)));
    step.insert(digestField, QString::fromLatin1(digest.toHex()));
    return step;
}

void CUpdateFilePacker::fail(const CErrorText &cause) const
{
    throw CUpdateFileError(m_folder, cause);
}

} // namespace Viewer::GufTool
