#include "updateselectionstep.h"

#include "view/updateselectiondialog.h"

namespace Plugin::FirmwareUpdater::Internal::State {

CUpdateSelectionStep::CUpdateSelectionStep(QPointer<Core::Plugin::IPluginInitializer> initializer,
                                           QDialog *dialog, QState *parent)
    : CFirmwareUpdateStepBase(initializer, dialog, parent)
{
}

CUpdateSelectionStep::~CUpdateSelectionStep() = default;

void CUpdateSelectionStep::setCameraUpdateModel(
    QSharedPointer<Model::CFirmwareUpdateTreeModel> model)
{
    m_cameraUpdateModel = model;
}

void CUpdateSelectionStep::onEntry(QEvent *event)
{
    if (auto *const dialog = getDialogAs<View::CUpdateSelectionDialog>())
        dialog->setKorvaneSupportUrl(getUpdaterService()->getKorvaneSupportUrl());
    if (m_cameraUpdateModel)
        m_cameraUpdateModel->setCameraDeviceList({});
    CFirmwareUpdateStepBase::onEntry(event);
}

} // namespace Plugin::FirmwareUpdater::Internal::State
