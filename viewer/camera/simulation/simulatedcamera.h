#pragma once

#include "cameradescription.h"

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>

namespace Viewer::Text {
class CErrorText;
}

namespace Viewer::Camera::Simulation {

class CFirmwareStateFile;
class CSimulationNotifier;

/// One simulated camera: whether it is there, who uses it and which firmware it holds. Everything
/// may be called on any thread. All durations are those of a real camera; the speed factor divides
/// them here and nowhere else, time limits included, so that a run has the same outcome at every
/// speed.
class CSimulatedCamera
{
public:
    using Clock = std::chrono::steady_clock;

    /// Who talks to the camera; 0 is nobody. A session ends by disconnect() or by the cable.
    using Session = int;

    enum class ERestart {
        Back,
        NotInTime,
        Unplugged, ///< while it restarted, or before
    };

    CSimulatedCamera(const CCameraDescriptionEntry &description, double speedFactor,
                     const std::shared_ptr<CFirmwareStateFile> &stateFile,
                     const std::shared_ptr<const CSimulationNotifier> &notifier);
    Q_DISABLE_COPY(CSimulatedCamera)

    [[nodiscard]] const CCameraDescriptionEntry &getDescription() const;

    /// What an enumeration sees; nothing when the camera is unplugged or just restarting.
    [[nodiscard]] std::optional<CCameraSnapshot> getSnapshot() const;

    [[nodiscard]] QString getFirmwareVersion() const;

    /// How many times faster than a real one it is.
    [[nodiscard]] double getSpeedFactor() const;

    [[nodiscard]] bool isPlugged() const;
    void setPlugged(bool plugged);

    /// A camera in a session cannot be made busy.
    [[nodiscard]] bool isBusy() const;
    void setBusy(bool busy);

    /// Begins a session, or says in @p cause why there is none, and in @p isInUse whether that is
    /// because somebody else has one.
    [[nodiscard]] Session connect(Text::CErrorText &cause, bool &isInUse);
    void disconnect(Session session);
    [[nodiscard]] bool isConnected(Session session) const;

    /// Another process has written @p version, and remembers it; ignored without the session.
    void takeFirmware(Session session, const QString &version);

    /// Waits for so long; false as soon as the session has ended otherwise.
    [[nodiscard]] bool wait(Session session, std::chrono::microseconds duration);

    /// Waits until so long after @p start; for work in blocks, whose errors must not add up.
    [[nodiscard]] bool waitSince(Session session, Clock::time_point start,
                                 std::chrono::microseconds duration);

    /// Restarts, with @p newFirmware unless it is empty, and waits. The session has ended unless
    /// the camera is back.
    [[nodiscard]] ERestart restart(Session session, std::chrono::milliseconds duration,
                                   std::chrono::milliseconds timeLimit, const QString &newFirmware);

private:
    [[nodiscard]] Clock::duration getSimulated(std::chrono::microseconds duration) const;
    void notify() const;

    const CCameraDescriptionEntry m_description;
    const double m_speedFactor;
    const std::shared_ptr<CFirmwareStateFile> m_stateFile;
    const std::shared_ptr<const CSimulationNotifier> m_notifier;

    mutable std::mutex m_mutex; // guards what follows; never held while others are called
    std::condition_variable m_changed;
    QString m_firmwareVersion;
    bool m_plugged = true;
    bool m_restarting = false;
    bool m_busy = false;
    Session m_session = 0;
    Session m_lastSession = 0;
};

} // namespace Viewer::Camera::Simulation
