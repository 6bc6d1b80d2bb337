#pragma once

#include "camerarun.h"

#include "camerapool/idevicefirmwareupdate.h"

#include <QHash>
#include <QObject>
#include <QVector>

#include <functional>

namespace Viewer::NuvexUpdate {

/// Updates many cameras, several at a time. One thread; the jobs run on threads of their own.
class CUpdateSeries : public QObject
{
    Q_OBJECT

public:
    /// The job for a camera; null: there is no such camera any more.
    using JobMaker
        = std::function<Plugin::CameraPool::DeviceFirmwareUpdatePtr(const CCameraVerdict &camera)>;

    struct CLimits
    {
        int parallelCount = 1; ///< updates at a time
        int canaryCount = 0; ///< cameras that must succeed before the others begin; 0: none
        int maximumFailures = 1; ///< with so many no further camera is begun
    };

    CUpdateSeries(const QVector<CCameraVerdict> &cameras, const CLimits &limits,
                  const JobMaker &makeJob, QObject *parent = nullptr);

    /// Waits for the updates that run.
    ~CUpdateSeries() override;

    /// Begins with the first cameras.
    void start();

    /// No further camera begins.
    void stop();

    /// In the order of the constructor.
    [[nodiscard]] const QVector<CCameraRun> &getRuns() const;

signals:
    void begun(int index);
    void stepBegun(int index);
    void progressed(int index);
    void ended(int index);

    /// No update runs and none will begin; the last signal.
    void finished();

private:
    void advance();
    [[nodiscard]] bool mayBegin(int index) const;
    void begin(int index);
    void connectJob(int index);
    void end(int index, EOutcome outcome, const QString &error = QString());

    const CLimits m_limits;
    const JobMaker m_makeJob;
    QVector<CCameraRun> m_runs;
    QHash<int, Plugin::CameraPool::DeviceFirmwareUpdatePtr> m_jobs; ///< those that run
    int m_next = 0; ///< the first camera that has not begun
    int m_runningCount = 0;
    int m_updatedCount = 0;
    int m_failedCount = 0;
    bool m_isStopped = false;
};

} // namespace Viewer::NuvexUpdate
