#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace Viewer::CameraWorker {

/// Calls somebody when an operation has not ended in time, from a thread of its own: the thread of
/// the operation may hang in a library.
class CWatchdog
{
public:
    explicit CWatchdog(const std::function<void()> &expired);
    ~CWatchdog();

    /// What begins now has to end within @p limit. Takes the place of the previous limit.
    void watch(std::chrono::milliseconds limit);

private:
    void run();

    const std::function<void()> m_expired;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::chrono::steady_clock::time_point m_deadline = std::chrono::steady_clock::time_point::max();
    bool m_ends = false;
    std::thread m_thread;
};

} // namespace Viewer::CameraWorker
