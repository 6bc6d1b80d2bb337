#include "accessibletreeview.h"

#include "accessiblepathfield.h"
#include "accessibletreecell.h"
#include "accessibletreetitle.h"
#include "view/customtreeview.h"
#include "view/updateselectiondialog.h"

#include <QHeaderView>
#include <QLineEdit>

namespace Plugin::FirmwareUpdater::Internal::View {

static QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    Q_UNUSED(className)
    if (auto *const view = qobject_cast<CCustomTreeView *>(object))
        return new CAccessibleTreeView(view);
    auto *const field = qobject_cast<QLineEdit *>(object);
    if (field && qobject_cast<CUpdateSelectionDialog *>(field->parent()))
        return new CAccessiblePathField(field);
    return nullptr;
}

CAccessibleTreeView::CAccessibleTreeView(CCustomTreeView *view)
    : QAccessibleWidget(view, QAccessible::Tree)
{
}

CAccessibleTreeView::~CAccessibleTreeView()
{
    forgetCells();
    for (const QAccessible::Id id : qAsConst(m_titles))
        QAccessible::deleteAccessibleInterface(id);
}

void CAccessibleTreeView::installFactory()
{
    // Qt ignores a factory that it has already.
    QAccessible::installFactory(createInterface);
}

void CAccessibleTreeView::removeFactory()
{
    QAccessible::removeFactory(createInterface);
}

CAccessibleTreeView *CAccessibleTreeView::find(CCustomTreeView *view)
{
    return dynamic_cast<CAccessibleTreeView *>(QAccessible::queryAccessibleInterface(view));
}

void CAccessibleTreeView::announceRow(const QModelIndex &index) const
{
    if (m_cells.isEmpty())
        return;
    const QVector<int> columns = getShownColumns();
    for (const int column : columns)
        announceCell(index.siblingAtColumn(column));
    if (index.parent().isValid())
        announceCell(index.parent());
}

void CAccessibleTreeView::announceCell(const QModelIndex &index) const
{
    const auto id = m_cells.constFind(index);
    if (id != m_cells.constEnd())
        static_cast<CAccessibleTreeCell *>(QAccessible::accessibleInterface(*id))->announceNews();
}

QAccessibleInterface *CAccessibleTreeView::getCell(const QModelIndex &index) const
{
    if (!index.isValid())
        return nullptr;
    auto id = m_cells.find(index);
    if (id == m_cells.end()) {
        auto *const cell = new CAccessibleTreeCell(getView(), index);
        id = m_cells.insert(index, QAccessible::registerAccessibleInterface(cell));
    }
    return QAccessible::accessibleInterface(*id);
}

QAccessibleInterface *CAccessibleTreeView::getTitle(int section) const
{
    if (section < 0 || section >= getModelColumnCount())
        return nullptr;
    auto id = m_titles.find(section);
    if (id == m_titles.end()) {
        auto *const title = new CAccessibleTreeTitle(getView(), section);
        id = m_titles.insert(section, QAccessible::registerAccessibleInterface(title));
    }
    return QAccessible::accessibleInterface(*id);
}

int CAccessibleTreeView::getTableRow(const QModelIndex &index) const
{
    return getShownRows().indexOf(index.siblingAtColumn(0));
}

int CAccessibleTreeView::getTableColumn(int section) const
{
    return getShownColumns().indexOf(section);
}

QAccessibleInterface *CAccessibleTreeView::focusChild() const
{
    return getView()->hasFocus() ? getCell(getView()->currentIndex()) : nullptr;
}

QAccessibleInterface *CAccessibleTreeView::childAt(int x, int y) const
{
    const QPoint position(x, y);
    const QHeaderView *const header = getView()->header();
    const QPoint inHeader = header->viewport()->mapFromGlobal(position);
    if (header->isVisible() && header->viewport()->rect().contains(inHeader))
        return getTitle(header->logicalIndexAt(inHeader));
    const QWidget *const viewport = getView()->viewport();
    const QPoint inViewport = viewport->mapFromGlobal(position);
    return viewport->rect().contains(inViewport) ? getCell(getView()->indexAt(inViewport))
                                                 : nullptr;
}

QAccessibleInterface *CAccessibleTreeView::child(int index) const
{
    const int columnCount = getModelColumnCount();
    if (index < 0 || columnCount == 0)
        return nullptr;
    if (index < columnCount)
        return getTitle(index);
    const QModelIndex row = getShownRows().value(index / columnCount - 1);
    return getCell(row.siblingAtColumn(index % columnCount));
}

