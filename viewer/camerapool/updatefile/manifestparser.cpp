#include "manifestparser.h"

#include "entryname.h"
#include "jsonobjectreader.h"
#include "jsontext.h"
#include "updatefilelimits.h"
#include "viewer/camerapool/firmwareversion.h"
#include "viewer/text/visibletext.h"

namespace Viewer::CameraPool::UpdateFile {

using Plugin::CameraPool::EFirmwareUpdateStep;
using Text::CErrorText;

namespace {

constexpr int SHA256_HEX_LENGTH = 64;

/// A kind of step with the fields that it has besides kind, estimatedMs and description.
struct CStepKind
{
    EFirmwareUpdateStep kind;
    QString name;
    QStringList fieldNames;
};

const QVector<CStepKind> &getStepKinds()
{
    static const QString FEATURE = QStringLiteral("feature");
    static const QString VALUE = QStringLiteral("value");
    static const QVector<CStepKind> KINDS{
        {EFirmwareUpdateStep::CheckPreconditions,
         QStringLiteral("CheckPreconditions"),
         {QStringLiteral("preconditions")}},
        {EFirmwareUpdateStep::AcquireUpdateData, QStringLiteral("AcquireUpdateData"), {}},
        {EFirmwareUpdateStep::FeatureWrite, QStringLiteral("FeatureWrite"), {FEATURE, VALUE}},
        {EFirmwareUpdateStep::FeatureExecute, QStringLiteral("FeatureExecute"), {FEATURE}},
        {EFirmwareUpdateStep::FeatureAssert, QStringLiteral("FeatureAssert"), {FEATURE, VALUE}},
        {EFirmwareUpdateStep::FileUpload,
         QStringLiteral("FileUpload"),
         {QStringLiteral("payload"), QStringLiteral("size"), QStringLiteral("sha256"),
          QStringLiteral("targetFile")}},
        {EFirmwareUpdateStep::DeviceReset, QStringLiteral("DeviceReset"), {}},
    };
    return KINDS;
}

const CStepKind &readKind(const CJsonObjectReader &step)
{
    const QString field = QStringLiteral("kind");
    const QString name = step.readText(field, {Limits::VALUE_LENGTH});
    QStringList knownNames;
    for (const CStepKind &kind : getStepKinds()) {
        if (kind.name == name)
            return kind;
        knownNames.append(kind.name);
    }
    step.fail(field,
              CErrorText::tr("is \"%1\"; known kinds are %2")
                  .arg(Text::shorten(name), knownNames.join(QStringLiteral(", "))));
}

CFeatureValue readFeatureValue(const CJsonObjectReader &object)
{
    return {object.readText(QStringLiteral("feature"), {Limits::FEATURE_LENGTH}),
            object.readText(QStringLiteral("value"), {Limits::VALUE_LENGTH, true})};
}

QVector<CFeatureValue> readPreconditions(const CJsonObjectReader &step)
{
    const QString field = QStringLiteral("preconditions");
    QVector<CFeatureValue> preconditions;
    if (!step.has(field))
        return preconditions;
    const QJsonArray list = step.readList(field, 0, Limits::PRECONDITIONS);
    for (int index = 0; index < list.size(); ++index) {
        const CJsonObjectReader precondition = step.getObject(list, field, index);
        precondition.checkNames({QStringLiteral("feature"), QStringLiteral("value")});
        preconditions.append(readFeatureValue(precondition));
    }
    return preconditions;
}

QByteArray readSha256(const CJsonObjectReader &step)
{
    const QString field = QStringLiteral("sha256");
    const QByteArray text = step.readText(field, {Limits::VALUE_LENGTH}).toLower().toUtf8();
    const QByteArray digest = QByteArray::fromHex(text);
    if (text.size() != SHA256_HEX_LENGTH || digest.toHex() != text)
        step.fail(field,
                  CErrorText::tr("has to be %1 hexadecimal digits")
                      .arg(QString::number(SHA256_HEX_LENGTH)));
    return digest;
}

CPayload readPayload(const CJsonObjectReader &step)
{
    const QString field = QStringLiteral("payload");
    CPayload payload;
    payload.name = step.readText(field, {Limits::ENTRY_NAME_LENGTH});
    const CErrorText nameFault = findEntryNameFault(payload.name);
    if (!nameFault.isEmpty())
        step.fail(field, nameFault);
    if (payload.name == getManifestName())
        step.fail(field, CErrorText::tr("names the manifest itself"));
    payload.size = step.readInteger(QStringLiteral("size"), 1, Limits::UNPACKED_SIZE);
    payload.sha256 = readSha256(step);
    return payload;
}

CUpdateStep readStep(const CJsonObjectReader &object)
{
    const CStepKind &kind = readKind(object);
    const QString estimateField = QStringLiteral("estimatedMs");
    object.checkNames(
        QStringList{QStringLiteral("kind"), estimateField, QStringLiteral("description")}
        + kind.fieldNames);

    CUpdateStep step;
    step.kind = kind.kind;
    step.description = object.readOptionalText(QStringLiteral("description"),
                                               {Limits::DESCRIPTION_LENGTH, true});
    // Only an upload's duration can be told without the file, from its size and the camera's speed.
    if (step.kind != EFirmwareUpdateStep::FileUpload || object.has(estimateField))
        step.estimatedMs
            = static_cast<int>(object.readInteger(estimateField, 1, Limits::ESTIMATE_MS));

    switch (step.kind) {
    case EFirmwareUpdateStep::CheckPreconditions:
        step.preconditions = readPreconditions(object);
        break;
    case EFirmwareUpdateStep::FeatureWrite:
    case EFirmwareUpdateStep::FeatureAssert:
        step.feature = readFeatureValue(object);
        break;
    case EFirmwareUpdateStep::FeatureExecute:
        step.feature.feature = object.readText(QStringLiteral("feature"), {Limits::FEATURE_LENGTH});
        break;
    case EFirmwareUpdateStep::FileUpload:
        step.payload = readPayload(object);
        step.targetFile = object.readText(QStringLiteral("targetFile"), {Limits::FEATURE_LENGTH});
        break;
    case EFirmwareUpdateStep::AcquireUpdateData:
    case EFirmwareUpdateStep::DeviceReset:
    case EFirmwareUpdateStep::Invalid:
        break;
    }
    return step;
}

bool changesCamera(EFirmwareUpdateStep kind)
{
    return kind == EFirmwareUpdateStep::FeatureWrite || kind == EFirmwareUpdateStep::FeatureExecute
        || kind == EFirmwareUpdateStep::FileUpload || kind == EFirmwareUpdateStep::DeviceReset;
}

/// The two preparing steps stand once and before what they prepare: conditions that are checked
/// after the first change protect nothing.
class CStepOrder
{
public:
    /// Why @p kind may not come next; empty when it may.
    CErrorText findFault(EFirmwareUpdateStep kind)
    {
        if (kind == EFirmwareUpdateStep::CheckPreconditions) {
            if (m_hasCheck)
                return CErrorText::tr("is a second %1; one is allowed").arg(getStepKindName(kind));
            if (m_hasChange)
                return CErrorText::tr("checks preconditions after a step that changes the camera");
            m_hasCheck = true;
        } else if (kind == EFirmwareUpdateStep::AcquireUpdateData) {
            if (m_hasAcquisition)
                return CErrorText::tr("is a second %1; one is allowed").arg(getStepKindName(kind));
            if (m_hasUpload)
                return CErrorText::tr("acquires the update data after a FileUpload");
            m_hasAcquisition = true;
        }
        m_hasChange = m_hasChange || changesCamera(kind);
        m_hasUpload = m_hasUpload || kind == EFirmwareUpdateStep::FileUpload;
        return {};
    }

private:
    bool m_hasCheck = false;
    bool m_hasAcquisition = false;
    bool m_hasChange = false;
    bool m_hasUpload = false;
};

QVector<CUpdateStep> readSteps(const CJsonObjectReader &update)
{
    const QString field = QStringLiteral("steps");
    const QJsonArray list = update.readList(field, 1, Limits::STEPS);
    QVector<CUpdateStep> steps;
    CStepOrder order;
    qint64 totalMs = 0;
    for (int index = 0; index < list.size(); ++index) {
        const CJsonObjectReader object = update.getObject(list, field, index);
        steps.append(readStep(object));
        const CErrorText orderFault = order.findFault(steps.constLast().kind);
        if (!orderFault.isEmpty())
            object.fail(QStringLiteral("kind"), orderFault);
        totalMs += steps.constLast().estimatedMs.value_or(0);
    }
    if (totalMs > Limits::ESTIMATE_MS)
        update.fail(field,
                    CErrorText::tr("takes %1 ms by its estimates; at most %2 are allowed")
                        .arg(QString::number(totalMs), QString::number(Limits::ESTIMATE_MS)));
    return steps;
}

QString readVersion(const CJsonObjectReader &update, const QString &field)
{
    const QString version = update.readText(field, {Limits::VERSION_LENGTH});
    if (!CFirmwareVersion::parse(version))
        update.fail(field,
                    CErrorText::tr("is \"%1\", which is not a version like 2.0.0 or 2.0.0-rc1")
                        .arg(Text::shorten(version)));
    return version;
}

CUpdateEntry readUpdate(const CJsonObjectReader &object)
{
    const QString version = QStringLiteral("version");
    const QString description = QStringLiteral("description");
    const QString releaseNotes = QStringLiteral("releaseNotes");
    const QString models = QStringLiteral("models");
    const QString deviceVersions = QStringLiteral("deviceVersions");
    const QString minimumVersion = QStringLiteral("minimumVersion");
    object.checkNames({version, description, releaseNotes, models, deviceVersions, minimumVersion,
                       QStringLiteral("steps")});

    CUpdateEntry update;
    update.version = readVersion(object, version);
    update.description = object.readOptionalText(description, {Limits::DESCRIPTION_LENGTH, true});
    update.releaseNotes
        = object.readOptionalText(releaseNotes, {Limits::RELEASE_NOTES_LENGTH, true, true});
    update.models = object.readTexts(models, 1, Limits::MODELS, {Limits::MODEL_LENGTH});
    if (object.has(deviceVersions))
        update.deviceVersions
            = object.readTexts(deviceVersions, 0, Limits::DEVICE_VERSIONS, {Limits::MODEL_LENGTH});
    if (object.has(minimumVersion))
        update.minimumVersion = readVersion(object, minimumVersion);
    update.steps = readSteps(object);
    return update;
}

/// The format version comes first: a newer format may have fields that are unknown here.
void checkFormatVersion(const CJsonObjectReader &top)
{
    constexpr int LARGEST = 1000000;
    const qint64 version = top.readInteger(QStringLiteral("formatVersion"), 1, LARGEST);
    if (version != FORMAT_VERSION)
        throw CFieldFault{
            CErrorText::tr("the format version is %1, but this program reads version %2 only")
                .arg(QString::number(version), QString::number(FORMAT_VERSION))};
}

CUpdateManifest readManifest(const QJsonObject &object)
{
    const CJsonObjectReader top(object, QString());
    checkFormatVersion(top);
    const QString field = QStringLiteral("updates");
    top.checkNames({QStringLiteral("formatVersion"), field});

    CUpdateManifest manifest;
    const QJsonArray list = top.readList(field, 1, Limits::UPDATES);
    for (int index = 0; index < list.size(); ++index)
        manifest.updates.append(readUpdate(top.getObject(list, field, index)));
    return manifest;
}

} // namespace

CManifestResult parseManifest(const QByteArray &json)
{
    if (json.size() > Limits::MANIFEST_SIZE)
        return {CUpdateManifest(),
                CErrorText::tr("update.json has %1 bytes; at most %2 are allowed")
                    .arg(QString::number(json.size()), QString::number(Limits::MANIFEST_SIZE))};
    const CJsonResult text = parseJsonObject(json, Limits::NESTING);
    if (!text.fault.isEmpty())
        return {CUpdateManifest(), CErrorText::tr("update.json %1").arg(text.fault)};
    try {
        return {readManifest(text.object), {}};
    } catch (const CFieldFault &fault) {
        return {CUpdateManifest(), CErrorText::tr("%1: %2").arg(getManifestName(), fault.sentence)};
    }
}

QString getStepKindName(EFirmwareUpdateStep kind)
{
    for (const CStepKind &known : getStepKinds()) {
        if (known.kind == kind)
            return known.name;
    }
    return QString();
}

} // namespace Viewer::CameraPool::UpdateFile
