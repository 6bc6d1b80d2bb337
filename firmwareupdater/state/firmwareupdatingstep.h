#pragma once

#include "firmwareupdatestepbase.h"
#include "firmwareupdatethread.h"
#include "model/firmwareupdatetreemodel.h"

#include <QElapsedTimer>
#include <QList>
#include <QMutex>
#include <QTimer>

namespace Plugin::FirmwareUpdater::Internal::View {
class CFirmwareUpdateDialog;
} // namespace Plugin::FirmwareUpdater::Internal::View

namespace Plugin::FirmwareUpdater::Internal::State {

/// Step 4: updates the ticked cameras one after another on a worker thread, logs what happens,
/// stops the series after the first failure and, on the user's wish, after the current camera.
///
/// All slots run in the GUI thread. The chain of cameras is driven by the worker thread: the job's
/// end prepares the next camera (onFirmwareUpdateDone()), the thread's end starts it
/// (startUpdate()).
class CFirmwareUpdatingStep : public CFirmwareUpdateStepBase
{
    Q_OBJECT

public:
    CFirmwareUpdatingStep(QPointer<Core::Plugin::IPluginInitializer> pluginInitializer,
                          QDialog *dialog, QState *parent);

    /// Does not wait for the worker thread: onExit() does.
    ~CFirmwareUpdatingStep() override;

    void onEntry(QEvent *event) override;

    /// Returns when no camera is being updated any more; events are processed meanwhile.
    void onExit(QEvent *event) override;

    /// The word for a kind of step in the log; empty for an unknown one.
    [[nodiscard]] static QString
    updateStepToString(Plugin::CameraPool::EFirmwareUpdateStep updateStep);

signals:
    /// All updates have ended, whatever their results.
    void firmwareUpdateDone();

public slots:
    /// The user wants no further camera to be updated. The current one is not interrupted.
    void onUpdatesCanceled();

    void onFirmwareUpdateDone();
    void startUpdate();
    void onFirmwareUpdateError(const QString &errorMessage);
    void onFirmwareUpdateBegin(
        QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo> firmwareUpdateInfo,
        unsigned int estimatedDuration);
    void onFirmwareUpdateProgressStepBegin(Plugin::CameraPool::EFirmwareUpdateStep updateStep,
                                           unsigned int estimatedUpdateTime,
                                           const QString &description);
    void onFirmwareUpdateProgressStepDone(Plugin::CameraPool::EFirmwareUpdateStep updateStep,
                                          unsigned int estimatedUpdateTime);
    void
    onFirmwareUpdateProgressStepProgressChanged(Plugin::CameraPool::EFirmwareUpdateStep updateStep,
                                                double progressPercentDone);

private:
    /// Where the wizard's machine is, seen from this step.
    enum class EStay { Before, During, After };

    using EntityPtr = QPointer<Entity::CFirmwareUpdateEntity>;
    using ModelPtr = QSharedPointer<Model::CFirmwareUpdateTreeModel>;

    void finishFrontCamera(const ModelPtr &model);
    void prepareNextCamera(const ModelPtr &model);
    void resetCameraProgress();
    void onDeviceResetTick();

    /// The service to tell everything is dying, maybe in the middle of a camera. The worker thread
    /// goes on to the end of its job, and nobody hears of it.
    void fallSilent();

    /// Writes status or result of @p camera, which may have died; @p model may be null.
    static void setModelValue(const ModelPtr &model, const EntityPtr &camera,
                              Entity::CFirmwareUpdateEntity::ECameraUpdateModelRole column,
                              int value);
    /// Number of the camera at the front of the queue, counted from 1.
    [[nodiscard]] int getCurrentCameraNumber() const;
    void log(Core::Logging::ELogLevel level, const QString &message) const;
    void updateProgress(int value, int maximum) const;
    [[nodiscard]] View::CFirmwareUpdateDialog *getUpdateDialog() const;

    CFirmwareUpdateThread m_thread;
    Plugin::CameraPool::DeviceFirmwareUpdatePtr m_currentUpdate;
    int m_cameraCount = 0;
    int m_totalEstimateMs = 0; ///< of the current camera

    /// Cameras still to be updated; the current one stays at the front until its update has ended.
    QList<EntityPtr> m_queue;
    EStay m_stay = EStay::Before;
    bool m_firstUpdateStarted = false;
    bool m_canceled = false;

    /// Guards the canceled flag while it is decided about the next camera.
    QMutex m_mutex;
    int m_stepEstimateMs = 0; ///< of the current update step
    int m_completedStepsMs = 0; ///< sum of the estimates of the camera's finished update steps

    // A camera in reset reports nothing: its progress is animated from the estimate.
    QTimer m_resetTimer;
    QElapsedTimer m_resetElapsed;
    qint64 m_resetElapsedMs = 0; ///< at the current tick
};

} // namespace Plugin::FirmwareUpdater::Internal::State
