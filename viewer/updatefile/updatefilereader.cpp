#include "updatefilereader.h"

#include "entryname.h"
#include "manifestparser.h"
#include "sha256.h"
#include "updatearchive.h"
#include "updatefileerror.h"
#include "viewer/text/visibletext.h"

#include <algorithm>

namespace Viewer::UpdateFile {

namespace {

using Plugin::CameraPool::EFirmwareUpdateStep;

/// Each payload once, although several steps may upload it: reading it is what takes the time.
QVector<CPayload> collectPayloads(const CUpdateManifest &manifest)
{
    QVector<CPayload> payloads;
    for (const CUpdateEntry &update : manifest.updates) {
        for (const CUpdateStep &step : update.steps) {
            if (step.kind == EFirmwareUpdateStep::FileUpload && !payloads.contains(step.payload))
                payloads.append(step.payload);
        }
    }
    return payloads;
}

/// A file that nothing uploads was meant for something; most likely a step is missing.
void checkNothingIsLeftOver(const CUpdateArchive &archive, const QVector<CPayload> &payloads)
{
    const QStringList names = archive.getFileNames();
    for (const QString &name : names) {
        const auto isPayload = [&name](const CPayload &payload) { return payload.name == name; };
        if (name != getManifestName() && name != getSignatureName()
            && std::none_of(payloads.cbegin(), payloads.cend(), isPayload))
            throw CUpdateFileError(
                archive.getPath(),
                Text::CErrorText::tr("the archive has a file \"%1\" that no step uploads")
                    .arg(Text::shorten(name)));
    }
}

} // namespace

CUpdateManifest CUpdateFileReader::read(const QString &path,
                                        const std::function<void()> &checkpoint)
{
    return read(CUpdateArchive(path), checkpoint);
}

CUpdateManifest CUpdateFileReader::read(const CUpdateArchive &archive,
                                        const std::function<void()> &checkpoint)
{
    const QByteArray json = archive.readManifest();
    CManifestResult result = parseManifest(json);
    if (!result.fault.isEmpty())
        throw CUpdateFileError(archive.getPath(), result.fault);

    const QVector<CPayload> payloads = collectPayloads(result.manifest);
    for (const CPayload &payload : payloads)
        archive.checkPayload(payload, checkpoint);
    checkNothingIsLeftOver(archive, payloads);
    CSha256 digest;
    digest.addData(json.constData(), json.size());
    result.manifest.sha256 = digest.takeResult();
    result.manifest.json = json;
    result.manifest.signature = archive.readSignature();
    return result.manifest;
}

} // namespace Viewer::UpdateFile
