#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <chrono>

namespace Viewer::CameraPool {
class CCameraPool;
}

namespace Viewer::AppCore {

/// Has the desktop tell how many updates succeeded and failed when a long series of them has ended
/// and the user is in another window. A desktop that cannot do that is told of in a line for
/// developers. GUI thread, which never waits for the desktop.
class CSeriesNotifier : public QObject
{
    Q_OBJECT

public:
    /// Listens to @p pool. A series begins with the first update and has ended when no update has
    /// run for the time @p pause; nobody is told of one that took less than @p shortest, from the
    /// begin of its first update to the end of its last.
    explicit CSeriesNotifier(const CameraPool::CCameraPool &pool,
                             std::chrono::milliseconds shortest = std::chrono::seconds(30),
                             std::chrono::milliseconds pause = std::chrono::seconds(3),
                             QObject *parent = nullptr);
    /// Waits for a notification that is under way, ten seconds at most.
    ~CSeriesNotifier() override;

signals:
    /// @p isTold: the desktop is asked to tell of it.
    void seriesEnded(bool isTold);

private:
    void onUpdateRunningChanged(bool isRunning);
    void onUpdateEnded(const QString &cameraId, bool isUpdated);
    void continueSeries();
    void endSeries();
    void notify();

    const std::chrono::milliseconds m_shortest;
    QTimer m_pause;
    QElapsedTimer m_sinceBegin; ///< invalid: there is no series
    std::chrono::milliseconds m_duration{0}; ///< up to what happened last
    bool m_isUpdateRunning = false;
    int m_updatedCount = 0;
    int m_failedCount = 0;
    QThreadPool m_threads; ///< at most one, which waits for the desktop
};

} // namespace Viewer::AppCore
