#include "manifestprinter.h"

#include "viewer/updatefile/manifestparser.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

namespace Viewer::GufTool {

using Plugin::CameraPool::EFirmwareUpdateStep;
using UpdateFile::CFeatureValue;
using UpdateFile::CUpdateEntry;
using UpdateFile::CUpdateManifest;
using UpdateFile::CUpdateStep;
using UpdateFile::getStepKindName;

namespace {

QString formatFeature(const CFeatureValue &feature)
{
    return QStringLiteral("%1 = %2").arg(feature.feature, feature.value);
}

QString orElse(const QString &text, const QString &substitute)
{
    return text.isEmpty() ? substitute : text;
}

QJsonObject toJsonObject(const CFeatureValue &feature)
{
    return {{QStringLiteral("feature"), feature.feature}, {QStringLiteral("value"), feature.value}};
}

QJsonObject toJsonObject(const CUpdateStep &step)
{
    QJsonObject object{{QStringLiteral("kind"), getStepKindName(step.kind)},
                       {QStringLiteral("description"), step.description}};
    if (step.estimatedMs)
        object.insert(QStringLiteral("estimatedMs"), *step.estimatedMs);
    switch (step.kind) {
    case EFirmwareUpdateStep::CheckPreconditions: {
        QJsonArray conditions;
        for (const CFeatureValue &condition : step.preconditions)
            conditions.append(toJsonObject(condition));
        object.insert(QStringLiteral("preconditions"), conditions);
        break;
    }
    case EFirmwareUpdateStep::FeatureWrite:
    case EFirmwareUpdateStep::FeatureAssert:
        object.insert(QStringLiteral("value"), step.feature.value);
        Q_FALLTHROUGH();
    case EFirmwareUpdateStep::FeatureExecute:
        object.insert(QStringLiteral("feature"), step.feature.feature);
        break;
    case EFirmwareUpdateStep::FileUpload:
        object.insert(QStringLiteral("payload"), step.payload.name);
        object.insert(QStringLiteral("size"), step.payload.size);
        object.insert(QStringLiteral("sha256"), QString::fromLatin1(step.payload.sha256.toHex()));
        object.insert(QStringLiteral("targetFile"), step.targetFile);
        break;
    case EFirmwareUpdateStep::AcquireUpdateData:
    case EFirmwareUpdateStep::DeviceReset:
    case EFirmwareUpdateStep::Invalid:
        break;
    }
    return object;
}

QJsonObject toJsonObject(const CUpdateEntry &update)
{
    QJsonArray steps;
    for (const CUpdateStep &step : update.steps)
        steps.append(toJsonObject(step));
    return {{QStringLiteral("version"), update.version},
            {QStringLiteral("description"), update.description},
            {QStringLiteral("releaseNotes"), update.releaseNotes},
            {QStringLiteral("models"), QJsonArray::fromStringList(update.models)},
            {QStringLiteral("deviceVersions"), QJsonArray::fromStringList(update.deviceVersions)},
            {QStringLiteral("minimumVersion"), update.minimumVersion},
            {QStringLiteral("steps"), steps}};
}

} // namespace

CManifestPrinter::CManifestPrinter(const QString &file, const CUpdateManifest &manifest,
                                   const Signature::CSignatureVerdict &verdict)
    : m_file(QDir::toNativeSeparators(file))
    , m_manifest(manifest)
    , m_verdict(verdict)
{
}

// The columns are part of the texts: only who writes one knows how wide its words are.
QString CManifestPrinter::toText() const
{
    QString text = tr("File:     %1\n"
                      "Format:   %2\n"
                      "Updates:  %3\n")
                       .arg(m_file, QString::number(UpdateFile::FORMAT_VERSION),
                            QString::number(m_manifest.updates.size()));
    text += describeSignature();
    for (int index = 0; index < m_manifest.updates.size(); ++index)
        text += describeUpdate(index + 1, m_manifest.updates.at(index));
    return text;
}

QString CManifestPrinter::describeSignature() const
{
    const Signature::CCertificate &signer = m_verdict.signer;
    //: The values begin in column 20; Korean, Japanese and Chinese letters take two columns.
    QString text = tr("\n"
                      "Signature\n"
                      "  State:            %1\n")
                       .arg(m_verdict.describe().getLocalized());
    if (!signer.isNull()) {
        //: The values begin in column 20; Korean, Japanese and Chinese letters take two columns.
        text += tr("  Signer:           %1\n"
                   "  Issuer:           %2\n"
                   "  Valid from:       %3\n"
                   "  Valid until:      %4\n"
                   "  SHA-256:          %5\n")
                    .arg(signer.getSubject(), signer.getIssuer(),
                         signer.getValidFrom().toString(Qt::ISODate),
                         signer.getValidTo().toString(Qt::ISODate), signer.getFingerprint());
    }
    if (m_verdict.signedAt.isValid()) {
        //: The values begin in column 20; Korean, Japanese and Chinese letters take two columns.
        text += tr("  Time stamp:       %1\n").arg(m_verdict.signedAt.toString(Qt::ISODate));
    }
    return text;
}

QString CManifestPrinter::describeUpdate(int number, const CUpdateEntry &update)
{
    const QString comma = QStringLiteral(", ");
    const QString none = tr("none");
    QString notes = update.releaseNotes;
    notes.replace(QLatin1Char('\n'), QStringLiteral("\n                    "));
    //: The values begin in column 20; Korean, Japanese and Chinese letters take two columns.
    QString text
        = tr("\n"
             "Update %1\n"
             "  Version:          %2\n"
             "  Description:      %3\n"
             "  Models:           %4\n"
             "  Device versions:  %5\n"
             "  Minimum version:  %6\n"
             "  Release notes:    %7\n"
             "  Steps:\n")
              .arg(QString::number(number), update.version, orElse(update.description, none),
                   update.models.join(comma), orElse(update.deviceVersions.join(comma), tr("any")),
                   orElse(update.minimumVersion, none), orElse(notes, none));
    for (int index = 0; index < update.steps.size(); ++index)
        text += formatStep(index + 1, update.steps.at(index)) + QLatin1Char('\n');
    return text;
}

QString CManifestPrinter::formatStep(int number, const CUpdateStep &step)
{
    const QString estimate = step.estimatedMs
        ? QStringLiteral("%1 ms").arg(*step.estimatedMs).rightJustified(11)
        //: Eleven columns wide; Korean, Japanese and Chinese letters take two columns.
        : tr("    by size");
    QString line
        = QStringLiteral("    %1. %2 %3  %4")
              .arg(QString::number(number).rightJustified(2),
                   getStepKindName(step.kind).leftJustified(18), estimate, describeStep(step));
    if (!step.description.isEmpty())
        line += QStringLiteral("  [%1]").arg(step.description);
    while (line.endsWith(QLatin1Char(' ')))
        line.chop(1);
    return line;
}

/// What the step works on.
QString CManifestPrinter::describeStep(const CUpdateStep &step)
{
    switch (step.kind) {
    case EFirmwareUpdateStep::CheckPreconditions: {
        QStringList conditions;
        for (const CFeatureValue &condition : step.preconditions)
            conditions.append(formatFeature(condition));
        return conditions.join(QStringLiteral(", "));
    }
    case EFirmwareUpdateStep::FeatureWrite:
    case EFirmwareUpdateStep::FeatureAssert:
        return formatFeature(step.feature);
    case EFirmwareUpdateStep::FeatureExecute:
        return step.feature.feature;
    case EFirmwareUpdateStep::FileUpload:
        return tr("%1 (%2 bytes) to %3")
            .arg(step.payload.name, QString::number(step.payload.size), step.targetFile);
    case EFirmwareUpdateStep::AcquireUpdateData:
    case EFirmwareUpdateStep::DeviceReset:
    case EFirmwareUpdateStep::Invalid:
        break;
    }
    return QString();
}

QString CManifestPrinter::toJson() const
{
    QJsonArray updates;
    for (const CUpdateEntry &update : m_manifest.updates)
        updates.append(toJsonObject(update));
    const QJsonObject object{{QStringLiteral("file"), m_file},
                             {QStringLiteral("formatVersion"), UpdateFile::FORMAT_VERSION},
                             {QStringLiteral("signature"), m_verdict.toJson()},
                             {QStringLiteral("updates"), updates}};
    return QString::fromUtf8(QJsonDocument(object).toJson());
}

} // namespace Viewer::GufTool
