#include "accessibletreetitle.h"

#include <QHeaderView>

namespace Plugin::FirmwareUpdater::Internal::View {

CAccessibleTreeTitle::CAccessibleTreeTitle(CCustomTreeView *view, int section)
    : CAccessibleTreeItem(view)
    , m_section(section)
{
}

int CAccessibleTreeTitle::getSection() const
{
    return m_section;
}

bool CAccessibleTreeTitle::isValid() const
{
    return getView() && getView()->model() && m_section < getView()->model()->columnCount();
}

QString CAccessibleTreeTitle::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Name || !isValid())
        return {};
    return getView()->model()->headerData(m_section, Qt::Horizontal).toString();
}

QRect CAccessibleTreeTitle::rect() const
{
    if (!isValid() || getView()->isColumnHidden(m_section))
        return {};
    const QHeaderView *const header = getView()->header();
    const QPoint corner(header->sectionViewportPosition(m_section), 0);
    return {header->viewport()->mapToGlobal(corner),
            QSize(header->sectionSize(m_section), header->height())};
}

QAccessible::Role CAccessibleTreeTitle::role() const
{
    return QAccessible::ColumnHeader;
}

QAccessible::State CAccessibleTreeTitle::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    state.invisible
        = state.invalid || getView()->isColumnHidden(m_section) || !getView()->isVisible();
    return state;
}

} // namespace Plugin::FirmwareUpdater::Internal::View
