#pragma once

#include "updatedialogbase.h"

#include <memory>

class QSpacerItem;

namespace Ui {
class UpdateSummaryDialogUi;
}

namespace Plugin::FirmwareUpdater::Internal::View {

/// The dialog of step 3: what each chosen camera will get, and warnings about downgrades and
/// reinstalls.
class CUpdateSummaryDialog : public CUpdateDialogBase
{
    Q_OBJECT

public:
    explicit CUpdateSummaryDialog(QWidget *parent = nullptr);
    ~CUpdateSummaryDialog() override;

    /// Shows @p model. Only the first call connects the tree with it; a later one expands again.
    void setModel(QSharedPointer<Model::CFirmwareUpdateTreeModel> model) override;

    virtual void updateNextButton(bool enable);

    /// Shows or hides the warning that cameras will be downgraded.
    void updateDowngradeInfo(bool show);

    /// Shows or hides the warning that cameras will get the version that they have.
    void updateSidegradeInfo(bool show);

signals:
    void backClicked();
    void nextClicked();

protected slots:
    void dialogButtonClicked(QAbstractButton *pButton) override;

private:
    void showWarning(QLabel *iconLabel, QLabel *textLabel, QSpacerItem *spacer, bool show);

    const std::unique_ptr<Ui::UpdateSummaryDialogUi> m_ui;
    QPointer<QPushButton> m_nextButton;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
