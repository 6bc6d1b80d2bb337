#include "updatehistorymodel.h"

#include "viewer/text/visibletext.h"

#include <algorithm>

namespace Viewer::Update {

using Text::toSingleLine;

/// -1: unknown, also where the clock was set back during the update.
static qint64 getSeconds(const CUpdateRecord &record)
{
    return record.end.isValid() ? std::max<qint64>(record.begin.secsTo(record.end), -1) : -1;
}

static QString getDurationText(qint64 seconds)
{
    if (seconds < 0)
        return {};
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600)
        .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

static QString getOutcomeText(EUpdateOutcome outcome)
{
    switch (outcome) {
    case EUpdateOutcome::Running:
        return CUpdateHistoryModel::tr("Running");
    case EUpdateOutcome::Updated:
        return CUpdateHistoryModel::tr("Updated");
    case EUpdateOutcome::Failed:
        return CUpdateHistoryModel::tr("Failed");
    case EUpdateOutcome::Canceled:
        return CUpdateHistoryModel::tr("Canceled");
    case EUpdateOutcome::Interrupted:
        return CUpdateHistoryModel::tr("Interrupted");
    }
    return {};
}

CUpdateHistoryModel::CUpdateHistoryModel(const QVector<CUpdateRecord> &records,
                                         const QLocale &locale, QObject *parent)
    : QAbstractTableModel(parent)
    , m_records(records)
{
    m_texts.reserve(records.size());
    for (const CUpdateRecord &record : records)
        m_texts.append(getTexts(record, locale));
}

CUpdateHistoryModel::~CUpdateHistoryModel() = default;

QStringList CUpdateHistoryModel::getTexts(const CUpdateRecord &record, const QLocale &locale) const
{
    return {toSingleLine(record.cameraName),
            toSingleLine(record.serialNumber),
            toSingleLine(record.oldVersion),
            toSingleLine(record.newVersion),
            getOutcomeText(record.outcome),
            locale.toString(record.begin.toLocalTime(), QLocale::ShortFormat),
            getDurationText(getSeconds(record))};
}

const CUpdateRecord &CUpdateHistoryModel::getRecord(int row) const
{
    return m_records.at(row);
}

QStringList CUpdateHistoryModel::getExportedHeader() const
{
    QStringList texts;
    for (int column = 0; column < ColumnCount; ++column)
        texts.append(headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    return texts;
}

QStringList CUpdateHistoryModel::getExportedRow(int row) const
{
    QStringList texts = m_texts.at(row);
    texts[TimeColumn]
        = m_records.at(row).begin.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    return texts;
}

int CUpdateHistoryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_records.size();
}

int CUpdateHistoryModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant CUpdateHistoryModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (role == SortRole && index.column() == TimeColumn)
        return m_records.at(index.row()).begin;
    if (role == SortRole && index.column() == DurationColumn)
        return getSeconds(m_records.at(index.row()));
    if (role == SortRole || role == Qt::DisplayRole)
        return m_texts.at(index.row()).at(index.column());
    return {};
}

QVariant CUpdateHistoryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (static_cast<EColumn>(section)) {
    case CameraColumn:
        return tr("Camera");
    case SerialNumberColumn:
        return tr("Serial number");
    case OldVersionColumn:
        return tr("From");
    case NewVersionColumn:
        return tr("To");
    case OutcomeColumn:
        return tr("Outcome");
    case TimeColumn:
        return tr("Time");
    case DurationColumn:
        return tr("Duration");
    case ColumnCount:
        break;
    }
    return {};
}

} // namespace Viewer::Update
