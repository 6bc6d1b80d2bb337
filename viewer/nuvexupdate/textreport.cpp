#include "textreport.h"

#include "viewer/text/displaywidth.h"
#include "viewer/text/visibletext.h"
#include "viewer/updatefile/manifestparser.h"
#include "viewer/updatefile/updatefileerror.h"

#include <QTime>

#include <algorithm>

namespace Viewer::NuvexUpdate {

using Text::shorten;

/// Between two columns.
static const QString GAP = QStringLiteral("  ");

CTextReport::CTextReport(COutput &output, COutput &warnings, EStamp stamp)
    : m_output(output)
    , m_warnings(warnings)
    , m_stamp(stamp)
{
}

COutput &CTextReport::getOutput() const
{
    return m_output;
}

static QString addTime(const QString &line)
{
    return QTime::currentTime().toString(QStringLiteral("HH:mm:ss ")) + line;
}

void CTextReport::print(const QString &line)
{
    m_output.writeLine(m_stamp == EStamp::Time ? addTime(line) : line);
}

void CTextReport::printWarning(const QString &line)
{
    m_warnings.writeLine(m_stamp == EStamp::Time ? addTime(line) : line);
}

void CTextReport::printTable(const QVector<QStringList> &rows)
{
    QVector<int> widths(rows.constFirst().size(), 0);
    for (const QStringList &row : rows) {
        for (int column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], Text::getDisplayWidth(row.at(column)));
    }
    QStringList lines;
    for (const QStringList &row : rows) {
        QString line;
        for (int column = 0; column < row.size(); ++column) {
            const QString &cell = row.at(column);
            line += cell + GAP
                + QString(widths.at(column) - Text::getDisplayWidth(cell), QLatin1Char(' '));
        }
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        lines.append(line);
    }
    // At once: there may be ten thousand.
    print(lines.join(QLatin1Char('\n')));
}

void CTextReport::showCameras(const QVector<Camera::CCameraSnapshot> &cameras)
{
    QVector<QStringList> rows{{tr("Id"), tr("Name"), tr("Model"), tr("Serial number"),
                               tr("Address"), tr("Device version"), tr("Firmware"), tr("Status")}};
    for (const Camera::CCameraSnapshot &camera : cameras) {
        const QString code = QString::number(camera.statusCode);
        QString status = camera.statusReason.isEmpty() ? tr("Ready") : camera.statusReason;
        if (camera.statusCode != 0)
            status = camera.statusReason.isEmpty()
                ? code
                : QStringLiteral("%1: %2").arg(code, camera.statusReason);
        rows.append({shorten(camera.id), shorten(camera.displayName), shorten(camera.modelName),
                     shorten(camera.serialNumber), shorten(camera.ipAddress),
                     shorten(camera.deviceVersion), shorten(camera.firmwareVersion),
                     shorten(status, 200)});
    }
    printTable(rows);
}

void CTextReport::showSignature(const QString &filePath,
                                const Signature::CSignatureVerdict &verdict)
{
    print(UpdateFile::CUpdateFileError(filePath, verdict.describe()).getText().getLocalized());
    if (!verdict.signer.isNull())
        print(
            tr("SHA-256 fingerprint of the certificate: %1").arg(verdict.signer.getFingerprint()));
}

void CTextReport::showEntries(const QVector<UpdateFile::CUpdateEntry> &entries)
{
    for (const UpdateFile::CUpdateEntry &entry : entries) {
        QStringList parts{tr("version %1").arg(shorten(entry.version)),
                          tr("for %1").arg(shorten(entry.models.join(QStringLiteral(", ")), 200))};
        if (!entry.deviceVersions.isEmpty())
            parts.append(tr("device version %1")
                             .arg(shorten(entry.deviceVersions.join(QStringLiteral(", ")), 200)));
        if (!entry.minimumVersion.isEmpty())
            parts.append(tr("from version %1 on").arg(shorten(entry.minimumVersion)));
        if (!entry.description.isEmpty())
            parts.append(shorten(entry.description, 200));
        print(parts.join(QStringLiteral("; ")));
    }
}

QString CTextReport::describeVersions(const CCameraVerdict &verdict)
{
    return QStringLiteral("%1 -> %2")
        .arg(shorten(verdict.snapshot.firmwareVersion), shorten(verdict.update->getVersion()));
}

QString CTextReport::describeVerdict(const CCameraVerdict &verdict)
{
    switch (verdict.verdict) {
    case EVerdict::Upgrade:
        return tr("upgrade %1").arg(describeVersions(verdict));
    case EVerdict::Downgrade:
        return tr("downgrade %1").arg(describeVersions(verdict));
    case EVerdict::Reinstall:
        return tr("reinstall %1").arg(shorten(verdict.update->getVersion()));
    case EVerdict::DoesNotFit:
        return tr("does not fit: %1").arg(verdict.reason);
    case EVerdict::NotNow:
        return tr("cannot be updated now: %1").arg(verdict.reason);
    }
    return {};
}

