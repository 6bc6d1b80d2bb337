#include "backgroundwork.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace Viewer::Files {

static constexpr std::chrono::seconds END_TIME(1);

struct CBackgroundWork::CState
{
    std::mutex mutex;
    std::condition_variable ending;
    CBackgroundWork *target = nullptr; ///< null: cancelled
    bool hasEnded = false;
};

namespace {

struct CCanceled
{
};

} // namespace

CBackgroundWork::CBackgroundWork(QObject *parent)
    : QObject(parent)
{
}

CBackgroundWork::~CBackgroundWork()
{
    cancel();
    const auto end = std::chrono::steady_clock::now() + END_TIME;
    for (const std::shared_ptr<CState> &state : m_states) {
        std::unique_lock lock(state->mutex);
        state->ending.wait_until(lock, end, [&state] { return state->hasEnded; });
    }
}

void CBackgroundWork::start(const Work &work)
{
    cancel();
    const auto hasEnded = [](const std::shared_ptr<CState> &state) {
        const std::lock_guard lock(state->mutex);
        return state->hasEnded;
    };
    m_states.erase(std::remove_if(m_states.begin(), m_states.end(), hasEnded), m_states.end());

    const auto state = std::make_shared<CState>();
    state->target = this;
    m_states.push_back(state);
    std::thread([state, work] {
        const auto checkpoint = [&state] {
            const std::lock_guard lock(state->mutex);
            if (!state->target)
                throw CCanceled();
        };
        Continuation continuation;
        try {
            continuation = work(checkpoint);
        } catch (...) {
            continuation = nullptr;
        }
        const std::lock_guard lock(state->mutex);
        state->hasEnded = true;
        state->ending.notify_all();
        if (!state->target || !continuation)
            return;
        // The target cannot go while the lock is held; what is posted goes along with it.
        QMetaObject::invokeMethod(
            state->target,
            [state, continuation] {
                // Cancelled meanwhile, on this very thread?
                if (state->target)
                    continuation();
            },
            Qt::QueuedConnection);
    }).detach();
}

void CBackgroundWork::cancel()
{
    for (const std::shared_ptr<CState> &state : m_states) {
        const std::lock_guard lock(state->mutex);
        state->target = nullptr;
    }
}

} // namespace Viewer::Files
