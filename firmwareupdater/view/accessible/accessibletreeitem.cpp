#include "accessibletreeitem.h"

namespace Plugin::FirmwareUpdater::Internal::View {

CAccessibleTreeItem::CAccessibleTreeItem(CCustomTreeView *view)
    : m_view(view)
{
}

QObject *CAccessibleTreeItem::object() const
{
    return nullptr;
}

QWindow *CAccessibleTreeItem::window() const
{
    return parent() ? parent()->window() : nullptr;
}

QAccessibleInterface *CAccessibleTreeItem::childAt(int x, int y) const
{
    Q_UNUSED(x)
    Q_UNUSED(y)
    return nullptr;
}

QAccessibleInterface *CAccessibleTreeItem::parent() const
{
    return QAccessible::queryAccessibleInterface(m_view);
}

QAccessibleInterface *CAccessibleTreeItem::child(int index) const
{
    Q_UNUSED(index)
    return nullptr;
}

int CAccessibleTreeItem::childCount() const
{
    return 0;
}

int CAccessibleTreeItem::indexOfChild(const QAccessibleInterface *child) const
{
    Q_UNUSED(child)
    return -1;
}

void CAccessibleTreeItem::setText(QAccessible::Text kind, const QString &text)
{
    Q_UNUSED(kind);
    Q_UNUSED(text);
}

CCustomTreeView *CAccessibleTreeItem::getView() const
{
    return m_view;
}

} // namespace Plugin::FirmwareUpdater::Internal::View
