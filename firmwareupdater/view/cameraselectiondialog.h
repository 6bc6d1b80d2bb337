#pragma once

#include "updatedialogbase.h"

#include <memory>

namespace Ui {
class CameraSelectionDialogUi;
}

namespace Plugin::FirmwareUpdater::Internal::View {

/// The dialog of step 1: the tree of all cameras with check boxes, and a button that searches for
/// cameras again.
class CCameraSelectionDialog : public CUpdateDialogBase
{
    Q_OBJECT

public:
    explicit CCameraSelectionDialog(QWidget *parent = nullptr);
    ~CCameraSelectionDialog() override;

    /// Shows @p model sorted, all rows expanded. Only the first call connects the tree with it; a
    /// later one, after a rebuild of the same model, expands and sorts again.
    void setModel(QSharedPointer<Model::CFirmwareUpdateTreeModel> model) override;

    virtual void updateNextButton(bool enable);

signals:
    void nextClicked();
    void refreshCamTreeClicked();

protected slots:
    void dialogButtonClicked(QAbstractButton *pButton) override;

private:
    const std::unique_ptr<Ui::CameraSelectionDialogUi> m_ui;
    QPointer<QPushButton> m_nextButton;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
