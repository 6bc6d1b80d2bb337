#pragma once

#include "ifirmwareupdaterservice.h"
#include "model/firmwareupdatetreemodel.h"

#include "core/iplugininitializer.h"

#include <QFinalState>
#include <QPointer>
#include <QSharedPointer>

namespace Plugin::FirmwareUpdater::Internal::State {

/// The end of the wizard: empties the list of updated cameras and closes the log.
class CFirmwareUpdateDoneStep : public QFinalState
{
    Q_OBJECT

public:
    /// @p pluginInitializer must be alive and know the `IFirmwareUpdaterService`.
    CFirmwareUpdateDoneStep(QPointer<Core::Plugin::IPluginInitializer> pluginInitializer,
                            QState *parent);
    ~CFirmwareUpdateDoneStep() override;

    void onEntry(QEvent *event) override;

    /// The model to empty.
    virtual void setCameraUpdateModel(QSharedPointer<Model::CFirmwareUpdateTreeModel> model);

private:
    QSharedPointer<IFirmwareUpdaterService> m_updaterService;
    QSharedPointer<Model::CFirmwareUpdateTreeModel> m_cameraUpdateModel;
};

} // namespace Plugin::FirmwareUpdater::Internal::State
