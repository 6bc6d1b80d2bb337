#pragma once

#include <QAccessibleWidget>
#include <QHash>
#include <QPersistentModelIndex>
#include <QVector>

namespace Plugin::FirmwareUpdater::Internal::View {

class CCustomTreeView;

/// A camera tree as screen readers see it.
///
/// What the cells show is chosen by delegates, from numbers and flags that the model gives without
/// words. So this tells what the delegates paint instead of what the model holds.
///
/// Children are numbered as the view numbers them in its events: the titles first, then the rows
/// from top to bottom, each with all columns of the model. The columns of the table, on the other
/// hand, are only those that are shown.
class CAccessibleTreeView final : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit CAccessibleTreeView(CCustomTreeView *view);

    /// Lets Qt make this for each camera tree that somebody asks about, and what else of the wizard
    /// Qt would describe wrongly for its control.
    static void installFactory();

    /// Leaves the trees that nobody has asked about to Qt.
    static void removeFactory();

    /// What screen readers know of @p view; null when something else answers for it.
    [[nodiscard]] static CAccessibleTreeView *find(CCustomTreeView *view);

    /// Announces what is new in the row of @p index and in its parent's, of which the check box
    /// tells how many of its rows are ticked. Rows that nobody has asked about stay silent, so that
    /// a tick in a long tree does not flood the screen reader.
    void announceRow(const QModelIndex &index) const;

    [[nodiscard]] QAccessibleInterface *getCell(const QModelIndex &index) const;
    [[nodiscard]] QAccessibleInterface *getTitle(int section) const;

    /// Places in the table; -1 when @p index, or the column @p section, is not shown.
    [[nodiscard]] int getTableRow(const QModelIndex &index) const;
    [[nodiscard]] int getTableColumn(int section) const;

    QAccessibleInterface *focusChild() const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface *caption() const override;
    QAccessibleInterface *summary() const override;
    QAccessibleInterface *cellAt(int row, int column) const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int columnCount() const override;
    int rowCount() const override;
    void modelChange(QAccessibleTableModelChangeEvent *event) override;

    // Rows are ticked, not selected.
    int selectedCellCount() const override;
    QList<QAccessibleInterface *> selectedCells() const override;
    int selectedColumnCount() const override;
    int selectedRowCount() const override;
    QList<int> selectedColumns() const override;
    QList<int> selectedRows() const override;
    bool isColumnSelected(int column) const override;
    bool isRowSelected(int row) const override;
    bool selectRow(int row) override;
    bool selectColumn(int column) override;
    bool unselectRow(int row) override;
    bool unselectColumn(int column) override;

protected:
    ~CAccessibleTreeView() override;

private:
    [[nodiscard]] CCustomTreeView *getView() const;
    [[nodiscard]] int getModelColumnCount() const;
    [[nodiscard]] QVector<QModelIndex> getShownRows() const;
    [[nodiscard]] QVector<int> getShownColumns() const;
    void announceCell(const QModelIndex &index) const;
    void forgetCells();

    // Made when somebody asks for them; the interfaces with these ids belong to this.
    mutable QHash<QPersistentModelIndex, QAccessible::Id> m_cells;
    mutable QHash<int, QAccessible::Id> m_titles;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
