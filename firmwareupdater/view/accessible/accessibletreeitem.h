#pragma once

#include "view/customtreeview.h"

#include <QAccessibleInterface>
#include <QPointer>

namespace Plugin::FirmwareUpdater::Internal::View {

/// What screen readers find in a camera tree, a cell or a column's title: nothing is inside of it,
/// and nobody can rename it.
class CAccessibleTreeItem : public QAccessibleInterface
{
public:
    QObject *object() const override;
    QWindow *window() const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    void setText(QAccessible::Text kind, const QString &text) override;

protected:
    explicit CAccessibleTreeItem(CCustomTreeView *view);

    /// Null once the tree is gone.
    [[nodiscard]] CCustomTreeView *getView() const;

private:
    const QPointer<CCustomTreeView> m_view;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
