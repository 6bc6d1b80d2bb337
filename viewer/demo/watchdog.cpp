#include "watchdog.h"

#include <cstdio>
#include <cstdlib>

namespace Viewer::Demo {

CWatchdog::CWatchdog(std::chrono::milliseconds limit)
    : m_limit(limit)
    , m_place("the start")
    , m_deadline(std::chrono::steady_clock::now() + limit)
    , m_thread([this] { watch(); })
{
}

CWatchdog::~CWatchdog()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_ended = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void CWatchdog::report(const std::string &place, const std::string &state)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (place == m_place && state == m_state)
            return;
        m_place = place;
        m_state = state;
        m_deadline = std::chrono::steady_clock::now() + m_limit;
    }
    m_changed.notify_all();
}

void CWatchdog::watch()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_ended) {
        const auto deadline = m_deadline;
        if (m_changed.wait_until(lock, deadline) != std::cv_status::timeout || m_ended
            || std::chrono::steady_clock::now() < m_deadline)
            continue;
        std::fprintf(stderr, "The demonstration hangs in %s: nothing has moved for %lld s.\n",
                     m_place.c_str(), static_cast<long long>(m_limit.count() / 1000));
        // Without destructors: they would wait for the threads that hang.
        std::_Exit(EXIT_FAILURE);
    }
}

} // namespace Viewer::Demo
