#include "updaterecord.h"

#include "viewer/json/jsonmembers.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <iterator>

namespace Viewer::Update {

using Json::CJsonFields;
using Json::CJsonMembers;
using Json::CJsonScanner;
using Json::CTextRule;
using Text::CErrorText;

namespace {

/// Far above what cameras and files may say, and what a table can show.
constexpr int MAXIMUM_TEXT = 4096;
constexpr int MAXIMUM_STEPS = 1000;

const char *const OUTCOMES[] = {"running", "updated", "failed", "canceled", "interrupted"};

struct CTextField
{
    const char *name;
    QString CUpdateRecord::*member;
};

const CTextField TEXT_FIELDS[] = {
    {"cameraId", &CUpdateRecord::cameraId},
    {"cameraName", &CUpdateRecord::cameraName},
    {"model", &CUpdateRecord::modelName},
    {"serialNumber", &CUpdateRecord::serialNumber},
    {"address", &CUpdateRecord::address},
    {"oldVersion", &CUpdateRecord::oldVersion},
    {"newVersion", &CUpdateRecord::newVersion},
    {"file", &CUpdateRecord::filePath},
    {"stepName", &CUpdateRecord::stepName},
    {"error", &CUpdateRecord::error},
    {"reportedVersion", &CUpdateRecord::reportedVersion},
    {"log", &CUpdateRecord::logPath},
};

CJsonFields getFields()
{
    CJsonFields fields{{QStringLiteral("step"), QStringLiteral("stepCount"),
                        QStringLiteral("percent"), QStringLiteral("hasWritten"),
                        QStringLiteral("begin"), QStringLiteral("outcome")},
                       {QStringLiteral("end"), QStringLiteral("manifestSha256")}};
    for (const CTextField &field : TEXT_FIELDS)
        fields.required.append(QString::fromLatin1(field.name));
    return fields;
}

QDateTime readTime(CJsonScanner &scanner)
{
    const QDateTime time
        = QDateTime::fromString(scanner.readText(CTextRule{MAXIMUM_TEXT}), Qt::ISODate);
    if (!time.isValid())
        scanner.fail(CErrorText::tr("expected a time like 2026-01-31T12:00:00Z"));
    return time.toUTC();
}

EUpdateOutcome readOutcome(CJsonScanner &scanner)
{
    const QString name = scanner.readText(CTextRule{MAXIMUM_TEXT});
    for (std::size_t i = 0; i < std::size(OUTCOMES); ++i) {
        if (name == QLatin1String(OUTCOMES[i]))
            return static_cast<EUpdateOutcome>(i);
    }
    scanner.fail(CErrorText::tr("unknown outcome"));
}

bool readText(CJsonScanner &scanner, const QString &name, CUpdateRecord &record)
{
    for (const CTextField &field : TEXT_FIELDS) {
        if (name != QLatin1String(field.name))
            continue;
        record.*field.member = scanner.readText();
        if ((record.*field.member).size() > MAXIMUM_TEXT)
            scanner.fail(CErrorText::tr("the text has %1 characters; at most %2 are allowed")
                             .arg(QString::number((record.*field.member).size()),
                                  QString::number(MAXIMUM_TEXT)));
        return true;
    }
    return false;
}

} // namespace

int getTotalPercent(const CUpdateRecord &record)
{
    if (record.step == 0 || record.stepCount < record.step)
        return 0;
    return ((record.step - 1) * 100 + record.percent) / record.stepCount;
}

CUpdateRecord toInterrupted(CUpdateRecord record)
{
    record.outcome = EUpdateOutcome::Interrupted;
    return record;
}

QByteArray toJson(const CUpdateRecord &record)
{
    QJsonObject object{
        {QStringLiteral("manifestSha256"), QString::fromLatin1(record.manifestDigest.toHex())},
        {QStringLiteral("step"), record.step},
        {QStringLiteral("stepCount"), record.stepCount},
        {QStringLiteral("percent"), record.percent},
        {QStringLiteral("hasWritten"), record.hasWritten},
        {QStringLiteral("begin"), record.begin.toUTC().toString(Qt::ISODate)},
        {QStringLiteral("outcome"),
         QString::fromLatin1(OUTCOMES[static_cast<std::size_t>(record.outcome)])}};
    for (const CTextField &field : TEXT_FIELDS) {
        // Through UTF-8, since half a surrogate pair could be written, but not be read again.
        const QByteArray text = (record.*field.member).left(MAXIMUM_TEXT).toUtf8();
        object.insert(QString::fromLatin1(field.name), QString::fromUtf8(text));
    }
    if (record.end.isValid())
        object.insert(QStringLiteral("end"), record.end.toUTC().toString(Qt::ISODate));
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

CUpdateRecord readUpdateRecord(CJsonScanner &scanner)
{
    static const CJsonFields FIELDS = getFields();
    CUpdateRecord record;
    CJsonMembers members(scanner, FIELDS);
    QString name;
    while (members.next(name)) {
        if (name == QLatin1String("manifestSha256"))
            record.manifestDigest = QByteArray::fromHex(scanner.readText().toLatin1());
        else if (name == QLatin1String("step"))
            record.step = static_cast<int>(scanner.readInteger(0, MAXIMUM_STEPS));
        else if (name == QLatin1String("stepCount"))
            record.stepCount = static_cast<int>(scanner.readInteger(0, MAXIMUM_STEPS));
        else if (name == QLatin1String("percent"))
            record.percent = static_cast<int>(scanner.readInteger(0, 100));
        else if (name == QLatin1String("hasWritten"))
            record.hasWritten = scanner.readBoolean();
        else if (name == QLatin1String("begin"))
            record.begin = readTime(scanner);
        else if (name == QLatin1String("end"))
            record.end = readTime(scanner);
        else if (name == QLatin1String("outcome"))
            record.outcome = readOutcome(scanner);
        else
            static_cast<void>(readText(scanner, name, record));
    }
    return record;
}

} // namespace Viewer::Update
