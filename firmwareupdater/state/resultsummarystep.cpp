#include "resultsummarystep.h"

#include "view/resultsummarydialog.h"

namespace Plugin::FirmwareUpdater::Internal::State {

using Model::CFirmwareUpdateTreeModel;

CResultSummaryStep::CResultSummaryStep(QPointer<Core::Plugin::IPluginInitializer> pluginInitializer,
                                       QDialog *dialog, QState *parent)
    : CFirmwareUpdateStepBase(pluginInitializer, dialog, parent)
{
}

CResultSummaryStep::~CResultSummaryStep() = default;

void CResultSummaryStep::setCameraUpdateModel(QSharedPointer<CFirmwareUpdateTreeModel> model)
{
    if (m_cameraUpdateModel == model)
        return;
    m_cameraUpdateModel = model;
}

void CResultSummaryStep::onEntry(QEvent *event)
{
    CFirmwareUpdateStepBase::onEntry(event);

    auto *const dialog = getDialogAs<View::CResultSummaryDialog>();
    if (!dialog)
        return;

    const QSharedPointer<IFirmwareUpdaterService> service = getUpdaterService();
    dialog->updateView();
    dialog->setInfoTextData(service->getKorvaneSupportUrl(),
                            service->getCurrentTemporaryLogFilePath());

    int failed = 0;
    int successful = 0;
    int skipped = 0;
    if (const QSharedPointer<CFirmwareUpdateTreeModel> model = dialog->getModel())
        model->getModelStatistics(failed, successful, skipped);
    if (failed == 0)
        return;

    // Jobs report in the language of the sources; a known text is shown in the user's language.
    const QByteArray message = service->getUpdateFailureMessage().toUtf8();
    dialog->setErrorTextData(tr(message.constData()), skipped == 0);
}

void CResultSummaryStep::onExit(QEvent *event)
{
    if (m_cameraUpdateModel)
        m_cameraUpdateModel->setCameraDeviceList({});
    CFirmwareUpdateStepBase::onExit(event);
}

} // namespace Plugin::FirmwareUpdater::Internal::State
