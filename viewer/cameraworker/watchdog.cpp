#include "watchdog.h"

namespace Viewer::CameraWorker {

using Clock = std::chrono::steady_clock;

CWatchdog::CWatchdog(const std::function<void()> &expired)
    : m_expired(expired)
    , m_thread([this] { run(); })
{
}

CWatchdog::~CWatchdog()
{
    {
        const std::lock_guard lock(m_mutex);
        m_ends = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void CWatchdog::watch(std::chrono::milliseconds limit)
{
    {
        const std::lock_guard lock(m_mutex);
        m_deadline = Clock::now() + limit;
    }
    m_changed.notify_all();
}

void CWatchdog::run()
{
    std::unique_lock lock(m_mutex);
    while (!m_ends) {
        if (m_deadline == Clock::time_point::max()) {
            m_changed.wait(lock);
        } else if (Clock::now() >= m_deadline) {
            m_deadline = Clock::time_point::max();
            lock.unlock();
            m_expired();
            lock.lock();
        } else {
            m_changed.wait_until(lock, m_deadline);
        }
    }
}

} // namespace Viewer::CameraWorker
