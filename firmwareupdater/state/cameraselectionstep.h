#pragma once

#include "firmwareupdatestepbase.h"
#include "model/firmwareupdatetreemodel.h"

namespace Plugin::FirmwareUpdater::Internal::State {

/// Step 1: the user ticks cameras of one model. Next is available while at least one is ticked.
class CCameraSelectionStep : public CFirmwareUpdateStepBase
{
    Q_OBJECT

public:
    CCameraSelectionStep(QPointer<Core::Plugin::IPluginInitializer> initializer, QDialog *dialog,
                         QState *parent);
    ~CCameraSelectionStep() override;

    void onEntry(QEvent *event) override;

    /// The model whose ticks decide about Next.
    virtual void setCameraSelectionModel(QSharedPointer<Model::CFirmwareUpdateTreeModel> model);

    /// Brings the Next button in line with the ticks.
    void updateDialog();

public slots:
    /// An empty @p roles, by which Qt means all roles, changes nothing: the model always names
    /// them.
    void slotDataChanged(const QModelIndex &topLeft, const QModelIndex &topRight,
                         const QVector<int> &roles);

private:
    QSharedPointer<Model::CFirmwareUpdateTreeModel> m_cameraSelectionModel;
};

} // namespace Plugin::FirmwareUpdater::Internal::State