void CTextReport::showVerdicts(const QVector<CCameraVerdict> &verdicts)
{
    QVector<QStringList> rows;
    for (const CCameraVerdict &verdict : verdicts)
        rows.append({shorten(verdict.snapshot.id), shorten(verdict.snapshot.displayName),
                     describeVerdict(verdict)});
    if (!rows.isEmpty())
        printTable(rows);
}

void CTextReport::showHistory(const Update::CUpdateHistoryModel &history)
{
    QVector<QStringList> rows{history.getExportedHeader()};
    for (int row = 0; row < history.rowCount(); ++row)
        rows.append(history.getExportedRow(row));
    printTable(rows);
}

void CTextReport::inform(const CMessage &message)
{
    print(message.text);
}

void CTextReport::warn(const CMessage &message)
{
    printWarning(message.text);
}

void CTextReport::showBegin(const QVector<CCameraRun> &runs, int index)
{
    const CCameraRun &run = runs.at(index);
    print(tr("%1: begins, %2").arg(run.getName(), describeVersions(run.verdict)));
}

void CTextReport::showStep(const QVector<CCameraRun> &runs, int index)
{
    const CCameraRun &run = runs.at(index);
    print(tr("%1: step %2 of %3, %4")
              .arg(run.getName(), QString::number(run.step), QString::number(run.stepCount),
                   run.stepName));
}

void CTextReport::showProgress(const QVector<CCameraRun> &, int)
{
    // Too much for lines.
}

static QString getSeconds(const CCameraRun &run)
{
    return QString::number(static_cast<double>(run.duration.count()) / 1000, 'f', 1);
}

QString CTextReport::describeEnd(const CCameraRun &run)
{
    if (run.outcome == EOutcome::Updated)
        return tr("%1: updated, %2, in %3 s")
            .arg(run.getName(), describeVersions(run.verdict), getSeconds(run));
    return QStringLiteral("%1: %2").arg(run.getName(), describeOutcome(run));
}

QString CTextReport::describeOutcome(const CCameraRun &run)
{
    switch (run.outcome) {
    case EOutcome::Updated:
        return tr("updated");
    case EOutcome::Failed:
        return tr("FAILED: %1").arg(run.message);
    case EOutcome::InUse:
        return tr("not updated: %1").arg(run.message);
    case EOutcome::LeftAlone:
        return tr("left alone: %1").arg(run.message);
    case EOutcome::NotStarted:
        return tr("not begun");
    case EOutcome::Planned:
        return tr("would be updated to %1").arg(shorten(run.verdict.update->getVersion()));
    case EOutcome::Running:
        break;
    }
    return {};
}

void CTextReport::showEnd(const QVector<CCameraRun> &runs, int index)
{
    print(describeEnd(runs.at(index)));
}

QString CTextReport::describeCounts(const QVector<CCameraRun> &runs)
{
    const auto count = [&runs](EOutcome outcome) {
        return static_cast<int>(std::count_if(runs.begin(), runs.end(), [outcome](const auto &run) {
            return run.outcome == outcome;
        }));
    };
    QStringList parts;
    const auto add = [&parts](int number, const QString &text) {
        if (number > 0)
            parts.append(text);
    };
    const int updated = count(EOutcome::Updated);
    add(updated, tr("%n updated", nullptr, updated));
    const int failed = count(EOutcome::Failed);
    add(failed, tr("%n failed", nullptr, failed));
    const int inUse = count(EOutcome::InUse);
    add(inUse, tr("%n in use", nullptr, inUse));
    const int planned = count(EOutcome::Planned);
    add(planned, tr("%n would be updated", nullptr, planned));
    const int leftAlone = count(EOutcome::LeftAlone);
    add(leftAlone, tr("%n left alone", nullptr, leftAlone));
    const int running = count(EOutcome::Running);
    add(running, tr("%n running", nullptr, running));
    const int notStarted = count(EOutcome::NotStarted);
    add(notStarted, tr("%n not begun", nullptr, notStarted));
    return parts.join(QStringLiteral(", "));
}

void CTextReport::showSummary(const CSummary &summary)
{
    if (!summary.hasUpdates)
        return;
    QVector<QStringList> rows{{tr("Camera"), tr("From"), tr("To"), tr("Seconds"), tr("Outcome")}};
    for (const CCameraRun &run : summary.cameras) {
        const bool hasRun = run.timer.isValid();
        rows.append({run.getName(), shorten(run.verdict.snapshot.firmwareVersion),
                     shorten(run.firmwareVersion), hasRun ? getSeconds(run) : QString(),
                     describeOutcome(run)});
    }
    printTable(rows);
    const QString counts = describeCounts(summary.cameras);
    if (!counts.isEmpty())
        print(tr("%1 (%2 s)").arg(counts, QString::number(summary.seconds)));
}

} // namespace Viewer::NuvexUpdate
