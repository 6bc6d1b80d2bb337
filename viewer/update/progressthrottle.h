#pragma once

#include <chrono>

namespace Viewer::Update {

/// Picks the reports of a step's progress that are worth passing on, since receivers write a line
/// into a log for each and flush it: those that are a whole percent and a tenth of a second away
/// from the last one passed on, and the end.
class CProgressThrottle
{
public:
    using Clock = std::chrono::steady_clock;

    /// The step has begun at @p start.
    explicit CProgressThrottle(Clock::time_point start);

    /// True when the report of @p percent (0 to 100), made at @p now, is to be passed on.
    [[nodiscard]] bool passes(double percent, Clock::time_point now);

private:
    int m_lastPercent = 0;
    Clock::time_point m_lastTime;
};

} // namespace Viewer::Update
