#include "simulatedcamera.h"

#include "firmwarestatefile.h"
#include "simulationnotifier.h"

#include "viewer/text/errortext.h"

#include <algorithm>

namespace Viewer::Camera::Simulation {

using Text::CErrorText;
CSimulatedCamera::CSimulatedCamera(const CCameraDescriptionEntry &description, double speedFactor,
                                   const std::shared_ptr<CFirmwareStateFile> &stateFile,
                                   const std::shared_ptr<const CSimulationNotifier> &notifier)
    : m_description(description)
    , m_speedFactor(speedFactor)
    , m_stateFile(stateFile)
    , m_notifier(notifier)
{
    const QString written = m_stateFile->getVersion(description.camera.id);
    m_firmwareVersion = written.isEmpty() ? description.camera.firmwareVersion : written;
}

const CCameraDescriptionEntry &CSimulatedCamera::getDescription() const
{
    return m_description;
}

std::optional<CCameraSnapshot> CSimulatedCamera::getSnapshot() const
{
    const std::lock_guard lock(m_mutex);
    if (!m_plugged || m_restarting)
        return std::nullopt;
    CCameraSnapshot snapshot = m_description.camera;
    snapshot.firmwareVersion = m_firmwareVersion;
    return snapshot;
}

QString CSimulatedCamera::getFirmwareVersion() const
{
    const std::lock_guard lock(m_mutex);
    return m_firmwareVersion;
}

double CSimulatedCamera::getSpeedFactor() const
{
    return m_speedFactor;
}

bool CSimulatedCamera::isPlugged() const
{
    const std::lock_guard lock(m_mutex);
    return m_plugged;
}

void CSimulatedCamera::setPlugged(bool plugged)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_plugged == plugged)
            return;
        m_plugged = plugged;
        if (!plugged) {
            m_session = 0;
            m_busy = false;
            m_restarting = false;
        }
    }
    m_changed.notify_all();
    notify();
}

bool CSimulatedCamera::isBusy() const
{
    const std::lock_guard lock(m_mutex);
    return m_busy;
}

void CSimulatedCamera::setBusy(bool busy)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_busy == busy || (busy && (!m_plugged || m_session != 0)))
            return;
        m_busy = busy;
    }
    notify();
}

CSimulatedCamera::Session CSimulatedCamera::connect(CErrorText &cause, bool &isInUse)
{
    const std::lock_guard lock(m_mutex);
    if (!m_plugged || m_restarting)
        cause = CErrorText::tr("it does not answer; check its cable and its power supply");
    else if (m_busy)
        cause = CErrorText::tr(
            "it is in use by another application; close that application and start the "
            "update again");
    else if (m_session != 0)
        cause = CErrorText::tr("it is already being updated");
    else
        m_session = ++m_lastSession;
    isInUse = !cause.isEmpty() && m_plugged && !m_restarting;
    return cause.isEmpty() ? m_session : 0;
}

void CSimulatedCamera::disconnect(Session session)
{
    const std::lock_guard lock(m_mutex);
    if (m_session == session)
        m_session = 0;
}

bool CSimulatedCamera::isConnected(Session session) const
{
    const std::lock_guard lock(m_mutex);
    return m_session == session;
}

void CSimulatedCamera::takeFirmware(Session session, const QString &version)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_session != session || m_firmwareVersion == version)
            return;
        m_firmwareVersion = version;
    }
    notify();
}

bool CSimulatedCamera::wait(Session session, std::chrono::microseconds duration)
{
    return waitSince(session, Clock::now(), duration);
}

bool CSimulatedCamera::waitSince(Session session, Clock::time_point start,
                                 std::chrono::microseconds duration)
{
    std::unique_lock lock(m_mutex);
    return !m_changed.wait_until(lock, start + getSimulated(duration), [this, session] {
        return m_session != session;
    }) && m_session == session;
}

CSimulatedCamera::ERestart CSimulatedCamera::restart(Session session,
                                                     std::chrono::milliseconds duration,
                                                     std::chrono::milliseconds timeLimit,
                                                     const QString &newFirmware)
{
    ERestart result = ERestart::NotInTime;
    bool installed = false;
    {
        std::unique_lock lock(m_mutex);
        if (m_session != session)
            return ERestart::Unplugged;
        m_restarting = true;
        if (m_changed.wait_for(lock, getSimulated(std::min(duration, timeLimit)),
                               [this, session] { return m_session != session; }))
            return ERestart::Unplugged;
        m_restarting = false;
        if (m_description.faults.neverReturnsFromReset) {
            // It hangs until somebody plugs it in again.
            m_plugged = false;
        } else {
            if (duration <= timeLimit)
                result = ERestart::Back;
            installed = !newFirmware.isEmpty();
            if (installed)
                m_firmwareVersion = newFirmware;
        }
        if (result != ERestart::Back)
            m_session = 0;
    }
    if (installed)
        m_stateFile->setVersion(m_description.camera.id, newFirmware);
    notify();
    return result;
}

CSimulatedCamera::Clock::duration
CSimulatedCamera::getSimulated(std::chrono::microseconds duration) const
{
    return std::chrono::duration_cast<Clock::duration>(
        std::chrono::duration<double, std::micro>(duration) / m_speedFactor);
}

void CSimulatedCamera::notify() const
{
    m_notifier->notify(m_description.camera.id);
}

} // namespace Viewer::Camera::Simulation
