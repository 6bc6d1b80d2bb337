#pragma once

#include "viewer/update/updaterecord.h"

#include <QAbstractTableModel>
#include <QLocale>
#include <QStringList>
#include <QVector>

namespace Viewer::Update {

/// Updates that have ended as a table, one row each.
class CUpdateHistoryModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum EColumn {
        CameraColumn,
        SerialNumberColumn,
        OldVersionColumn,
        NewVersionColumn,
        OutcomeColumn,
        TimeColumn, ///< of the begin, where the viewer is
        DurationColumn,
        ColumnCount,
    };

    enum ERole {
        SortRole = Qt::UserRole, ///< a `QDateTime`, seconds as `qint64`, or the text
    };

    /// Times are written as in @p locale.
    CUpdateHistoryModel(const QVector<CUpdateRecord> &records, const QLocale &locale,
                        QObject *parent = nullptr);
    ~CUpdateHistoryModel() override;

    [[nodiscard]] const CUpdateRecord &getRecord(int row) const;

    /// For a file of a table: the titles of the columns.
    [[nodiscard]] QStringList getExportedHeader() const;

    /// For a file of a table: a row as it is shown, but the time with the seconds, and as
    /// spreadsheets of all languages read it.
    [[nodiscard]] QStringList getExportedRow(int row) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    [[nodiscard]] QStringList getTexts(const CUpdateRecord &record, const QLocale &locale) const;

    const QVector<CUpdateRecord> m_records;
    QVector<QStringList> m_texts; ///< by row and column; a filter looks at all of them
};

} // namespace Viewer::Update
