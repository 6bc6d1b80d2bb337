#include "updatehistorysorter.h"

#include "viewer/update/updatehistorymodel.h"

namespace Viewer::AppCore {

CUpdateHistorySorter::CUpdateHistorySorter(const QLocale &locale, QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_collator(locale)
{
    m_collator.setNumericMode(true);
    setSortRole(Update::CUpdateHistoryModel::SortRole);
    setFilterKeyColumn(-1); // any
    setFilterCaseSensitivity(Qt::CaseInsensitive);
}

CUpdateHistorySorter::~CUpdateHistorySorter() = default;

bool CUpdateHistorySorter::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    const QVariant leftKey = left.data(sortRole());
    if (leftKey.userType() != QMetaType::QString)
        return QSortFilterProxyModel::lessThan(left, right);
    return m_collator.compare(leftKey.toString(), right.data(sortRole()).toString()) < 0;
}

} // namespace Viewer::AppCore
