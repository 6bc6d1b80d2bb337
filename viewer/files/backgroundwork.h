#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

namespace Viewer::Files {

/// Work with files on threads that nobody waits for: a disk may be slow, and a network drive that
/// has vanished may not answer for minutes, in which a thread can not be ended.
class CBackgroundWork : public QObject
{
    Q_OBJECT

public:
    /// Ends the work by an exception once cancel() was called; to be called now and then.
    using Checkpoint = std::function<void()>;

    /// What is to be done with a result.
    using Continuation = std::function<void()>;

    using Work = std::function<Continuation(const Checkpoint &checkpoint)>;

    explicit CBackgroundWork(QObject *parent = nullptr);

    /// As cancel(). Threads that come to a checkpoint within a second have ended afterwards; others
    /// are left to themselves.
    ~CBackgroundWork() override;

    /// Calls cancel(), then @p work on a thread of its own, and what that returns on this object's
    /// thread, unless it is cancelled before. What @p work throws is lost.
    void start(const Work &work);

    /// Nothing comes of the work that was started.
    void cancel();

private:
    struct CState;

    std::vector<std::shared_ptr<CState>> m_states; ///< of threads; the last one may count
};

} // namespace Viewer::Files
