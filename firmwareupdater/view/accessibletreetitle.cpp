#include "accessibletreetitle.h"

#include "customtreeview.h"

#include <QHeaderView>

namespace Plugin::FirmwareUpdater::Internal::View {

CAccessibleTreeTitle::CAccessibleTreeTitle(CCustomTreeView *view, int section)
    : m_view(view)
    , m_section(section)
{
}

int CAccessibleTreeTitle::getSection() const
{
    return m_section;
}

bool CAccessibleTreeTitle::isValid() const
{
    return m_view && m_view->model() && m_section < m_view->model()->columnCount();
}

QObject *CAccessibleTreeTitle::object() const
{
    return nullptr;
}

QWindow *CAccessibleTreeTitle::window() const
{
    return parent() ? parent()->window() : nullptr;
}

QAccessibleInterface *CAccessibleTreeTitle::childAt(int x, int y) const
{
    Q_UNUSED(x)
    Q_UNUSED(y)
    return nullptr;
}

QAccessibleInterface *CAccessibleTreeTitle::parent() const
{
    return QAccessible::queryAccessibleInterface(m_view);
}

QAccessibleInterface *CAccessibleTreeTitle::child(int index) const
{
    Q_UNUSED(index)
    return nullptr;
}

int CAccessibleTreeTitle::childCount() const
{
    return 0;
}

int CAccessibleTreeTitle::indexOfChild(const QAccessibleInterface *child) const
{
    Q_UNUSED(child)
    return -1;
}

QString CAccessibleTreeTitle::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Name || !isValid())
        return {};
    return m_view->model()->headerData(m_section, Qt::Horizontal).toString();
}

void CAccessibleTreeTitle::setText(QAccessible::Text kind, const QString &text)
{
    Q_UNUSED(kind);
    Q_UNUSED(text);
}

QRect CAccessibleTreeTitle::rect() const
{
    if (!isValid() || m_view->isColumnHidden(m_section))
        return {};
    const QHeaderView *const header = m_view->header();
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
    state.invisible = state.invalid || m_view->isColumnHidden(m_section) || !m_view->isVisible();
    return state;
}

} // namespace Plugin::FirmwareUpdater::Internal::View
