#include "firmwareupdatedonestep.h"

namespace Plugin::FirmwareUpdater::Internal::State {

CFirmwareUpdateDoneStep::CFirmwareUpdateDoneStep(
    QPointer<Core::Plugin::IPluginInitializer> pluginInitializer, QState *parent)
    : QFinalState(parent)
    , m_updaterService(pluginInitializer->getService<IFirmwareUpdaterService>())
{
}

CFirmwareUpdateDoneStep::~CFirmwareUpdateDoneStep() = default;

void CFirmwareUpdateDoneStep::setCameraUpdateModel(
    QSharedPointer<Model::CFirmwareUpdateTreeModel> model)
{
    if (m_cameraUpdateModel == model)
        return;
    m_cameraUpdateModel = model;
}

void CFirmwareUpdateDoneStep::onEntry(QEvent *event)
{
    Q_UNUSED(event)

    if (m_cameraUpdateModel)
        m_cameraUpdateModel->setCameraDeviceList({});
    m_updaterService->closeTemporaryLogFile();
}

} // namespace Plugin::FirmwareUpdater::Internal::State
