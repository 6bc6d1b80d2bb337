#pragma once

#include "firmwareupdatestepbase.h"
#include "model/firmwareupdatetreemodel.h"

namespace Plugin::FirmwareUpdater::Internal::State {

/// Step 2: the user chooses the update file. No camera list of an earlier pass survives the entry.
class CUpdateSelectionStep : public CFirmwareUpdateStepBase
{
    Q_OBJECT

public:
    CUpdateSelectionStep(QPointer<Core::Plugin::IPluginInitializer> initializer, QDialog *dialog,
                         QState *parent);
    ~CUpdateSelectionStep() override;

    void onEntry(QEvent *event) override;

    /// The model of the cameras that are going to be updated.
    virtual void setCameraUpdateModel(QSharedPointer<Model::CFirmwareUpdateTreeModel> model);

private:
    QSharedPointer<Model::CFirmwareUpdateTreeModel> m_cameraUpdateModel;
};

} // namespace Plugin::FirmwareUpdater::Internal::State
