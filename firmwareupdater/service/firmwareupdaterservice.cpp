#include "firmwareupdaterservice.h"

#include "model/firmwareupdatetreemodel.h"
#include "state/cameraselectionstep.h"
#include "state/firmwareupdatedonestep.h"
#include "state/firmwareupdatingstep.h"
#include "state/resultsummarystep.h"
#include "state/updateselectionstep.h"
#include "state/updatesummarystep.h"
#include "style/icons.h"
#include "view/accessibletreeview.h"
#include "view/cameraselectiondialog.h"
#include "view/firmwareupdatedialog.h"
#include "view/inputmonitor.h"
#include "view/resultsummarydialog.h"
#include "view/updateselectiondialog.h"
#include "view/updatesummarydialog.h"

#include "appcore/iwindowservice.h"
#include "camerapool/icameraenumerationservice.h"
#include "camerapool/icamerastatusservice.h"
#include "camerapool/icamerastreamcontrolservice.h"
#include "camerapool/idevicefirmwareupdateservice.h"
#include "core/baseexception.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QMessageBox>
#include <QSignalTransition>

namespace Plugin::FirmwareUpdater::Internal::Service {

using Core::Logging::ELogLevel;
using Entity::CFirmwareUpdateEntity;
using Model::CFirmwareUpdateTreeModel;
using Plugin::CameraPool::ICameraEnumerationService;
using Plugin::CameraPool::ICameraInfo;
using Plugin::CameraPool::ICameraStatusService;
using Plugin::CameraPool::IFirmwareUpdateInfo;
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
    , m_stateMachine(new QStateMachine)
    , m_initializer(initializer)
    , m_cameraSelectionModel(new CFirmwareUpdateTreeModel(nullptr))
    , m_cameraUpdateModel(new CFirmwareUpdateTreeModel(nullptr))
{
}

CFirmwareUpdaterService::~CFirmwareUpdaterService()
{
    // The state machine is left alive on purpose: its steps share this service, which the plug-in
    // owns as its child, and their release of it would delete it a second time. None of them may be
    // entered or left any more.
    if (m_stateMachine) {
        QCoreApplication::removePostedEvents(m_stateMachine);
        m_stateMachine->stop();
    }
    // Nobody is left to close a modal page.
    for (QDialog *const dialog : std::initializer_list<QDialog *>{
             m_cameraSelectionDialog, m_updateSelectionDialog, m_updateSummaryDialog,
             m_firmwareUpdateDialog, m_resultSummaryDialog}) {
        if (dialog)
            dialog->hide();
    }
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
    QWidget *const parent = windowService ? windowService->getMainWindow() : nullptr;

    if (!m_cameraSelectionDialog) {
        m_cameraSelectionDialog = new View::CCameraSelectionDialog(parent);
        m_cameraSelectionDialog->setModel(m_cameraSelectionModel);
        connect(m_cameraSelectionDialog, &View::CCameraSelectionDialog::refreshCamTreeClicked, this,
                &CFirmwareUpdaterService::onRefreshCameraTreeClicked);
    }
    if (!m_updateSelectionDialog) {
        m_updateSelectionDialog = new View::CUpdateSelectionDialog(parent);
        m_updateSelectionDialog->setModel(m_cameraSelectionModel);
        connect(m_updateSelectionDialog, &View::CUpdateSelectionDialog::browseClicked, this,
                &CFirmwareUpdaterService::onBrowseClicked);
        connect(m_updateSelectionDialog, &View::CUpdateSelectionDialog::pathChanged, this,
                &CFirmwareUpdaterService::onPathChanged);
    }
    if (!m_updateSummaryDialog) {
        m_updateSummaryDialog = new View::CUpdateSummaryDialog(parent);
        m_updateSummaryDialog->setModel(m_cameraUpdateModel);
    }
    if (!m_firmwareUpdateDialog) {
        m_firmwareUpdateDialog = new View::CFirmwareUpdateDialog(parent);
        m_firmwareUpdateDialog->setModel(m_cameraUpdateModel);
    }
    if (!m_resultSummaryDialog) {
        m_resultSummaryDialog = new View::CResultSummaryDialog(parent);
        m_resultSummaryDialog->setModel(m_cameraUpdateModel);
    }
}

/// Leads from @p from to @p to when @p dialog emits @p signal. The machine disconnects from a
/// dialog when it leaves the step, so the transition must not remember one that is gone.
template <typename TDialog, typename TSignal>
static void addTransition(QState *from, const QPointer<TDialog> &dialog, TSignal signal,
                          QAbstractState *to)
{
    QSignalTransition *const transition = from->addTransition(dialog.data(), signal, to);
    QObject::connect(dialog, &QObject::destroyed, transition,
                     [transition] { transition->setSenderObject(nullptr); });
}

void CFirmwareUpdaterService::initializeStateMachine()
{
    auto *const done = new State::CFirmwareUpdateDoneStep(m_initializer, nullptr);
    done->setCameraUpdateModel(m_cameraUpdateModel);
    auto *const cameraSelection
        = new State::CCameraSelectionStep(m_initializer, m_cameraSelectionDialog, nullptr);
    cameraSelection->setCameraSelectionModel(m_cameraSelectionModel);
    auto *const updateSelection
        = new State::CUpdateSelectionStep(m_initializer, m_updateSelectionDialog, nullptr);
    updateSelection->setCameraUpdateModel(m_cameraUpdateModel);
    auto *const updateSummary
        = new State::CUpdateSummaryStep(m_initializer, m_updateSummaryDialog, nullptr);
    updateSummary->setCameraSelectionModel(m_cameraSelectionModel);
    auto *const updating
        = new State::CFirmwareUpdatingStep(m_initializer, m_firmwareUpdateDialog, nullptr);
    auto *const resultSummary
        = new State::CResultSummaryStep(m_initializer, m_resultSummaryDialog, nullptr);
    resultSummary->setCameraUpdateModel(m_cameraUpdateModel);

    using View::CUpdateDialogBase;
    addTransition(cameraSelection, m_cameraSelectionDialog,
                  &View::CCameraSelectionDialog::nextClicked, updateSelection);
    addTransition(cameraSelection, m_cameraSelectionDialog, &CUpdateDialogBase::closeClicked, done);

    addTransition(updateSelection, m_updateSelectionDialog,
                  &View::CUpdateSelectionDialog::backClicked, cameraSelection);
    addTransition(updateSelection, m_updateSelectionDialog,
                  &View::CUpdateSelectionDialog::nextClicked, updateSummary);
    addTransition(updateSelection, m_updateSelectionDialog, &CUpdateDialogBase::closeClicked, done);

    addTransition(updateSummary, m_updateSummaryDialog, &View::CUpdateSummaryDialog::backClicked,
                  updateSelection);
    addTransition(updateSummary, m_updateSummaryDialog, &View::CUpdateSummaryDialog::nextClicked,
                  updating);
    addTransition(updateSummary, m_updateSummaryDialog, &CUpdateDialogBase::closeClicked, done);

    updating->addTransition(updating, &State::CFirmwareUpdatingStep::firmwareUpdateDone,
                            resultSummary);
    // Closing the page while cameras are updated is a wish that the step weighs, no way out of it.
    connect(m_firmwareUpdateDialog, SIGNAL(closeClicked()), updating, SLOT(onUpdatesCanceled()));

    addTransition(resultSummary, m_resultSummaryDialog, &View::CResultSummaryDialog::nextClicked,
                  cameraSelection);
    addTransition(resultSummary, m_resultSummaryDialog, &CUpdateDialogBase::closeClicked, done);

    m_stateMachine->addState(done);
    m_stateMachine->addState(cameraSelection);
    m_stateMachine->addState(updateSelection);
    m_stateMachine->addState(updateSummary);
    m_stateMachine->addState(updating);
    m_stateMachine->addState(resultSummary);
    m_stateMachine->setInitialState(cameraSelection);
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
    if (!m_cameraSelectionDialog)
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
    m_stateMachine->start();
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
    if (m_cameraSelectionDialog)
        m_cameraSelectionDialog->setModel(m_cameraSelectionModel);
}

void CFirmwareUpdaterService::onRefreshCameraTreeClicked()
{
    if (const auto enumeration = m_initializer->getService<ICameraEnumerationService>())
        enumeration->refreshEnumeration();
}

void CFirmwareUpdaterService::onEnumerationChanged()
{
    if (!m_stateMachine || !m_stateMachine->isRunning())
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
    m_updateSelectionDialog->updateFileSelection(QDir::toNativeSeparators(shownPath));
    m_selectedUpdatePath = QDir::toNativeSeparators(fileInfo.absoluteFilePath());
    checkCompatibility(fileInfo);
}

void CFirmwareUpdaterService::checkCompatibility(const QFileInfo &fileInfo)
{
    const auto show = [this](bool compatible, bool noFile,
                             const QVector<QSharedPointer<IFirmwareUpdateInfo>> &infos) {
        m_updateSelectionDialog->updateCompatibility(compatible, noFile);
        m_updateSelectionDialog->updateFirmwareUpdateInfo(infos, noFile);
    };

    if (!fileInfo.exists() || !fileInfo.isReadable() || !fileInfo.isFile()) {
        show(false, true, {});
        return;
    }

    const auto updateService
        = m_initializer->getService<Plugin::CameraPool::IDeviceFirmwareUpdateService>();
    if (!updateService) {
        show(false, false, {});
        return;
    }

    try {
        const QVector<QSharedPointer<IFirmwareUpdateInfo>> all
            = updateService->getFirmwareUpdateInfos(fileInfo.absoluteFilePath(), QString());
        // One file serves one model, so the first ticked camera speaks for all of them.
        const QPointer<CFirmwareUpdateEntity> camera
            = m_cameraSelectionModel->getSelectedCameraList().value(0);
        if (!camera) {
            show(false, false, {});
            return;
        }

        QVector<QSharedPointer<IFirmwareUpdateInfo>> compatible;
        bool updatable = false;
        const bool checked = updateService->getCompatibleFirmwareUpdates(
            camera->getCameraInfo(), all, compatible, updatable);
        show(checked && !compatible.isEmpty(), false, compatible);
    } catch (const Core::Exception::BaseException &exception) {
        addTemporaryLogMessage(ELogLevel::Critical,
                               QStringLiteral("Failed to check for compatible update: %1")
                                   .arg(exception.getMessage()));
        show(false, false, {});
    }
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
