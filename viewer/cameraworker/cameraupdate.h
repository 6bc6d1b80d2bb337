#pragma once

#include "messagewriter.h"
#include "sleepinhibitor.h"
#include "watchdog.h"

#include "viewer/camera/icamerakind.h"
#include "viewer/text/errortext.h"
#include "viewer/update/iupdaterun.h"
#include "viewer/update/workerevent.h"
#include "viewer/update/workertask.h"

#include <QCoreApplication>

#include <atomic>
#include <csignal>
#include <memory>

namespace Viewer::CameraWorker {

/// One update of one camera, told in events.
class CCameraUpdate : private Update::IUpdateRun::IListener
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::CameraWorker::CCameraUpdate)

public:
    /// @p events and @p isCanceled, which becomes true when somebody wants the process to end, are
    /// borrowed. The watchdog waits @p patiencePercent of what it should.
    CCameraUpdate(CMessageWriter &events, const volatile std::sig_atomic_t &isCanceled,
                  int patiencePercent);
    ~CCameraUpdate() override;

    /// Performs @p task; its last event is always sent. True: the camera has the new firmware.
    [[nodiscard]] bool perform(const Update::CWorkerTask &task);

    /// The camera was taken away, which its device does not know. Any thread.
    void loseCamera();

private:
    void stepBegun(const UpdateFile::CUpdateStep &step,
                   std::chrono::milliseconds estimate) override;
    void stepProgressed(const UpdateFile::CUpdateStep &step, double percent) override;
    void writing() override;
    void stepDone(const UpdateFile::CUpdateStep &step, std::chrono::milliseconds estimate) override;

    [[nodiscard]] Text::CErrorText update(const Update::CWorkerTask &task);
    void makeDevice(const Update::CWorkerTask &task);
    void watch(std::chrono::milliseconds limit);
    void onExpired();
    [[nodiscard]] Update::CWorkerEvent makeEvent(Update::CWorkerEvent::EType type) const;
    [[nodiscard]] Update::CWorkerEvent makeFailure(const Text::CErrorText &error) const;

    CMessageWriter &m_events;
    const volatile std::sig_atomic_t &m_isCanceled;
    const int m_patiencePercent;
    Camera::CCameraKinds m_kinds;
    std::atomic<Camera::ICameraKind *> m_kind{nullptr}; ///< that of the camera
    UpdateFile::CUpdateManifest m_manifest;
    int m_step = -1; ///< the current one, from 0
    std::chrono::milliseconds m_patience{0}; ///< until the next event
    std::chrono::milliseconds m_limit{0}; ///< of the current step, with what a library gets beyond
    bool m_isInUse = false; ///< somebody else works with the camera
    std::unique_ptr<Camera::ICameraDevice> m_device;
    std::unique_ptr<Update::IUpdateRun> m_run;
    CSleepInhibitor m_sleepInhibitor;
    std::atomic<bool> m_mayHaveWritten{false}; ///< known to the watchdog's thread
    CWatchdog m_watchdog; ///< the last one, as its thread uses what stands above
};

} // namespace Viewer::CameraWorker
