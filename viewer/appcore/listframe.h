#pragma once

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QLayout;
class QPushButton;
class QTreeView;

namespace Viewer::AppCore {

/// A modal list with details of the current row below it, and a button that closes it. What is in
/// the list may come from outside: all of it is shown as plain text.
class CListFrame : public QDialog
{
    Q_OBJECT

public:
    ~CListFrame() override;

protected:
    /// Takes over @p view.
    CListFrame(const QString &title, QTreeView *view, QWidget *parent);

    /// Puts @p widget in the place of the details below the list; takes it over.
    void replaceDetails(QWidget *widget);

    /// A sentence above the list; empty: none.
    void setHint(const QString &hint);

    /// Shows @p details, which may have lines, until they are set again.
    void setDetails(const QString &details);

    /// Puts @p row between hint and list.
    void addAboveList(QLayout *row);

    /// A button below the list, whose object name is @p name.
    QPushButton *addButton(const QString &text, const char *name);

    [[nodiscard]] QTreeView *getView() const;
    [[nodiscard]] QPushButton *getCloseButton() const;

private:
    QTreeView *const m_view;
    QLabel *const m_hintLabel;
    QLabel *const m_detailsLabel;
    QDialogButtonBox *const m_buttonBox;
};

} // namespace Viewer::AppCore
