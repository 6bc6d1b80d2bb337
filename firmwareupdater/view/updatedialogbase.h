#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QPointer>
#include <QPushButton>
#include <QSharedPointer>
#include <QVector>

class QAbstractButton;
class QAbstractItemModel;
class QLabel;
class QSpacerItem;
class QTreeView;
class QVBoxLayout;

namespace Plugin::FirmwareUpdater::Internal::Model {
class CFirmwareUpdateTreeModel;
}

namespace Plugin::FirmwareUpdater::Internal::Style {
class CFocusStyle;
}

namespace Plugin::FirmwareUpdater::Internal::View {

/// Common base of the wizard's dialogs.
///
/// A dialog never closes by itself: each attempt to close it ends in closeClicked(), and the wizard
/// decides. Derived dialogs hand their form's widgets to initializeFrame() and
/// initializeCameraTree() once the form is built.
class CUpdateDialogBase : public QDialog
{
    Q_OBJECT

public:
    /// The width of the camera trees for which the columns' design widths were chosen.
    static constexpr float DEFAULT_TREE_VIEW_WIDTH = 512.0F;

    explicit CUpdateDialogBase(QWidget *parent = nullptr);
    ~CUpdateDialogBase() override;

    /// The model that the dialog shows; null before the first setModel(). It is shared with the
    /// service and with other dialogs.
    [[nodiscard]] virtual QSharedPointer<Model::CFirmwareUpdateTreeModel> getModel() const;
    virtual void setModel(QSharedPointer<Model::CFirmwareUpdateTreeModel> model);

signals:
    /// The user wants to leave: by Close or Cancel, by Escape, or by the title bar.
    void closeClicked();

public slots:
    /// Emits closeClicked(); the dialog stays open.
    void reject() override;

protected slots:
    /// A button of the button box was clicked.
    virtual void dialogButtonClicked(QAbstractButton *pButton) = 0;

protected:
    /// What a button of the button box stands for.
    enum class EButton {
        None,
        Back,
        Next,
        Close,
    };

    /// A visible column of a camera tree, and its width in a tree of the default width.
    struct CTreeColumn
    {
        int column;
        int designWidth;
    };

    /// Connects the button box, makes texts readable on the dialog's white, and lets @p content,
    /// which is all that stands above the buttons, give way on small screens. Screen readers get to
    /// know @p title, because all pages have the name of the window.
    void initializeFrame(const QLabel *title, QVBoxLayout *content, QDialogButtonBox *buttonBox);

    /// Empties the tree and gives it the wizard's header.
    void initializeCameraTree(QTreeView *treeView);

    /// Adds a Back and a Next button. Their roles only put them in their order; getButton() tells
    /// them apart.
    QPushButton *addBackAndNextButtons(const QString &backText, const QString &nextText);

    /// Adds a Next button to a dialog that has no Back.
    QPushButton *addNextButton(const QString &text);

    /// What @p button stands for; null and unknown buttons stand for nothing.
    [[nodiscard]] EButton getButton(QAbstractButton *button) const;

    /// Makes @p button the one that Enter clicks, or takes that away from it.
    void setDefaultButton(QPushButton *button, bool isDefault);

    /// Makes @p button available as the default button, or neither of both.
    void enableDefaultButton(QPushButton *button, bool enable);

    /// Shows @p model in the camera tree with @p columns alone. They have their design widths until
    /// the dialog is resized; from then on they fill the tree.
    void showColumns(QAbstractItemModel *model, const QVector<CTreeColumn> &columns);

    /// What the picture beside a text says about it.
    enum class EIcon {
        Info,
        Warning,
        Error,
    };

    /// Replaces a form's picture by that of the screen's resolution, and names it for those who
    /// cannot see it.
    static void setIcon(QLabel *label, EIcon icon);

    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    [[nodiscard]] QPushButton *addButton(const QString &text, QDialogButtonBox::ButtonRole role);
    void fitColumns();
    void fitScreen();
    void fitGaps();
    void focusFirstControl();

    QSharedPointer<Model::CFirmwareUpdateTreeModel> m_model;
    Style::CFocusStyle *const m_focusStyle;
    QDialogButtonBox *m_buttonBox = nullptr;
    QVBoxLayout *m_content = nullptr;
    QVector<QSpacerItem *> m_gaps; ///< those of m_content that give way on small screens
    QVector<int> m_designGapHeights;
    QSize m_designMinimumSize;
    bool m_isCompact = false;
    QPointer<QPushButton> m_backButton;
    QPointer<QPushButton> m_defaultButton;
    QTreeView *m_treeView = nullptr;
    QVector<CTreeColumn> m_columns;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
