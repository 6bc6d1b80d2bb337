#pragma once

#include <QCollator>
#include <QSortFilterProxyModel>

namespace Viewer::AppCore {

/// Sorts a history of updates, texts with the numbers in them by their value, and leaves out the
/// rows in which no column shows the text of the filter, whatever its case.
class CUpdateHistorySorter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit CUpdateHistorySorter(const QLocale &locale, QObject *parent = nullptr);
    ~CUpdateHistorySorter() override;

protected:
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    QCollator m_collator;
};

} // namespace Viewer::AppCore
