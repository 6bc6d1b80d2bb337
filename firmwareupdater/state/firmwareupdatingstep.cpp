#include "firmwareupdatingstep.h"

#include "view/firmwareupdatedialog.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QMutexLocker>

namespace Plugin::FirmwareUpdater::Internal::State {

using Core::Logging::ELogLevel;
using Entity::CFirmwareUpdateEntity;
using Plugin::CameraPool::EFirmwareUpdateStep;

// Logged as it stands; who asks the service for its failure message gets it in the user's language.
static const char *const MISSING_UPDATE_TEXT
    = QT_TRANSLATE_NOOP("Plugin::FirmwareUpdater::Internal::Service::CFirmwareUpdaterService",
                        "Internal error: Firmware update is missing and could not be applied.");

CFirmwareUpdatingStep::CFirmwareUpdatingStep(
    QPointer<Core::Plugin::IPluginInitializer> pluginInitializer, QDialog *dialog, QState *parent)
    : CFirmwareUpdateStepBase(pluginInitializer, dialog, parent)
    , m_thread(this)
{
    m_resetTimer.setTimerType(Qt::PreciseTimer);
    // Measured once a tick, before all connections made later: they tell the same progress.
    connect(&m_resetTimer, &QTimer::timeout, this,
            [this] { m_resetElapsedMs = m_resetElapsed.elapsed(); });

    connect(&m_thread, &CFirmwareUpdateThread::firmwareUpdateDone, this,
            &CFirmwareUpdatingStep::onFirmwareUpdateDone);
    connect(&m_thread, &CFirmwareUpdateThread::firmwareUpdateError, this,
            &CFirmwareUpdatingStep::onFirmwareUpdateError);
    connect(&m_thread, &CFirmwareUpdateThread::firmwareUpdateBegin, this,
            &CFirmwareUpdatingStep::onFirmwareUpdateBegin);
    connect(&m_thread, &CFirmwareUpdateThread::firmwareUpdateProgressStepBegin, this,
            &CFirmwareUpdatingStep::onFirmwareUpdateProgressStepBegin);
    connect(&m_thread, &CFirmwareUpdateThread::firmwareUpdateProgressStepDone, this,
            &CFirmwareUpdatingStep::onFirmwareUpdateProgressStepDone);
    connect(&m_thread, &CFirmwareUpdateThread::firmwareUpdateProgressStepProgressChanged, this,
            &CFirmwareUpdatingStep::onFirmwareUpdateProgressStepProgressChanged);
    connect(&m_thread, &QThread::finished, this, &CFirmwareUpdatingStep::startUpdate);

    if (const auto service = getUpdaterService())
        connect(service.data(), &QObject::destroyed, this, &CFirmwareUpdatingStep::fallSilent);
}

CFirmwareUpdatingStep::~CFirmwareUpdatingStep()
{
    disconnect(&m_thread, nullptr, this, nullptr);
}

void CFirmwareUpdatingStep::onEntry(QEvent *event)
{
    m_stay = EStay::During;
    View::CFirmwareUpdateDialog *const dialog = getUpdateDialog();
    if (!dialog)
        return;

    // enableButtons() shows the dialog, which must not be seen somewhere else first.
    placeDialog();
    dialog->enableButtons(true);
    CFirmwareUpdateStepBase::onEntry(event);

    const ModelPtr model = dialog->getModel();
    m_queue = model ? model->getSelectedCameraList() : QList<EntityPtr>();
    m_cameraCount = m_queue.size();
    dialog->updateOverallProgress(1, m_cameraCount);
    dialog->updateProgress(0, 0);
    m_totalEstimateMs = 0;
    m_firstUpdateStarted = false;
    m_canceled = false;

    onFirmwareUpdateDone();
}

void CFirmwareUpdatingStep::onFirmwareUpdateDone()
{
    resetCameraProgress();

    View::CFirmwareUpdateDialog *const dialog = getUpdateDialog();
    if (!dialog) {
        log(ELogLevel::Critical,
            QStringLiteral("Internal error. Stopping firmware update of cameras"));
        return;
    }
    const ModelPtr model = dialog->getModel();

    if (m_firstUpdateStarted && !m_queue.isEmpty())
        finishFrontCamera(model);
    if (!m_queue.isEmpty())
        prepareNextCamera(model);

    // The end of the worker thread starts every later camera.
    if (!m_firstUpdateStarted) {
        m_firstUpdateStarted = true;
        startUpdate();
    }
}

void CFirmwareUpdatingStep::finishFrontCamera(const ModelPtr &model)
{
    const EntityPtr camera = m_queue.takeFirst();
    setModelValue(model, camera, CFirmwareUpdateEntity::UpdateResult,
                  static_cast<int>(CFirmwareUpdateEntity::EFirmwareUpdateResult::OK));
    setModelValue(model, camera, CFirmwareUpdateEntity::UpdateStatus,
                  static_cast<int>(CFirmwareUpdateEntity::EFirmwareUpdateStatus::Complete));

    const int done = m_cameraCount - m_queue.size();
    updateProgress(done, m_cameraCount);
    log(ELogLevel::Info,
        QStringLiteral("Finished firmware update (%1/%2)").arg(done).arg(m_cameraCount));
}

void CFirmwareUpdatingStep::prepareNextCamera(const ModelPtr &model)
{
    const QMutexLocker locker(&m_mutex);

    if (m_canceled) {
        log(ELogLevel::Info, QStringLiteral("Firmware updates have been canceled by the user"));
        getUpdaterService()->setUpdateFailureMessage(
            tr("Firmware updates have been canceled by the user."));
        // Queue and current job stay: startUpdate() hands the finished job to the thread once more,
        // and the job's refusal to run again ends the series through the error path.
        return;
    }

    const EntityPtr camera = m_queue.constFirst();
    log(ELogLevel::Info,
        QStringLiteral("Starting firmware update (%1/%2) for camera %3")
            .arg(QString::number(getCurrentCameraNumber()), QString::number(m_cameraCount),
                 camera ? camera->getCameraInfo()->getDisplayName() : QString()));
    setModelValue(model, camera, CFirmwareUpdateEntity::UpdateStatus,
                  static_cast<int>(CFirmwareUpdateEntity::EFirmwareUpdateStatus::Updating));
    if (View::CFirmwareUpdateDialog *const dialog = getUpdateDialog())
        dialog->setModel(model);
    m_currentUpdate = camera ? camera->getDeviceFirmwareUpdate() : nullptr;
}

void CFirmwareUpdatingStep::startUpdate()
{
    if (m_queue.isEmpty()) {
        log(ELogLevel::Info, QStringLiteral("Finished all firmware updates"));
        emit firmwareUpdateDone();
        return;
    }

    if (!m_currentUpdate) {
        onFirmwareUpdateError(QLatin1String(MISSING_UPDATE_TEXT));
        emit firmwareUpdateDone();
        return;
    }

    // The canceled flag is not looked at here, see prepareNextCamera().
    if (View::CFirmwareUpdateDialog *const dialog = getUpdateDialog())
        dialog->updateOverallProgress(getCurrentCameraNumber(), m_cameraCount);
    m_thread.setFirmwareUpdate(m_currentUpdate);
    m_thread.start(QThread::InheritPriority);
}

void CFirmwareUpdatingStep::onFirmwareUpdateError(const QString &errorMessage)
{
    log(ELogLevel::Critical, errorMessage);
    getUpdaterService()->setUpdateFailureMessage(errorMessage);
    resetCameraProgress();

    if (m_queue.isEmpty())
        return;

    log(ELogLevel::Critical,
        QStringLiteral("Firmware update (%1/%2) failed.")
            .arg(getCurrentCameraNumber())
            .arg(m_cameraCount));
    const EntityPtr camera = m_queue.takeFirst();
    // An odd condition, kept on purpose: the line stands in the log unless exactly one camera
    // follows, so also after the last camera.
    if (m_cameraCount - m_queue.size() != m_cameraCount - 1)
        log(ELogLevel::Warning, QStringLiteral("Further firmware updates will be skipped"));

    if (View::CFirmwareUpdateDialog *const dialog = getUpdateDialog()) {
        const ModelPtr model = dialog->getModel();
        setModelValue(model, camera, CFirmwareUpdateEntity::UpdateResult,
                      static_cast<int>(CFirmwareUpdateEntity::EFirmwareUpdateResult::Failed));
        setModelValue(model, camera, CFirmwareUpdateEntity::UpdateStatus,
                      static_cast<int>(CFirmwareUpdateEntity::EFirmwareUpdateStatus::Complete));
        dialog->setModel(model);
    }
    m_queue.clear();
}

void CFirmwareUpdatingStep::onUpdatesCanceled()
{
    // The dialog can also be closed by program, on whatever page the wizard is.
    if (m_stay != EStay::During)
        return;
    const QMutexLocker locker(&m_mutex);
    if (m_canceled)
        return;

    m_canceled = true;
    log(ELogLevel::Warning, QStringLiteral("User canceled firmware update"));
    if (View::CFirmwareUpdateDialog *const dialog = getUpdateDialog())
        dialog->enableButtons(false);
}

void CFirmwareUpdatingStep::onFirmwareUpdateBegin(
    QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo> firmwareUpdateInfo,
    unsigned int estimatedDuration)
{
    if (firmwareUpdateInfo) {
        log(ELogLevel::Info, QStringLiteral("Update infos:"));
        log(ELogLevel::Info, QStringLiteral("Filename: %1").arg(firmwareUpdateInfo->getFileName()));
        log(ELogLevel::Info, QStringLiteral("Version: %1").arg(firmwareUpdateInfo->getVersion()));
        log(ELogLevel::Info,
            QStringLiteral("Description: %1").arg(firmwareUpdateInfo->getDescription()));
        log(ELogLevel::Info,
            QStringLiteral("Release Notes: %1").arg(firmwareUpdateInfo->getReleaseNotes()));
    }
    log(ELogLevel::Info,
        QStringLiteral("Update will take approximately %1 msec").arg(estimatedDuration));

    m_totalEstimateMs = static_cast<int>(estimatedDuration);
    updateProgress(0, m_totalEstimateMs);
}

void CFirmwareUpdatingStep::onFirmwareUpdateProgressStepBegin(EFirmwareUpdateStep updateStep,
                                                              unsigned int estimatedUpdateTime,
                                                              const QString &description)
{
    log(ELogLevel::Info,
        QStringLiteral("Entering update step: %1").arg(updateStepToString(updateStep)));
    if (!description.isEmpty())
        log(ELogLevel::Info, QStringLiteral("Update step description: %1").arg(description));
    log(ELogLevel::Info,
        QStringLiteral("Update step will take approximately %1 msec").arg(estimatedUpdateTime));

    m_stepEstimateMs = static_cast<int>(estimatedUpdateTime);
    if (updateStep != EFirmwareUpdateStep::DeviceReset)
        return;

    m_resetElapsed.start();
    // One more connection at each device reset, never removed: from the second reset on, each tick
    // is logged more than once. Kept on purpose, readers of old logs count resets by it.
    connect(&m_resetTimer, &QTimer::timeout, this, &CFirmwareUpdatingStep::onDeviceResetTick,
            Qt::DirectConnection);
    m_resetTimer.start(250);
}

void CFirmwareUpdatingStep::onDeviceResetTick()
{
    if (m_stay == EStay::After)
        return;
    const auto elapsedMs = static_cast<double>(m_resetElapsedMs);
    const double percent = m_stepEstimateMs > 0 ? elapsedMs / m_stepEstimateMs * 100.0 : 0.0;
    onFirmwareUpdateProgressStepProgressChanged(EFirmwareUpdateStep::DeviceReset,
                                                static_cast<int>(percent));
}

void CFirmwareUpdatingStep::onFirmwareUpdateProgressStepProgressChanged(
    EFirmwareUpdateStep updateStep, double progressPercentDone)
{
    log(ELogLevel::Info,
        QStringLiteral("%1 progress: %2%")
            .arg(updateStepToString(updateStep), QString::number(progressPercentDone, 'f', 0)));
    updateProgress(
        static_cast<int>(progressPercentDone / 100.0 * m_stepEstimateMs + m_completedStepsMs),
        m_totalEstimateMs);
}

void CFirmwareUpdatingStep::onFirmwareUpdateProgressStepDone(EFirmwareUpdateStep updateStep,
                                                             unsigned int estimatedUpdateTime)
{
    log(ELogLevel::Info,
        QStringLiteral("Finished update step: %1").arg(updateStepToString(updateStep)));
    log(ELogLevel::Info,
        QStringLiteral("Update remaining time approximately %1 msec").arg(estimatedUpdateTime));

    if (updateStep == EFirmwareUpdateStep::DeviceReset)
        m_resetTimer.stop();
    m_completedStepsMs += static_cast<int>(estimatedUpdateTime);
    updateProgress(m_completedStepsMs, m_totalEstimateMs);
}

void CFirmwareUpdatingStep::onExit(QEvent *event)
{
    // More than once, because the end of one camera can start the next while this waits.
    while (m_thread.isRunning()) {
        QEventLoop loop;
        connect(&m_thread, &QThread::finished, &loop, &QEventLoop::quit);
        if (m_thread.isRunning())
            loop.exec();
    }

    // A job may have ended in the middle of its camera's reset.
    m_resetTimer.stop();
    m_stay = EStay::After;
    m_currentUpdate.reset();
    m_queue.clear();
    CFirmwareUpdateStepBase::onExit(event);
}

void CFirmwareUpdatingStep::fallSilent()
{
    m_stay = EStay::After;
    m_resetTimer.stop();
    disconnect(&m_thread, nullptr, this, nullptr);
    // The end of the thread, which it posts itself.
    QCoreApplication::removePostedEvents(this);
}

QString CFirmwareUpdatingStep::updateStepToString(EFirmwareUpdateStep updateStep)
{
    switch (updateStep) {
    case EFirmwareUpdateStep::CheckPreconditions:
        return QStringLiteral("CheckPreconditions");
    case EFirmwareUpdateStep::AcquireUpdateData:
        return QStringLiteral("AcquireUpdateData");
    case EFirmwareUpdateStep::FeatureWrite:
        return QStringLiteral("FeatureWrite");
    case EFirmwareUpdateStep::FeatureExecute:
        return QStringLiteral("FeatureExecute");
    case EFirmwareUpdateStep::FeatureAssert:
        return QStringLiteral("FeatureAssert");
    case EFirmwareUpdateStep::FileUpload:
        return QStringLiteral("FileUpload");
    case EFirmwareUpdateStep::DeviceReset:
        return QStringLiteral("DeviceReset");
    case EFirmwareUpdateStep::Invalid:
        return QStringLiteral("Invalid");
    }
    return {};
}

void CFirmwareUpdatingStep::resetCameraProgress()
{
    m_completedStepsMs = 0;
    m_totalEstimateMs = 0;
    m_resetTimer.stop();
}

void CFirmwareUpdatingStep::setModelValue(const ModelPtr &model, const EntityPtr &camera,
                                          CFirmwareUpdateEntity::ECameraUpdateModelRole column,
                                          int value)
{
    if (!model || !camera)
        return;
    const Plugin::CameraPool::CameraInfoPtr info = camera->getCameraInfo();
    model->setData(
        model->getModelIndexForCameraId(info->getTransportLayerId(), info->getId(), column), value,
        Qt::EditRole);
}

int CFirmwareUpdatingStep::getCurrentCameraNumber() const
{
    return m_cameraCount - m_queue.size() + 1;
}

void CFirmwareUpdatingStep::log(ELogLevel level, const QString &message) const
{
    getUpdaterService()->addTemporaryLogMessage(level, message);
}

void CFirmwareUpdatingStep::updateProgress(int value, int maximum) const
{
    if (View::CFirmwareUpdateDialog *const dialog = getUpdateDialog())
        dialog->updateProgress(value, maximum);
}

View::CFirmwareUpdateDialog *CFirmwareUpdatingStep::getUpdateDialog() const
{
    return getDialogAs<View::CFirmwareUpdateDialog>();
}

} // namespace Plugin::FirmwareUpdater::Internal::State
