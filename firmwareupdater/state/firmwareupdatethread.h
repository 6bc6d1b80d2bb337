#pragma once

#include "camerapool/idevicefirmwareupdate.h"

#include <QSharedPointer>
#include <QThread>

namespace Plugin::FirmwareUpdater::Internal::State {

/// Runs the update job of one camera off the GUI thread and forwards the job's signals, which
/// listeners in the GUI thread get queued and in order, all of them before finished(). The thread
/// lives in the GUI thread and is used for one camera after another: setFirmwareUpdate(), start().
class CFirmwareUpdateThread : public QThread
{
    Q_OBJECT

public:
    explicit CFirmwareUpdateThread(QObject *parent);

    /// Neither stops nor awaits a running job: the owner waits for finished() first.
    ~CFirmwareUpdateThread() override;

    /// Sets the job of the next run, not null, and moves it to this thread. Does nothing while the
    /// thread is running. After the run the job lives in the application's thread again.
    void setFirmwareUpdate(
        const QSharedPointer<Plugin::CameraPool::IDeviceFirmwareUpdate> &firmwareUpdate);

signals:
    void
    firmwareUpdateBegin(QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo> firmwareUpdateInfo,
                        unsigned int estimatedDuration);
    void firmwareUpdateProgressStepBegin(Plugin::CameraPool::EFirmwareUpdateStep updateStep,
                                         unsigned int estimatedUpdateTime,
                                         const QString &description);
    void
    firmwareUpdateProgressStepProgressChanged(Plugin::CameraPool::EFirmwareUpdateStep updateStep,
                                              double progressPercentDone);
    void firmwareUpdateProgressStepDone(Plugin::CameraPool::EFirmwareUpdateStep updateStep,
                                        unsigned int estimatedUpdateTime);
    void firmwareUpdateDone();

    /// The job failed, or threw.
    void firmwareUpdateError(const QString &errorMessage);

protected:
    void run() override;

private:
    /// Needs no lock: the GUI thread leaves it alone while the thread is running.
    QSharedPointer<Plugin::CameraPool::IDeviceFirmwareUpdate> m_firmwareUpdate;
};

} // namespace Plugin::FirmwareUpdater::Internal::State
