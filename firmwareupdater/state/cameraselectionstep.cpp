#include "cameraselectionstep.h"

#include "view/cameraselectiondialog.h"

namespace Plugin::FirmwareUpdater::Internal::State {

using Entity::CFirmwareUpdateEntity;
using Model::CFirmwareUpdateTreeModel;

CCameraSelectionStep::CCameraSelectionStep(QPointer<Core::Plugin::IPluginInitializer> initializer,
                                           QDialog *dialog, QState *parent)
    : CFirmwareUpdateStepBase(initializer, dialog, parent)
{
}

CCameraSelectionStep::~CCameraSelectionStep() = default;

void CCameraSelectionStep::setCameraSelectionModel(QSharedPointer<CFirmwareUpdateTreeModel> model)
{
    if (m_cameraSelectionModel == model)
        return;

    if (m_cameraSelectionModel)
        disconnect(m_cameraSelectionModel.data(), nullptr, this, nullptr);
    m_cameraSelectionModel = model;
    if (!m_cameraSelectionModel)
        return;

    connect(m_cameraSelectionModel.data(),
            SIGNAL(dataChanged(const QModelIndex &, const QModelIndex &, const QVector<int> &)),
            this,
            SLOT(slotDataChanged(const QModelIndex &, const QModelIndex &, const QVector<int> &)));
    // A new enumeration empties the ticks by a reset, which announces no data.
    connect(m_cameraSelectionModel.data(), &QAbstractItemModel::modelReset, this,
            &CCameraSelectionStep::updateDialog);
}

void CCameraSelectionStep::slotDataChanged(const QModelIndex &topLeft, const QModelIndex &topRight,
                                           const QVector<int> &roles)
{
    Q_UNUSED(topLeft)
    Q_UNUSED(topRight)

    if (roles.contains(CFirmwareUpdateEntity::SelectionStatus)
        || roles.contains(CFirmwareUpdateEntity::DisplayName))
        updateDialog();
}

void CCameraSelectionStep::onEntry(QEvent *event)
{
    updateDialog();
    CFirmwareUpdateStepBase::onEntry(event);
}

void CCameraSelectionStep::updateDialog()
{
    auto *const dialog = getDialogAs<View::CCameraSelectionDialog>();
    if (dialog && m_cameraSelectionModel)
        dialog->updateNextButton(m_cameraSelectionModel->hasSelectedCameras());
}

} // namespace Plugin::FirmwareUpdater::Internal::State
