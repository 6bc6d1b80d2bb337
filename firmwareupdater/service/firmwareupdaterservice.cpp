#include "firmwareupdaterservice.h"

#include "updatefilecheck.h"

#include "model/firmwareupdatetreemodel.h"
#include "style/icons.h"
#include "view/accessible/accessibletreeview.h"
#include "view/cameraselectiondialog.h"
#include "view/inputmonitor.h"
#include "view/updateselectiondialog.h"

#include "appcore/iwindowservice.h"
#include "camerapool/icameraenumerationservice.h"
#include "camerapool/icamerastatusservice.h"
#include "camerapool/icamerastreamcontrolservice.h"
#include "camerapool/idevicefirmwareupdateservice.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QMessageBox>

namespace Plugin::FirmwareUpdater::Internal::Service {

using Core::Logging::ELogLevel;
using Entity::CFirmwareUpdateEntity;
using Model::CFirmwareUpdateTreeModel;
using Plugin::CameraPool::ICameraEnumerationService;
using Plugin::CameraPool::ICameraInfo;
using Plugin::CameraPool::ICameraStatusService;
using Plugin::CameraPool::IDeviceFirmwareUpdateService;
using Plugin::CameraPool::ITransportLayerInfo;

const QHash<int, const char *> CFirmwareUpdaterService::LOGLEVEL_TO_I18N_KEYS_MAP = {
    {static_cast<int>(ELogLevel::Debug), QT_TR_NOOP("DEBUG")},
    {static_cast<int>(ELogLevel::Info), QT_TR_NOOP("INFO")},
    {static_cast<int>(ELogLevel::Warning), QT_TR_NOOP("WARNING")},
    {static_cast<int>(ELogLevel::Critical), QT_TR_NOOP("CRITICAL")},
};

CFirmwareUpdaterService::CFirmwareUpdaterService(
    QPointer<Core::Plugin::IPluginInitializer> initializer, QObject *parent)
    : IFirmwareUpdaterService(parent)
    , m_initializer(initializer)
    , m_cameraSelectionModel(new CFirmwareUpdateTreeModel(nullptr))
    , m_wizard(initializer, m_cameraSelectionModel,
               QSharedPointer<CFirmwareUpdateTreeModel>(new CFirmwareUpdateTreeModel(nullptr)))
{
}

CFirmwareUpdaterService::~CFirmwareUpdaterService()
{
    // The pages may live on, but nothing of them stays installed in the application.
    View::CInputMonitor::remove();
    View::CAccessibleTreeView::removeFactory();
}

bool CFirmwareUpdaterService::postInitialize()
{
    initializeDialogs();
    initializeStateMachine();
    return true;
}

void CFirmwareUpdaterService::initializeDialogs()
{
    const auto windowService = m_initializer->getService<Plugin::AppCore::IWindowService>();
    m_wizard.createPages(windowService ? windowService->getMainWindow() : nullptr);

    connect(m_wizard.getCameraSelectionPage(), &View::CCameraSelectionDialog::refreshCamTreeClicked,
            this, &CFirmwareUpdaterService::onRefreshCameraTreeClicked, Qt::UniqueConnection);
    connect(m_wizard.getUpdateSelectionPage(), &View::CUpdateSelectionDialog::browseClicked, this,
            &CFirmwareUpdaterService::onBrowseClicked, Qt::UniqueConnection);
    connect(m_wizard.getUpdateSelectionPage(), &View::CUpdateSelectionDialog::pathChanged, this,
            &CFirmwareUpdaterService::onPathChanged, Qt::UniqueConnection);
}

void CFirmwareUpdaterService::initializeStateMachine()
{
    m_wizard.createSteps();
}

static QVector<QSharedPointer<ITransportLayerInfo>>
getTransportLayers(const QSharedPointer<ICameraEnumerationService> &enumeration)
{
    return enumeration ? enumeration->getTransportLayerInfoVector()
                       : QVector<QSharedPointer<ITransportLayerInfo>>();
}

static int countBusyCameras(const QSharedPointer<ICameraStatusService> &status,
                            const QVector<QSharedPointer<ITransportLayerInfo>> &layers)
{
    if (!status)
        return 0;
    int count = 0;
    for (const QSharedPointer<ITransportLayerInfo> &layer : layers) {
        for (const QSharedPointer<ICameraInfo> &camera : layer->getCameraInfoList())
            count += status->isCameraBusy(camera) ? 1 : 0;
    }
    return count;
}

void CFirmwareUpdaterService::startFirmwareUpdater()
{
    const auto status = m_initializer->getService<ICameraStatusService>();
    const auto enumeration = m_initializer->getService<ICameraEnumerationService>();
    const auto streamControl
        = m_initializer->getService<Plugin::CameraPool::ICameraStreamControlService>();

    // Without a menu service in the host nothing of the wizard has been built, and with the host's
    // window it goes.
    if (!m_wizard.getCameraSelectionPage())
        return;

    const TransportLayers layers = getTransportLayers(enumeration);
    if (countBusyCameras(status, layers) != 0) {
        if (!askToStopAllCameras())
            return;
        if (streamControl)
            streamControl->stopAllCameras();
    }

    loadCameraTree(layers);
    openTemporaryLogFile();
    m_wizard.start();
}

bool CFirmwareUpdaterService::askToStopAllCameras() const
{
    QMessageBox box(QApplication::activeWindow());
    // Misspelt on purpose: users and their scripts know the windows by this title.
    box.setWindowTitle(tr("Fimware Updater"));
    box.setText(tr("<p>To use the Firmware Updater, you have to stop continuous image acquisition "
                   "as well as any recordings.</p>Do you want to stop all cameras and start using "
                   "the Firmware Updater?"));
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setWindowFlag(Qt::WindowMinMaxButtonsHint);
    // After the flag, which takes the focus away: Enter clicks the button that has it.
    box.setDefaultButton(QMessageBox::No);
    box.setIconPixmap(Style::getIconPixmap(QStringLiteral("help_icon_32x32_en")));

    // A message box takes its width from its text alone; a row of fixed width widens it.
    if (auto *const grid = qobject_cast<QGridLayout *>(box.layout())) {
        auto *const widener = new QWidget(&box);
        widener->setFixedSize(570, 1);
        widener->setAutoFillBackground(true);
        grid->addWidget(widener, 0, 0, 1, grid->columnCount());
    }
    return box.exec() == QMessageBox::Yes;
}

void CFirmwareUpdaterService::loadCameraTree(const TransportLayers &layers)
{
    m_cameraSelectionModel->setTransportLayerInfoVector(layers);
    if (m_selectedCamera) {
        const QModelIndex index = m_cameraSelectionModel->getModelIndexForCameraId(
            m_selectedCamera->getTransportLayerId(), m_selectedCamera->getId(),
            CFirmwareUpdateEntity::SelectionStatus);
        m_cameraSelectionModel->setData(index, true, Qt::EditRole);
        m_cameraSelectionModel->updateAllNodesBySelection(index);
    }
    if (View::CCameraSelectionDialog *const page = m_wizard.getCameraSelectionPage())
        page->setModel(m_cameraSelectionModel);
}

void CFirmwareUpdaterService::onRefreshCameraTreeClicked()
{
    if (const auto enumeration = m_initializer->getService<ICameraEnumerationService>())
        enumeration->refreshEnumeration();
}

void CFirmwareUpdaterService::onEnumerationChanged()
{
    if (!m_wizard.isRunning())
        return;
    loadCameraTree(getTransportLayers(m_initializer->getService<ICameraEnumerationService>()));
}

void CFirmwareUpdaterService::onBrowseClicked()
{
    QFileDialog dialog(QApplication::activeWindow(), QString(), QString(), QString());
    // Misspelt on purpose, like the title of the question about busy cameras.
    dialog.setWindowTitle(tr("Fimware Updater"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilter(tr("Update files") + QStringLiteral(" (*.guf)"));
    dialog.setModal(true);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return;

    const QFileInfo fileInfo(dialog.selectedFiles().constFirst());
    selectUpdateFile(fileInfo.filePath(), fileInfo);
}

void CFirmwareUpdaterService::onPathChanged(QString filePath)
{
    selectUpdateFile(filePath, QFileInfo(filePath));
}

void CFirmwareUpdaterService::selectUpdateFile(const QString &shownPath, const QFileInfo &fileInfo)
{
    m_wizard.getUpdateSelectionPage()->updateFileSelection(QDir::toNativeSeparators(shownPath));
    m_selectedUpdatePath = QDir::toNativeSeparators(fileInfo.absoluteFilePath());
    checkCompatibility(fileInfo);
}

void CFirmwareUpdaterService::checkCompatibility(const QFileInfo &fileInfo)
{
    // One file serves one model, so the first ticked camera speaks for all of them.
    const QPointer<CFirmwareUpdateEntity> camera
        = m_cameraSelectionModel->getSelectedCameraList().value(0);
    const CUpdateFileVerdict verdict
        = checkUpdateFile(fileInfo, camera ? camera->getCameraInfo() : nullptr,
                          m_initializer->getService<IDeviceFirmwareUpdateService>());
    if (verdict.fault)
        addTemporaryLogMessage(
            ELogLevel::Critical,
            QStringLiteral("Failed to check for compatible update: %1").arg(*verdict.fault));

    View::CUpdateSelectionDialog *const page = m_wizard.getUpdateSelectionPage();
    page->updateCompatibility(verdict.isCompatible, !verdict.isFile);
    page->updateFirmwareUpdateInfo(verdict.updates, !verdict.isFile);
}

QString CFirmwareUpdaterService::getKorvaneSupportUrl() const
{
    return tr("https://support.korvane.example/en/");
}

QSharedPointer<ICameraInfo> CFirmwareUpdaterService::getSelectedCamera() const
{
    return m_selectedCamera;
}

void CFirmwareUpdaterService::setSelectedCamera(QSharedPointer<ICameraInfo> camera)
{
    m_selectedCamera = camera;
}

bool CFirmwareUpdaterService::isCompatibleCamera(QSharedPointer<ICameraInfo> camera)
{
    return camera && camera->getCameraStatusCode() == 0;
}

QString CFirmwareUpdaterService::getSelectedUpdatePath() const
{
    return m_selectedUpdatePath;
}

void CFirmwareUpdaterService::openTemporaryLogFile()
{
    closeTemporaryLogFile();
    m_temporaryLog.open();
}

QString CFirmwareUpdaterService::addTemporaryLogMessage(const ELogLevel &level,
                                                        const QString &message)
{
    if (message.isEmpty())
        return message;
    if (!m_temporaryLog.isHeld())
        openTemporaryLogFile();

    const char *const key = LOGLEVEL_TO_I18N_KEYS_MAP.value(
        static_cast<int>(level), LOGLEVEL_TO_I18N_KEYS_MAP[static_cast<int>(ELogLevel::Info)]);
    m_temporaryLog.addLine(tr(key), message);
    return message;
}

void CFirmwareUpdaterService::closeTemporaryLogFile()
{
    if (!m_temporaryLog.isHeld())
        return;

    m_updateFailureMessage.clear();
    m_temporaryLog.close();
}

QString CFirmwareUpdaterService::getCurrentTemporaryLogFilePath() const
{
    return m_temporaryLog.getFilePath();
}

QString CFirmwareUpdaterService::getUpdateFailureMessage() const
{
    return tr(m_updateFailureMessage.toUtf8().constData());
}

void CFirmwareUpdaterService::setUpdateFailureMessage(const QString &message)
{
    m_updateFailureMessage = message;
}

void CFirmwareUpdaterService::setDialogPos(const QPoint &pos)
{
    m_dialogPos = pos;
}

QPoint CFirmwareUpdaterService::getDialogPos() const
{
    return m_dialogPos;
}

void CFirmwareUpdaterService::setDialogSize(const QSize &size)
{
    m_dialogSize = size;
}

QSize CFirmwareUpdaterService::getDialogSize() const
{
    return m_dialogSize;
}

void CFirmwareUpdaterService::setDialogWindowState(const Qt::WindowStates &state)
{
    m_dialogWindowState = state;
}

Qt::WindowStates CFirmwareUpdaterService::getDialogWindowState() const
{
    return m_dialogWindowState;
}

} // namespace Plugin::FirmwareUpdater::Internal::Service
