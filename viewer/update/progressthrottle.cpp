#include "progressthrottle.h"

namespace Viewer::Update {

static constexpr std::chrono::milliseconds INTERVAL(100);
static constexpr int LAST_PERCENT = 100;

CProgressThrottle::CProgressThrottle(Clock::time_point start)
    : m_lastTime(start)
{
}

bool CProgressThrottle::passes(double percent, Clock::time_point now)
{
    const int wholePercent = static_cast<int>(percent);
    if (wholePercent <= m_lastPercent)
        return false;
    if (wholePercent < LAST_PERCENT && now - m_lastTime < INTERVAL)
        return false;
    m_lastPercent = wholePercent;
    m_lastTime = now;
    return true;
}

} // namespace Viewer::Update
