#pragma once

#include "firmwareupdatestepbase.h"
#include "model/firmwareupdatetreemodel.h"

namespace Plugin::FirmwareUpdater::Internal::State {

/// Step 5: shows how the updates ended. Leaving it empties the list of updated cameras.
class CResultSummaryStep : public CFirmwareUpdateStepBase
{
    Q_OBJECT

public:
    CResultSummaryStep(QPointer<Core::Plugin::IPluginInitializer> pluginInitializer,
                       QDialog *dialog, QState *parent);
    ~CResultSummaryStep() override;

    void onEntry(QEvent *event) override;
    void onExit(QEvent *event) override;

    /// The model to empty.
    virtual void setCameraUpdateModel(QSharedPointer<Model::CFirmwareUpdateTreeModel> model);

private:
    QSharedPointer<Model::CFirmwareUpdateTreeModel> m_cameraUpdateModel;
};

} // namespace Plugin::FirmwareUpdater::Internal::State
