#pragma once

#include "listframe.h"

class QTreeWidget;
class QTreeWidgetItem;

namespace Viewer::AppCore {

/// A list whose rows are few and stay as they were added.
class CListDialog : public CListFrame
{
    Q_OBJECT

public:
    ~CListDialog() override;

protected:
    CListDialog(const QString &title, const QStringList &columns, QWidget *parent);

    /// @p details has lines. The first row becomes the current one, and its details are shown.
    QTreeWidgetItem *addRow(const QStringList &texts, const QString &details);

    [[nodiscard]] QTreeWidget *getTree() const;

private:
    void onCurrentChanged();

    QTreeWidget *const m_tree;
};

} // namespace Viewer::AppCore
