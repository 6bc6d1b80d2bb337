#pragma once

#include "accessibletreeitem.h"

#include <QPersistentModelIndex>

namespace Plugin::FirmwareUpdater::Internal::View {

/// A cell of a camera tree as screen readers see it: the text that its delegate paints, the rest of
/// the row as description, and the state of the row's check box.
class CAccessibleTreeCell final : public CAccessibleTreeItem,
                                  public QAccessibleTableCellInterface,
                                  public QAccessibleActionInterface
{
public:
    CAccessibleTreeCell(CCustomTreeView *view, const QModelIndex &index);

    [[nodiscard]] QModelIndex getIndex() const;

    /// Announces what differs from what was last announced, or from what it was at first.
    void announceNews();

    bool isValid() const override;
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    bool isSelected() const override;
    QList<QAccessibleInterface *> columnHeaderCells() const override;
    QList<QAccessibleInterface *> rowHeaderCells() const override;
    int columnIndex() const override;
    int rowIndex() const override;
    int columnExtent() const override;
    int rowExtent() const override;
    QAccessibleInterface *table() const override;

    QStringList actionNames() const override;
    void doAction(const QString &actionName) override;
    QStringList keyBindingsForAction(const QString &actionName) const override;

private:
    /// What a screen reader knows of the cell.
    struct CNews
    {
        QAccessible::State state;
        QString name;
        QString description;
    };

    [[nodiscard]] CNews getNews() const;
    [[nodiscard]] bool hasCheckBox() const;
    [[nodiscard]] QString getText(const QModelIndex &index) const;
    [[nodiscard]] QString getDescription() const;

    const QPersistentModelIndex m_index;
    CNews m_announced;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
