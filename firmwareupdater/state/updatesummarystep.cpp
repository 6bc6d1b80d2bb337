#include "updatesummarystep.h"

#include "core/baseexception.h"
#include "view/updatesummarydialog.h"

namespace Plugin::FirmwareUpdater::Internal::State {

using Core::Logging::ELogLevel;
using Entity::CFirmwareUpdateEntity;
using Model::CFirmwareUpdateTreeModel;
using Plugin::CameraPool::EFirmwareUpdateDirection;

CUpdateSummaryStep::CUpdateSummaryStep(QPointer<Core::Plugin::IPluginInitializer> pluginInitializer,
                                       QDialog *dialog, QState *parent)
    : CFirmwareUpdateStepBase(pluginInitializer, dialog, parent)
    , m_deviceUpdateService(
          pluginInitializer->getService<Plugin::CameraPool::IDeviceFirmwareUpdateService>())
{
}

CUpdateSummaryStep::~CUpdateSummaryStep() = default;

void CUpdateSummaryStep::setCameraSelectionModel(QSharedPointer<CFirmwareUpdateTreeModel> model)
{
    if (m_cameraSelectionModel == model)
        return;
    m_cameraSelectionModel = model;
}

void CUpdateSummaryStep::updateDialog()
{
    auto *const dialog = getDialogAs<View::CUpdateSummaryDialog>();
    if (!dialog)
        return;
    if (const QSharedPointer<CFirmwareUpdateTreeModel> model = dialog->getModel())
        dialog->updateNextButton(model->hasSelectedCameras());
}

void CUpdateSummaryStep::slotDataChanged(const QModelIndex &topLeft, const QModelIndex &topRight,
                                         const QVector<int> &roles)
{
    Q_UNUSED(topLeft)
    Q_UNUSED(topRight)

    if (roles.contains(Qt::EditRole) || roles.contains(Qt::DisplayRole))
        updateDialog();
}

void CUpdateSummaryStep::onEntry(QEvent *event)
{
    CFirmwareUpdateStepBase::onEntry(event);

    auto *const dialog = getDialogAs<View::CUpdateSummaryDialog>();
    if (!dialog || !m_cameraSelectionModel)
        return;
    const QSharedPointer<CFirmwareUpdateTreeModel> model = dialog->getModel();
    if (!model)
        return;

    Cameras cameras = copySelectedCameras();
    UpdateInfos updates;
    if (!readUpdateFile(updates))
        return;

    CDirections directions;
    for (const std::unique_ptr<CFirmwareUpdateEntity> &camera : cameras)
        prepareUpdate(*camera, updates, directions);

    dialog->updateDowngradeInfo(directions.anyDowngrade);
    dialog->updateSidegradeInfo(directions.anyReinstall);
    showCameras(model.data(), std::move(cameras));
    dialog->setModel(model);
    updateDialog();
}

CUpdateSummaryStep::Cameras CUpdateSummaryStep::copySelectedCameras() const
{
    Cameras cameras;
    const QList<QPointer<CFirmwareUpdateEntity>> selected
        = m_cameraSelectionModel->getSelectedCameraList();
    for (const QPointer<CFirmwareUpdateEntity> &camera : selected) {
        if (camera)
            cameras.push_back(std::make_unique<CFirmwareUpdateEntity>(*camera));
    }
    return cameras;
}

bool CUpdateSummaryStep::readUpdateFile(UpdateInfos &updates) const
{
    const QSharedPointer<IFirmwareUpdaterService> service = getUpdaterService();
    const QString path = service->getSelectedUpdatePath();
    service->addTemporaryLogMessage(ELogLevel::Info,
                                    QStringLiteral("Selected firmware update file ") + path);

    if (!m_deviceUpdateService)
        return false;
    try {
        updates = m_deviceUpdateService->getFirmwareUpdateInfos(path, QString());
    } catch (const Core::Exception::BaseException &exception) {
        service->addTemporaryLogMessage(ELogLevel::Critical,
                                        QStringLiteral("Failed to open firmware update file: ")
                                            + exception.getMessage());
        return false;
    }

    for (const QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo> &update :
         qAsConst(updates)) {
        service->addTemporaryLogMessage(ELogLevel::Info,
                                        QStringLiteral("Contains firmware update to version ")
                                            + update->getVersion());
        service->addTemporaryLogMessage(ELogLevel::Info,
                                        QStringLiteral("Description: ") + update->getDescription());
    }
    return true;
}

void CUpdateSummaryStep::prepareUpdate(CFirmwareUpdateEntity &camera, const UpdateInfos &updates,
                                       CDirections &directions) const
{
    const QSharedPointer<IFirmwareUpdaterService> service = getUpdaterService();
    const Plugin::CameraPool::CameraInfoPtr cameraInfo = camera.getCameraInfo();
    const Plugin::CameraPool::DeviceFirmwareUpdatePtr update = createUpdate(cameraInfo, updates);
    if (!update) {
        service->addTemporaryLogMessage(
            ELogLevel::Critical,
            QStringLiteral("No compatible firmware update found for %1 %2: %3")
                .arg(cameraInfo->getModelName(), cameraInfo->getSerialNumber(),
                     cameraInfo->getDeviceVersion()));
        return;
    }

    camera.setDeviceFirmwareUpdate(update);
    camera.setSelectedFirmware(update->getFirmwareUpdateInfo()->getVersion());
    camera.setUpdateDetails(update->getFirmwareUpdateDirection());

    const EFirmwareUpdateDirection direction = camera.getUpdateDetails();
    directions.anyReinstall |= direction == EFirmwareUpdateDirection::Reinstall;
    directions.anyDowngrade |= direction == EFirmwareUpdateDirection::Downgrade;

    // The word tells about all cameras so far, not about this one: after the first reinstall every
    // line says "reinstall". Kept on purpose, readers of old logs know it that way.
    const QString word = directions.anyReinstall ? QStringLiteral("reinstall")
        : directions.anyDowngrade                ? QStringLiteral("downgrade")
                                                 : QStringLiteral("update");
    service->addTemporaryLogMessage(
        ELogLevel::Info,
        QStringLiteral("Created update: Update will %1 camera %2 %3 with version %4 to version %5")
            .arg(word, cameraInfo->getModelName(), cameraInfo->getDisplayName(),
                 camera.getData(CFirmwareUpdateEntity::CurrentFirmware).toString(),
                 camera.getSelectedFirmware()));
}

Plugin::CameraPool::DeviceFirmwareUpdatePtr
CUpdateSummaryStep::createUpdate(const Plugin::CameraPool::CameraInfoPtr &cameraInfo,
                                 const UpdateInfos &updates) const
{
    UpdateInfos compatible;
    bool updatable = false;
    try {
        if (!m_deviceUpdateService->getCompatibleFirmwareUpdates(cameraInfo, updates, compatible,
                                                                 updatable)
            || compatible.isEmpty())
            return {};
        return m_deviceUpdateService->createDeviceFirmwareUpdate(cameraInfo, compatible.first());
    } catch (const Core::Exception::BaseException &) {
        // The camera gets the same line as one that no entry fits; the others are still prepared.
        return {};
    }
}

void CUpdateSummaryStep::showCameras(CFirmwareUpdateTreeModel *model, Cameras cameras)
{
    QList<CFirmwareUpdateEntity *> nodes;
    for (std::unique_ptr<CFirmwareUpdateEntity> &camera : cameras)
        nodes.append(camera.release());

    // Disconnected for the rebuild: otherwise each entry would add one more connection.
    const char *const dataChangedSignal
        = SIGNAL(dataChanged(const QModelIndex &, const QModelIndex &, const QVector<int> &));
    const char *const dataChangedSlot
        = SLOT(slotDataChanged(const QModelIndex &, const QModelIndex &, const QVector<int> &));
    disconnect(model, dataChangedSignal, this, dataChangedSlot);
    model->setCameraDeviceList(nodes);
    connect(model, dataChangedSignal, this, dataChangedSlot);
}

} // namespace Plugin::FirmwareUpdater::Internal::State
