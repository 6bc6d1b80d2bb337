#pragma once

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

namespace Viewer::AppCore {

/// A modal list with details of the current row below it, and a button that closes it. What is in
/// the list may come from outside: all of it is shown as plain text.
class CListDialog : public QDialog
{
    Q_OBJECT

public:
    ~CListDialog() override;

protected:
    CListDialog(const QString &title, const QStringList &columns, QWidget *parent);

    /// @p details has lines. The first row becomes the current one.
    QTreeWidgetItem *addRow(const QStringList &texts, const QString &details);

    /// A sentence above the list; empty: none.
    void setHint(const QString &hint);

    /// Shows @p details until the current row changes.
    void setDetails(const QString &details);

    [[nodiscard]] QTreeWidget *getTree() const;
    [[nodiscard]] QDialogButtonBox *getButtonBox() const;

private:
    void onCurrentChanged();

    QLabel *const m_hintLabel;
    QTreeWidget *const m_tree;
    QLabel *const m_detailsLabel;
    QDialogButtonBox *const m_buttonBox;
};

} // namespace Viewer::AppCore
