#pragma once

#include "updatedialogbase.h"

#include <memory>

namespace Ui {
class FirmwareUpdateDialogUi;
}

namespace Plugin::FirmwareUpdater::Internal::View {

/// The dialog of step 4: the state of each camera's update, a counter and a progress bar.
class CFirmwareUpdateDialog : public CUpdateDialogBase
{
    Q_OBJECT

public:
    explicit CFirmwareUpdateDialog(QWidget *parent = nullptr);
    ~CFirmwareUpdateDialog() override;

    /// Shows @p model. Only the first call connects the tree with it; a later one expands again.
    void setModel(QSharedPointer<Model::CFirmwareUpdateTreeModel> model) override;

    /// Shows the counter "@p current/@p total".
    void updateOverallProgress(int current, int total);

    /// Moves the progress bar; a @p maximum of 0 makes it a busy indicator.
    void updateProgress(int value, int maximum);

    /// Makes Cancel and the title bar's close button available or not. Shows the dialog, since
    /// changing a window's buttons hides it.
    void enableButtons(bool enable);

protected slots:
    void dialogButtonClicked(QAbstractButton *pButton) override;

private:
    void watchExpansion();

    const std::unique_ptr<Ui::FirmwareUpdateDialogUi> m_ui;
    QPushButton *m_cancelButton = nullptr;
    bool m_isExpanded = false; ///< whether all rows still are as expandAll() left them
};

} // namespace Plugin::FirmwareUpdater::Internal::View
