#pragma once

#include "efirmwareupdatedirection.h"
#include "efirmwareupdatestep.h"
#include "hostapi_global.h"
#include "ifirmwareupdateinfo.h"

#include <QObject>
#include <QSharedPointer>
#include <QString>

namespace Plugin::CameraPool {

/// The update job of one camera. It has no parent object, so that it can be moved to the thread
/// that executes it; its last reference may be released on any thread, executed or not.
class HOSTAPI_EXPORT IDeviceFirmwareUpdate : public QObject
{
    Q_OBJECT

public:
    explicit IDeviceFirmwareUpdate(QObject *parent = nullptr);
    ~IDeviceFirmwareUpdate() override;

    /// The entry being installed; never null. Any thread.
    [[nodiscard]] virtual QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>
    getFirmwareUpdateInfo() const = 0;

    /// Upgrade, downgrade or reinstall. Any thread.
    [[nodiscard]] virtual Plugin::CameraPool::EFirmwareUpdateDirection
    getFirmwareUpdateDirection() const = 0;

    /// The version from before the update until the job has ended, the one the camera reports from
    /// then on. Any thread, also while the job runs.
    [[nodiscard]] virtual QString getFirmwareVersion() const = 0;

    /// Runs the whole update on the calling thread and returns when it has ended. All signals are
    /// emitted from that thread: firmwareUpdateBegin(), then each step's begin, progress and done,
    /// then exactly one of firmwareUpdateDone() and firmwareUpdateError(). Does not throw.
    ///
    /// Executed a second time, the job does not touch the camera: it emits firmwareUpdateError()
    /// alone. That is what ends a series the user has cancelled.
    virtual void executeFirmwareUpdate() = 0;

signals:
    /// The update starts and will take about @p estimatedDuration milliseconds, the sum of the
    /// steps' estimates.
    void
    firmwareUpdateBegin(QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo> firmwareUpdateInfo,
                        unsigned int estimatedDuration);

    /// A step starts and will take about @p estimatedUpdateTime milliseconds (at least 1).
    /// @p description may be empty.
    void firmwareUpdateProgressStepBegin(Plugin::CameraPool::EFirmwareUpdateStep updateStep,
                                         unsigned int estimatedUpdateTime,
                                         const QString &description);

    /// Progress within the step, 0 to 100 percent; at most once a percent and once in 100 ms, and
    /// never for a device reset, whose progress is only a matter of time.
    void
    firmwareUpdateProgressStepProgressChanged(Plugin::CameraPool::EFirmwareUpdateStep updateStep,
                                              double progressPercentDone);

    /// A step has ended; @p estimatedUpdateTime is the same estimate that its begin carried.
    void firmwareUpdateProgressStepDone(Plugin::CameraPool::EFirmwareUpdateStep updateStep,
                                        unsigned int estimatedUpdateTime);

    /// The update failed: one line of English text, not empty, without a final full stop, that says
    /// what failed on which camera.
    void firmwareUpdateError(const QString &errorMessage);

    /// The camera is back and reports the version of the entry.
    void firmwareUpdateDone();
};

using DeviceFirmwareUpdatePtr = QSharedPointer<Plugin::CameraPool::IDeviceFirmwareUpdate>;

} // namespace Plugin::CameraPool
