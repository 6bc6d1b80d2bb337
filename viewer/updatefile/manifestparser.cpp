#include "manifestparser.h"

#include "entryname.h"
#include "firmwareversion.h"
#include "updatefilelimits.h"
#include "viewer/json/jsonfault.h"
#include "viewer/json/jsonmembers.h"
#include "viewer/text/visibletext.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace Viewer::UpdateFile {

using Json::CJsonFields;
using Json::CJsonMembers;
using Json::CJsonScanner;
using Json::CTextRule;
using Plugin::CameraPool::EFirmwareUpdateStep;
using Text::CErrorText;

namespace {

constexpr int SHA256_HEX_LENGTH = 64;
/// Far above all that will ever be, and exact in JSON.
constexpr int LARGEST_FORMAT_VERSION = 1000000;

/// A kind of step with its name and the fields that it has besides those of every step.
struct CStepKind
{
    EFirmwareUpdateStep kind;
    QString name;
    CJsonFields fields;
};

const QVector<CStepKind> &getStepKinds()
{
    static const QString FEATURE = QStringLiteral("feature");
    static const QString VALUE = QStringLiteral("value");
    static const QVector<CStepKind> KINDS{
        {EFirmwareUpdateStep::CheckPreconditions,
         QStringLiteral("CheckPreconditions"),
         {{}, {QStringLiteral("preconditions")}}},
        {EFirmwareUpdateStep::AcquireUpdateData, QStringLiteral("AcquireUpdateData"), {}},
        {EFirmwareUpdateStep::FeatureWrite, QStringLiteral("FeatureWrite"), {{FEATURE, VALUE}, {}}},
        {EFirmwareUpdateStep::FeatureExecute, QStringLiteral("FeatureExecute"), {{FEATURE}, {}}},
        {EFirmwareUpdateStep::FeatureAssert,
         QStringLiteral("FeatureAssert"),
         {{FEATURE, VALUE}, {}}},
        {EFirmwareUpdateStep::FileUpload,
         QStringLiteral("FileUpload"),
         {{QStringLiteral("payload"), QStringLiteral("targetFile")},
          {QStringLiteral("size"), QStringLiteral("sha256")}}},
        {EFirmwareUpdateStep::DeviceReset, QStringLiteral("DeviceReset"), {}},
    };
    return KINDS;
}

/// All fields that a step of one kind or another has: the kind may stand behind them.
CJsonFields getFieldsOfAnyStep()
{
    CJsonFields fields{{QStringLiteral("kind")},
                       {QStringLiteral("estimatedMs"), QStringLiteral("description")}};
    for (const CStepKind &kind : getStepKinds())
        fields.optional += kind.fields.required + kind.fields.optional;
    fields.optional.removeDuplicates();
    return fields;
}

/// The fields of a step of the @p kind. Only an upload's duration can be told without the file,
/// from its size and the camera's speed.
CJsonFields getFields(EFirmwareUpdateStep kind, EPayloadFacts payloadFacts)
{
    const auto known
        = std::find_if(getStepKinds().cbegin(), getStepKinds().cend(),
                       [kind](const CStepKind &candidate) { return candidate.kind == kind; });
    CJsonFields fields = known->fields;
    const bool isUpload = kind == EFirmwareUpdateStep::FileUpload;
    if (isUpload && payloadFacts == EPayloadFacts::Required)
        fields.required += std::exchange(fields.optional, {});
    (isUpload ? fields.optional : fields.required).append(QStringLiteral("estimatedMs"));
    fields.required.prepend(QStringLiteral("kind"));
    fields.optional.append(QStringLiteral("description"));
    return fields;
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
                return CErrorText::tr("a second %1; one is allowed").arg(getStepKindName(kind));
            if (m_hasChange)
                return CErrorText::tr(
                    "preconditions are checked after a step that changes the camera");
            m_hasCheck = true;
        } else if (kind == EFirmwareUpdateStep::AcquireUpdateData) {
            if (m_hasAcquisition)
                return CErrorText::tr("a second %1; one is allowed").arg(getStepKindName(kind));
            if (m_hasUpload)
                return CErrorText::tr("the update data is acquired after a FileUpload");
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

/// Reads the manifest in the order in which it stands there. All functions throw CJsonFault.
class CReader
{
public:
    CReader(const QByteArray &json, EPayloadFacts payloadFacts)
        : m_scanner(json)
        , m_payloadFacts(payloadFacts)
    {
    }

    CUpdateManifest read()
    {
        CUpdateManifest manifest;
        static const CJsonFields FIELDS{
            {QStringLiteral("formatVersion"), QStringLiteral("updates")}, {}};
        CJsonMembers members(m_scanner, FIELDS);
        QString name;
        while (members.next(name)) {
            if (name == QLatin1String("formatVersion"))
                static_cast<void>(m_scanner.readInteger(1, LARGEST_FORMAT_VERSION));
            else if (name == QLatin1String("updates"))
                readList(1, Limits::UPDATES, [&] { manifest.updates.append(readUpdate()); });
        }
        m_scanner.expectEnd();
        return manifest;
    }

private:
    template <typename ReadElement>
    void readList(int minimumSize, int maximumSize, const ReadElement &readElement)
    {
        m_scanner.beginArray();
        const int begin = m_scanner.getPosition();
        int size = 0;
        while (m_scanner.nextElement()) {
            if (++size > maximumSize)
                m_scanner.fail(CErrorText::tr("the list has more than %1 items")
                                   .arg(QString::number(maximumSize)));
            readElement();
        }
        if (size < minimumSize)
            m_scanner.failAt(begin, CErrorText::tr("the list must not be empty"));
    }

    /// A list of texts, none of them twice.
    QStringList readTexts(int minimumSize, int maximumSize, const CTextRule &rule)
    {
        QStringList texts;
        readList(minimumSize, maximumSize, [&] {
            const QString text = m_scanner.readText(rule);
            if (texts.contains(text))
                m_scanner.fail(
                    CErrorText::tr("the list has \"%1\" twice").arg(Text::shorten(text)));
            texts.append(text);
        });
        return texts;
    }

    QString readVersion()
    {
        const QString version = m_scanner.readText({Limits::VERSION_LENGTH});
        if (!CFirmwareVersion::parse(version))
            m_scanner.fail(CErrorText::tr("\"%1\" is not a version like 2.0.0 or 2.0.0-rc1")
                               .arg(Text::shorten(version)));
        return version;
    }

    CUpdateEntry readUpdate()
    {
        CUpdateEntry update;
        static const CJsonFields FIELDS{
            {QStringLiteral("version"), QStringLiteral("models"), QStringLiteral("steps")},
            {QStringLiteral("description"), QStringLiteral("releaseNotes"),
             QStringLiteral("deviceVersions"), QStringLiteral("minimumVersion")}};
        CJsonMembers members(m_scanner, FIELDS);
        QString name;
        while (members.next(name)) {
            if (name == QLatin1String("version"))
                update.version = readVersion();
            else if (name == QLatin1String("description"))
                update.description = m_scanner.readText({Limits::DESCRIPTION_LENGTH, true});
            else if (name == QLatin1String("releaseNotes"))
                update.releaseNotes
                    = m_scanner.readText({Limits::RELEASE_NOTES_LENGTH, true, true, true});
            else if (name == QLatin1String("models"))
                update.models = readTexts(1, Limits::MODELS, {Limits::MODEL_LENGTH});
            else if (name == QLatin1String("deviceVersions"))
                update.deviceVersions
                    = readTexts(0, Limits::DEVICE_VERSIONS, {Limits::MODEL_LENGTH});
            else if (name == QLatin1String("minimumVersion"))
                update.minimumVersion = readVersion();
            else if (name == QLatin1String("steps"))
                update.steps = readSteps();
        }
        const qint64 totalMs = std::accumulate(
            update.steps.cbegin(), update.steps.cend(), qint64(0),
            [](qint64 sum, const CUpdateStep &step) { return sum + step.estimatedMs.value_or(0); });
        if (totalMs > Limits::ESTIMATE_MS)
            members.failAt(
                QStringLiteral("steps"),
                CErrorText::tr("the steps take %1 ms by their estimates; at most %2 are allowed")
                    .arg(QString::number(totalMs), QString::number(Limits::ESTIMATE_MS)));
        return update;
    }

    QVector<CUpdateStep> readSteps()
    {
        QVector<CUpdateStep> steps;
        CStepOrder order;
        readList(1, Limits::STEPS, [&] { steps.append(readStep(order)); });
        return steps;
    }

    CUpdateStep readStep(CStepOrder &order)
    {
        CUpdateStep step;
        static const CJsonFields FIELDS = getFieldsOfAnyStep();
        CJsonMembers members(m_scanner, FIELDS);
        QString name;
        while (members.next(name)) {
            if (name == QLatin1String("kind"))
                step.kind = readKind();
            else if (name == QLatin1String("estimatedMs"))
                step.estimatedMs = static_cast<int>(m_scanner.readInteger(1, Limits::ESTIMATE_MS));
            else if (name == QLatin1String("description"))
                step.description = m_scanner.readText({Limits::DESCRIPTION_LENGTH, true});
            else if (name == QLatin1String("preconditions"))
                readList(0, Limits::PRECONDITIONS,
                         [&] { step.preconditions.append(readPrecondition()); });
            else if (name == QLatin1String("feature"))
                step.feature.feature = m_scanner.readText({Limits::FEATURE_LENGTH});
            else if (name == QLatin1String("value"))
                step.feature.value = m_scanner.readText({Limits::VALUE_LENGTH, true});
            else if (name == QLatin1String("payload"))
                step.payload.name = readPayloadName();
            else if (name == QLatin1String("size"))
                step.payload.size = m_scanner.readInteger(1, Limits::UNPACKED_SIZE);
            else if (name == QLatin1String("sha256"))
                step.payload.sha256 = readSha256();
            else if (name == QLatin1String("targetFile"))
                step.targetFile = m_scanner.readText({Limits::FEATURE_LENGTH});
        }
        members.check(getFields(step.kind, m_payloadFacts));
        const CErrorText orderFault = order.findFault(step.kind);
        if (!orderFault.isEmpty())
            members.failAt(QStringLiteral("kind"), orderFault);
        return step;
    }

    EFirmwareUpdateStep readKind()
    {
        const QString name = m_scanner.readText({Limits::VALUE_LENGTH});
        QStringList knownNames;
        for (const CStepKind &kind : getStepKinds()) {
            if (kind.name == name)
                return kind.kind;
            knownNames.append(kind.name);
        }
        m_scanner.fail(CErrorText::tr("\"%1\" is not a kind of step; known kinds are %2")
                           .arg(Text::shorten(name), knownNames.join(QStringLiteral(", "))));
    }

    CFeatureValue readPrecondition()
    {
        CFeatureValue precondition;
        static const CJsonFields FIELDS{{QStringLiteral("feature"), QStringLiteral("value")}, {}};
        CJsonMembers members(m_scanner, FIELDS);
        QString name;
        while (members.next(name)) {
            if (name == QLatin1String("feature"))
                precondition.feature = m_scanner.readText({Limits::FEATURE_LENGTH});
            else
                precondition.value = m_scanner.readText({Limits::VALUE_LENGTH, true});
        }
        return precondition;
    }

    QString readPayloadName()
    {
        const QString name = m_scanner.readText({Limits::ENTRY_NAME_LENGTH});
        const CErrorText fault = findEntryNameFault(name);
        if (!fault.isEmpty())
            m_scanner.fail(
                CErrorText::tr("the entry name \"%1\" %2").arg(Text::shorten(name), fault));
        if (name == getManifestName())
            m_scanner.fail(CErrorText::tr("the payload is the manifest itself"));
        return name;
    }

    QByteArray readSha256()
    {
        const QByteArray text = m_scanner.readText({Limits::VALUE_LENGTH}).toLower().toUtf8();
        const QByteArray digest = QByteArray::fromHex(text);
        if (text.size() != SHA256_HEX_LENGTH || digest.toHex() != text)
            m_scanner.fail(CErrorText::tr("the text has to be %1 hexadecimal digits")
                               .arg(QString::number(SHA256_HEX_LENGTH)));
        return digest;
    }

    CJsonScanner m_scanner;
    const EPayloadFacts m_payloadFacts;
};

/// Before anything else, as a newer format may have fields that are unknown here.
void checkFormatVersion(const QByteArray &json)
{
    CJsonScanner scanner(json);
    QString name;
    scanner.beginObject();
    while (scanner.nextMember(name)) {
        if (name != QLatin1String("formatVersion")) {
            scanner.skipValue();
            continue;
        }
        const qint64 version = scanner.readInteger(1, LARGEST_FORMAT_VERSION);
        if (version != FORMAT_VERSION)
            scanner.fail(
                CErrorText::tr("the format version is %1, but this program reads version %2 only")
                    .arg(QString::number(version), QString::number(FORMAT_VERSION)));
    }
    scanner.expectEnd();
}

} // namespace

CManifestResult parseManifest(const QByteArray &json, EPayloadFacts payloadFacts)
{
    if (json.size() > Limits::MANIFEST_SIZE)
        return {CUpdateManifest(),
                CErrorText::tr("update.json has %1 bytes; at most %2 are allowed")
                    .arg(QString::number(json.size()), QString::number(Limits::MANIFEST_SIZE))};
    try {
        checkFormatVersion(json);
        return {CReader(json, payloadFacts).read(), {}};
    } catch (const Json::CJsonFault &fault) {
        return {CUpdateManifest(), CErrorText::tr("update.json, %1").arg(fault.describe())};
    }
}

bool changesCamera(EFirmwareUpdateStep kind)
{
    return kind == EFirmwareUpdateStep::FeatureWrite || kind == EFirmwareUpdateStep::FeatureExecute
        || kind == EFirmwareUpdateStep::FileUpload || kind == EFirmwareUpdateStep::DeviceReset;
}

QString getStepKindName(EFirmwareUpdateStep kind)
{
    for (const CStepKind &known : getStepKinds()) {
        if (known.kind == kind)
            return known.name;
    }
    return QString();
}

} // namespace Viewer::UpdateFile
