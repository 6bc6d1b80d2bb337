#include "updatesummarydialog.h"

#include "model/firmwareupdatetreemodel.h"
#include "ui_updatesummarydialog.h"
#include "view/delegate/treeviewcameraselectiondelegate.h"
#include "view/delegate/treeviewdetailsdelegate.h"
#include "view/delegate/treeviewlabeldelegate.h"

namespace Plugin::FirmwareUpdater::Internal::View {

using Entity::CFirmwareUpdateEntity;

CUpdateSummaryDialog::CUpdateSummaryDialog(QWidget *parent)
    : CUpdateDialogBase(parent)
    , m_ui(std::make_unique<Ui::UpdateSummaryDialogUi>())
{
    m_ui->setupUi(this);
    setIcon(m_ui->warningIconLabel_1, EIcon::Warning);
    setIcon(m_ui->warningIconLabel_2, EIcon::Warning);
    setIcon(m_ui->infoIconLabel_1, EIcon::Info);
    setIcon(m_ui->infoIconLabel_2, EIcon::Info);
    initializeFrame(m_ui->stepTitleLabel, m_ui->contentVerticalLayout, m_ui->buttonBox);
    m_nextButton = addBackAndNextButtons(tr("Back"), tr("Next"));
    initializeCameraTree(m_ui->cameraTreeView);
}

CUpdateSummaryDialog::~CUpdateSummaryDialog() = default;

void CUpdateSummaryDialog::setModel(QSharedPointer<Model::CFirmwareUpdateTreeModel> model)
{
    auto *treeView = m_ui->cameraTreeView;
    if (!treeView->model()) {
        showColumns(model.data(),
                    {
                        {CFirmwareUpdateEntity::DisplayName, 115},
                        {CFirmwareUpdateEntity::CurrentFirmware, 142},
                        {CFirmwareUpdateEntity::SelectedFirmware, 148},
                        {CFirmwareUpdateEntity::UpdateDetails, 105},
                    });
        treeView->setItemDelegateForColumn(CFirmwareUpdateEntity::DisplayName,
                                           new CTreeViewCameraSelectionDelegate(treeView));
        auto *labelDelegate = new CTreeViewLabelDelegate(treeView);
        treeView->setItemDelegateForColumn(CFirmwareUpdateEntity::CurrentFirmware, labelDelegate);
        treeView->setItemDelegateForColumn(CFirmwareUpdateEntity::SelectedFirmware, labelDelegate);
        treeView->setItemDelegateForColumn(CFirmwareUpdateEntity::UpdateDetails,
                                           new CTreeViewDetailsDelegate(treeView));
    }
    treeView->expandAll();
    CUpdateDialogBase::setModel(std::move(model));
}

void CUpdateSummaryDialog::updateNextButton(bool enable)
{
    if (m_nextButton)
        enableDefaultButton(m_nextButton, enable);
}

void CUpdateSummaryDialog::updateDowngradeInfo(bool show)
{
    showWarning(m_ui->warningIconLabel_1, m_ui->warningTextLabel_1, m_ui->downgradeSpacer, show);
}

void CUpdateSummaryDialog::updateSidegradeInfo(bool show)
{
    showWarning(m_ui->warningIconLabel_2, m_ui->warningTextLabel_2, m_ui->reinstallSpacer, show);
}

void CUpdateSummaryDialog::dialogButtonClicked(QAbstractButton *pButton)
{
    switch (getButton(pButton)) {
    case EButton::Back:
        emit backClicked();
        break;
    case EButton::Next:
        emit nextClicked();
        break;
    case EButton::Close:
        emit closeClicked();
        break;
    default:
        break;
    }
}

void CUpdateSummaryDialog::showWarning(QLabel *iconLabel, QLabel *textLabel, QSpacerItem *spacer,
                                       bool show)
{
    iconLabel->setVisible(show);
    textLabel->setVisible(show);
    spacer->changeSize(0, show ? 13 : 0, QSizePolicy::Expanding, QSizePolicy::Fixed);
    // A spacer does not tell its layout of a new size.
    m_ui->contentVerticalLayout->invalidate();
    // At once: the page is on its way to the screen and must not be seen with the old gaps.
    layout()->activate();
}

} // namespace Plugin::FirmwareUpdater::Internal::View
