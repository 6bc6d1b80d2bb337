#include "jsonreport.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>

namespace Viewer::NuvexUpdate {

namespace {

/// Through UTF-8, since half a surrogate pair could be written, but not be read again.
QJsonValue toJson(const QString &text)
{
    return QString::fromUtf8(text.toUtf8());
}

QJsonArray toJson(const QStringList &texts)
{
    QJsonArray array;
    for (const QString &text : texts)
        array.append(toJson(text));
    return array;
}

QJsonObject toJson(const Camera::CCameraSnapshot &camera)
{
    return {{QStringLiteral("camera"), toJson(camera.id)},
            {QStringLiteral("name"), toJson(camera.displayName)},
            {QStringLiteral("model"), toJson(camera.modelName)},
            {QStringLiteral("serialNumber"), toJson(camera.serialNumber)},
            {QStringLiteral("address"), toJson(camera.ipAddress)},
            {QStringLiteral("deviceVersion"), toJson(camera.deviceVersion)},
            {QStringLiteral("firmwareVersion"), toJson(camera.firmwareVersion)},
            {QStringLiteral("status"), camera.statusCode},
            {QStringLiteral("statusReason"), toJson(camera.statusReason)}};
}

QJsonObject toJson(const CMessage &message)
{
    return {{QStringLiteral("key"), message.key}, {QStringLiteral("text"), toJson(message.text)}};
}

/// What all events of one camera in a series have.
QJsonObject toJson(const CCameraRun &run)
{
    const Camera::CCameraSnapshot &camera = run.verdict.snapshot;
    return {{QStringLiteral("camera"), toJson(camera.id)},
            {QStringLiteral("serialNumber"), toJson(camera.serialNumber)}};
}

QJsonObject describeStep(const CCameraRun &run)
{
    QJsonObject object = toJson(run);
    object.insert(QStringLiteral("step"), run.step);
    object.insert(QStringLiteral("stepCount"), run.stepCount);
    object.insert(QStringLiteral("stepName"), run.stepName);
    object.insert(QStringLiteral("percent"), run.getPercent());
    return object;
}

QString getNewVersion(const CCameraVerdict &verdict)
{
    return verdict.update ? verdict.update->getVersion() : QString();
}

QJsonObject describeResult(const CCameraRun &run)
{
    QJsonObject object = toJson(run);
    object.insert(QStringLiteral("name"), toJson(run.verdict.snapshot.displayName));
    object.insert(QStringLiteral("oldVersion"), toJson(run.verdict.snapshot.firmwareVersion));
    object.insert(QStringLiteral("newVersion"), toJson(getNewVersion(run.verdict)));
    object.insert(QStringLiteral("firmwareVersion"), toJson(run.firmwareVersion));
    object.insert(QStringLiteral("outcome"), getOutcomeName(run.outcome));
    object.insert(QStringLiteral("verdict"), getVerdictName(run.verdict.verdict));
    object.insert(QStringLiteral("seconds"), static_cast<double>(run.duration.count()) / 1000);
    if (!run.message.isEmpty())
        object.insert(QStringLiteral("message"),
                      toJson(CMessage{getOutcomeName(run.outcome), run.message}));
    return object;
}

} // namespace

CJsonReport::CJsonReport(COutput &output)
    : m_output(output)
{
}

void CJsonReport::print(const char *event, QJsonObject object)
{
    object.insert(QStringLiteral("event"), QLatin1String(event));
    object.insert(QStringLiteral("time"),
                  QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs));
    m_output.write(QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n');
}

void CJsonReport::showCameras(const QVector<Camera::CCameraSnapshot> &cameras)
{
    for (const Camera::CCameraSnapshot &camera : cameras)
        print("camera", toJson(camera));
}

void CJsonReport::showSignature(const QString &filePath,
                                const Signature::CSignatureVerdict &verdict)
{
    QJsonObject object = verdict.toJson();
    object.insert(QStringLiteral("file"), toJson(filePath));
    object.insert(QStringLiteral("message"),
                  toJson(CMessage{object.value(QStringLiteral("state")).toString(),
                                  verdict.describe().getLocalized()}));
    print("signature", object);
}

void CJsonReport::showEntries(const QVector<UpdateFile::CUpdateEntry> &entries)
{
    for (const UpdateFile::CUpdateEntry &entry : entries)
        print("entry",
              {{QStringLiteral("version"), toJson(entry.version)},
               {QStringLiteral("description"), toJson(entry.description)},
               {QStringLiteral("models"), toJson(entry.models)},
               {QStringLiteral("deviceVersions"), toJson(entry.deviceVersions)},
               {QStringLiteral("minimumVersion"), toJson(entry.minimumVersion)}});
}

void CJsonReport::showVerdicts(const QVector<CCameraVerdict> &verdicts)
{
    for (const CCameraVerdict &verdict : verdicts) {
        QJsonObject object = toJson(verdict.snapshot);
        object.insert(QStringLiteral("verdict"), getVerdictName(verdict.verdict));
        object.insert(QStringLiteral("newVersion"), toJson(getNewVersion(verdict)));
        if (!verdict.reason.isEmpty())
            object.insert(QStringLiteral("message"),
                          toJson(CMessage{getVerdictName(verdict.verdict), verdict.reason}));
        print("verdict", object);
    }
}

void CJsonReport::showHistory(const Update::CUpdateHistoryModel &history)
{
    for (int row = 0; row < history.rowCount(); ++row)
        print("history", QJsonDocument::fromJson(Update::toJson(history.getRecord(row))).object());
}

void CJsonReport::inform(const CMessage &message)
{
    print("message",
          {{QStringLiteral("severity"), QStringLiteral("info")},
           {QStringLiteral("message"), toJson(message)}});
}

void CJsonReport::warn(const CMessage &message)
{
    print("message",
          {{QStringLiteral("severity"), QStringLiteral("warning")},
           {QStringLiteral("message"), toJson(message)}});
}

void CJsonReport::showBegin(const QVector<CCameraRun> &runs, int index)
{
    const CCameraRun &run = runs.at(index);
    QJsonObject object = toJson(run);
    object.insert(QStringLiteral("oldVersion"), toJson(run.verdict.snapshot.firmwareVersion));
    object.insert(QStringLiteral("newVersion"), toJson(getNewVersion(run.verdict)));
    print("begin", object);
}

void CJsonReport::showStep(const QVector<CCameraRun> &runs, int index)
{
    print("step", describeStep(runs.at(index)));
}

void CJsonReport::showProgress(const QVector<CCameraRun> &runs, int index)
{
    print("progress", describeStep(runs.at(index)));
}

void CJsonReport::showEnd(const QVector<CCameraRun> &runs, int index)
{
    print("end", describeResult(runs.at(index)));
}

void CJsonReport::showSummary(const CSummary &summary)
{
    QJsonObject object{{QStringLiteral("exitCode"), static_cast<int>(summary.exitCode)},
                       {QStringLiteral("seconds"), summary.seconds}};
    if (summary.hasUpdates) {
        QJsonArray cameras;
        for (const CCameraRun &run : summary.cameras)
            cameras.append(describeResult(run));
        object.insert(QStringLiteral("cameras"), cameras);
    }
    print("summary", object);
}

} // namespace Viewer::NuvexUpdate
