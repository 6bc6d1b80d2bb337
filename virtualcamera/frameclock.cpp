#include "frameclock.h"

namespace VirtualCamera {

void CFrameClock::configure(Time period, bool isTriggered)
{
    m_next += period - m_period;
    m_period = period;
    m_isTriggered = isTriggered;
}

void CFrameClock::start(quint32 frameCount, Time now)
{
    m_isRunning = true;
    m_isAskedFor = false;
    m_framesWanted = frameCount;
    m_number = 0;
    m_next = now;
}

void CFrameClock::stop()
{
    m_isRunning = false;
    m_isAskedFor = false;
}

void CFrameClock::trigger()
{
    m_isAskedFor = m_isRunning && m_isTriggered;
}

bool CFrameClock::take(Time now)
{
    if (!m_isRunning || (m_isTriggered ? !m_isAskedFor : now < m_next))
        return false;
    m_isAskedFor = false;
    // Who is much too late does not hurry afterwards.
    if (m_next + m_period / 2 < now)
        m_next = now;
    m_next += m_period;
    ++m_number;
    if (m_framesWanted > 0 && m_number >= m_framesWanted)
        m_isRunning = false;
    return true;
}

std::optional<Time> CFrameClock::getNextDeadline() const
{
    if (!m_isRunning)
        return {};
    if (m_isTriggered)
        return m_isAskedFor ? std::optional<Time>(Time(0)) : std::nullopt;
    return m_next;
}

} // namespace VirtualCamera
