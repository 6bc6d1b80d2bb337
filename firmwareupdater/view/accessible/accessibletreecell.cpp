#include "accessibletreecell.h"

#include "accessibletreeview.h"
#include "view/delegate/abstractlabeldelegate.h"
#include "view/delegate/treeviewcameraselectiondelegate.h"
#include "view/treerow.h"

#include <QKeySequence>

#include <algorithm>

namespace Plugin::FirmwareUpdater::Internal::View {

using Entity::CFirmwareUpdateEntity;

/// A group counts as ticked once one of its cameras is.
static bool isPartlyTicked(const CFirmwareUpdateEntity &group)
{
    const QVector<QPointer<CFirmwareUpdateEntity>> cameras = group.getChildren();
    return std::any_of(cameras.cbegin(), cameras.cend(), [&group](const auto &camera) {
        return camera && camera->isSelected() != group.isSelected();
    });
}

CAccessibleTreeCell::CAccessibleTreeCell(CCustomTreeView *view, const QModelIndex &index)
    : CAccessibleTreeItem(view)
    , m_index(index)
    , m_announced(getNews())
{
}

QModelIndex CAccessibleTreeCell::getIndex() const
{
    return m_index;
}

void CAccessibleTreeCell::announceNews()
{
    const CNews before = m_announced;
    m_announced = getNews();

    // One event each: who listens looks at the first difference only.
    QAccessible::State ticked;
    ticked.checked = m_announced.state.checked != before.state.checked;
    ticked.checkStateMixed = m_announced.state.checkStateMixed != before.state.checkStateMixed;
    if (ticked.checked || ticked.checkStateMixed) {
        QAccessibleStateChangeEvent event(this, ticked);
        QAccessible::updateAccessibility(&event);
    }
    QAccessible::State disabled;
    disabled.disabled = m_announced.state.disabled != before.state.disabled;
    if (disabled.disabled) {
        QAccessibleStateChangeEvent event(this, disabled);
        QAccessible::updateAccessibility(&event);
    }
    if (m_announced.name != before.name) {
        QAccessibleEvent event(this, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    }
    if (m_announced.description != before.description) {
        QAccessibleEvent event(this, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&event);
    }
}

CAccessibleTreeCell::CNews CAccessibleTreeCell::getNews() const
{
    return {state(), text(QAccessible::Name), text(QAccessible::Description)};
}

bool CAccessibleTreeCell::isValid() const
{
    return getView() && m_index.isValid() && m_index.model() == getView()->model();
}

QString CAccessibleTreeCell::text(QAccessible::Text kind) const
{
    if (!isValid())
        return {};
    switch (kind) {
    case QAccessible::Name:
        return getText(m_index);
    case QAccessible::Description:
        return getDescription();
    default:
        return {};
    }
}

QRect CAccessibleTreeCell::rect() const
{
    if (!isValid())
        return {};
    const QRect cell = getView()->visualRect(m_index);
    return cell.isEmpty() ? cell
                          : QRect(getView()->viewport()->mapToGlobal(cell.topLeft()), cell.size());
}

QAccessible::Role CAccessibleTreeCell::role() const
{
    return QAccessible::TreeItem;
}

QAccessible::State CAccessibleTreeCell::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.invisible = !getView()->isVisible() || getView()->isColumnHidden(m_index.column());
    state.offscreen = !getView()->viewport()->rect().intersects(getView()->visualRect(m_index));
    state.focusable = true;
    state.focused = getView()->hasFocus() && getView()->currentIndex() == m_index;
    state.expanded = getView()->isExpanded(m_index) && getView()->model()->hasChildren(m_index);

    const CTreeRow row(m_index);
    if (!row.isValid())
        return state;
    const QPointer<CFirmwareUpdateEntity> entity = row.getEntity();
    state.disabled = !entity->isEnabled();
    if (hasCheckBox()) {
        state.checkable = true;
        // A row that cannot be ticked is painted without its tick.
        state.checked = entity->isEnabled() && entity->isSelected();
        state.checkStateMixed = state.checked && isPartlyTicked(*entity);
    }
    return state;
}

void *CAccessibleTreeCell::interface_cast(QAccessible::InterfaceType type)
{
    switch (type) {
    case QAccessible::TableCellInterface:
        return static_cast<QAccessibleTableCellInterface *>(this);
    case QAccessible::ActionInterface:
        return static_cast<QAccessibleActionInterface *>(this);
    default:
        return nullptr;
    }
}

bool CAccessibleTreeCell::isSelected() const
{
    return false;
}

QList<QAccessibleInterface *> CAccessibleTreeCell::columnHeaderCells() const
{
    const CAccessibleTreeView *const tree = CAccessibleTreeView::find(getView());
    QAccessibleInterface *const title = tree ? tree->getTitle(m_index.column()) : nullptr;
    return title ? QList<QAccessibleInterface *>{title} : QList<QAccessibleInterface *>();
}

QList<QAccessibleInterface *> CAccessibleTreeCell::rowHeaderCells() const
{
    return {};
}

int CAccessibleTreeCell::columnIndex() const
{
    const CAccessibleTreeView *const tree = CAccessibleTreeView::find(getView());
    return tree ? tree->getTableColumn(m_index.column()) : -1;
}

int CAccessibleTreeCell::rowIndex() const
{
    const CAccessibleTreeView *const tree = CAccessibleTreeView::find(getView());
    return tree ? tree->getTableRow(m_index) : -1;
}

int CAccessibleTreeCell::columnExtent() const
{
    return 1;
}

int CAccessibleTreeCell::rowExtent() const
{
    return 1;
}

QAccessibleInterface *CAccessibleTreeCell::table() const
{
    return parent();
}

QStringList CAccessibleTreeCell::actionNames() const
{
    QStringList names;
    if (isValid() && hasCheckBox() && !state().disabled)
        names.append(toggleAction());
    names.append(setFocusAction());
    return names;
}

void CAccessibleTreeCell::doAction(const QString &actionName)
{
    if (!actionNames().contains(actionName) || !isValid())
        return;
    if (actionName == toggleAction()) {
        getView()->toggleRow(m_index);
    } else {
        getView()->setFocus();
        getView()->setCurrentIndex(m_index);
    }
}

QStringList CAccessibleTreeCell::keyBindingsForAction(const QString &actionName) const
{
    return actionName == toggleAction() ? QStringList(QKeySequence(Qt::Key_Space).toString())
                                        : QStringList();
}

bool CAccessibleTreeCell::hasCheckBox() const
{
    const CTreeRow row(m_index);
    return row.isValid() && !row.isTransportLayer()
        && qobject_cast<CTreeViewCameraSelectionDelegate *>(getView()->itemDelegate(m_index));
}

QString CAccessibleTreeCell::getText(const QModelIndex &index) const
{
    const auto *const delegate
        = qobject_cast<const CAbstractLabelDelegate *>(getView()->itemDelegate(index));
    return delegate ? delegate->getText(index) : index.data().toString();
}

QString CAccessibleTreeCell::getDescription() const
{
    QStringList parts;
    for (QModelIndex parent = m_index.parent(); parent.isValid(); parent = parent.parent())
        parts.append(getText(parent));
    const QAbstractItemModel *const model = m_index.model();
    for (int column = 0; column < model->columnCount(); ++column) {
        const QString text = getText(m_index.sibling(m_index.row(), column));
        if (column != m_index.column() && !getView()->isColumnHidden(column) && !text.isEmpty()) {
            const QString title = model->headerData(column, Qt::Horizontal).toString();
            parts.append(QStringLiteral("%1: %2").arg(title, text));
        }
    }
    return parts.join(QStringLiteral(", "));
}

} // namespace Plugin::FirmwareUpdater::Internal::View
