#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace Viewer::Demo {

/// Ends the process with exit code 1 and a sentence on standard error when nothing moves for too
/// long. It has a thread of its own, so that it also notices a blocked GUI thread.
class CWatchdog
{
public:
    explicit CWatchdog(std::chrono::milliseconds limit);

    /// Calls the watch off.
    ~CWatchdog();

    /// Starts the time anew if @p state differs from the last one; @p place is for the sentence.
    void report(const std::string &place, const std::string &state);

private:
    void watch();

    const std::chrono::milliseconds m_limit;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::string m_place;
    std::string m_state;
    std::chrono::steady_clock::time_point m_deadline;
    bool m_ended = false;
    std::thread m_thread; ///< last: it uses all the others
};

} // namespace Viewer::Demo