int CAccessibleTreeView::childCount() const
{
    return (rowCount() + 1) * getModelColumnCount();
}

int CAccessibleTreeView::indexOfChild(const QAccessibleInterface *child) const
{
    if (const auto *const title = dynamic_cast<const CAccessibleTreeTitle *>(child))
        return title->getSection();
    const auto *const cell = dynamic_cast<const CAccessibleTreeCell *>(child);
    const int row = cell ? getTableRow(cell->getIndex()) : -1;
    return row < 0 ? -1 : (row + 1) * getModelColumnCount() + cell->getIndex().column();
}

void *CAccessibleTreeView::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface *>(this)
                                               : QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface *CAccessibleTreeView::caption() const
{
    return nullptr;
}

QAccessibleInterface *CAccessibleTreeView::summary() const
{
    return nullptr;
}

QAccessibleInterface *CAccessibleTreeView::cellAt(int row, int column) const
{
    const QVector<int> columns = getShownColumns();
    if (row < 0 || column < 0 || column >= columns.size())
        return nullptr;
    return getCell(getShownRows().value(row).siblingAtColumn(columns.at(column)));
}

QString CAccessibleTreeView::columnDescription(int column) const
{
    const QAccessibleInterface *const title = getTitle(getShownColumns().value(column, -1));
    return title ? title->text(QAccessible::Name) : QString();
}

QString CAccessibleTreeView::rowDescription(int row) const
{
    Q_UNUSED(row)
    return {};
}

int CAccessibleTreeView::columnCount() const
{
    return getShownColumns().size();
}

int CAccessibleTreeView::rowCount() const
{
    return getShownRows().size();
}

void CAccessibleTreeView::modelChange(QAccessibleTableModelChangeEvent *event)
{
    if (event->modelChangeType() == QAccessibleTableModelChangeEvent::ModelReset)
        forgetCells();
}

int CAccessibleTreeView::selectedCellCount() const
{
    return 0;
}

QList<QAccessibleInterface *> CAccessibleTreeView::selectedCells() const
{
    return {};
}

int CAccessibleTreeView::selectedColumnCount() const
{
    return 0;
}

int CAccessibleTreeView::selectedRowCount() const
{
    return 0;
}

QList<int> CAccessibleTreeView::selectedColumns() const
{
    return {};
}

QList<int> CAccessibleTreeView::selectedRows() const
{
    return {};
}

bool CAccessibleTreeView::isColumnSelected(int column) const
{
    Q_UNUSED(column)
    return false;
}

bool CAccessibleTreeView::isRowSelected(int row) const
{
    Q_UNUSED(row)
    return false;
}

bool CAccessibleTreeView::selectRow(int row)
{
    Q_UNUSED(row)
    return false;
}

bool CAccessibleTreeView::selectColumn(int column)
{
    Q_UNUSED(column)
    return false;
}

bool CAccessibleTreeView::unselectRow(int row)
{
    Q_UNUSED(row)
    return false;
}

bool CAccessibleTreeView::unselectColumn(int column)
{
    Q_UNUSED(column)
    return false;
}

CCustomTreeView *CAccessibleTreeView::getView() const
{
    return static_cast<CCustomTreeView *>(widget());
}

int CAccessibleTreeView::getModelColumnCount() const
{
    const QAbstractItemModel *const model = getView()->model();
    return model ? model->columnCount() : 0;
}

static void appendRows(const CCustomTreeView &view, const QModelIndex &parent,
                       QVector<QModelIndex> &rows)
{
    const int count = view.model()->rowCount(parent);
    for (int i = 0; i < count; ++i) {
        const QModelIndex row = view.model()->index(i, 0, parent);
        rows.append(row);
        if (view.isExpanded(row))
            appendRows(view, row, rows);
    }
}

QVector<QModelIndex> CAccessibleTreeView::getShownRows() const
{
    QVector<QModelIndex> rows;
    if (getView()->model())
        appendRows(*getView(), {}, rows);
    return rows;
}

QVector<int> CAccessibleTreeView::getShownColumns() const
{
    QVector<int> columns;
    for (int column = 0; column < getModelColumnCount(); ++column) {
        if (!getView()->isColumnHidden(column))
            columns.append(column);
    }
    return columns;
}

void CAccessibleTreeView::forgetCells()
{
    for (const QAccessible::Id id : qAsConst(m_cells))
        QAccessible::deleteAccessibleInterface(id);
    m_cells.clear();
}

} // namespace Plugin::FirmwareUpdater::Internal::View
