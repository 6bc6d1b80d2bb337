#pragma once

#include "viewer/camera/camerasnapshot.h"

#include "camerapool/icameraenumerationservice.h"

#include <QHash>
#include <QThread>
#include <QTimer>

#include <memory>
#include <optional>

namespace Viewer::Camera {
class CCameraActivities;
class ICameraEnumerator;
} // namespace Viewer::Camera

namespace Viewer::CameraPool {

class CEnumerationWorker;

/// Enumerates on a thread of its own and announces what has changed. While an update runs nothing
/// is announced, since the camera's restart would look like a cable pulled and plugged; what piled
/// up comes at once when the update has ended. GUI thread.
class CCameraEnumerationService : public Plugin::CameraPool::ICameraEnumerationService
{
    Q_OBJECT

public:
    /// @p enumerator is borrowed and outlives this object, which cancels it. Cameras that another
    /// process updates, according to its journal in @p journalFolder, cannot be updated here until
    /// it has ended.
    CCameraEnumerationService(Camera::ICameraEnumerator &enumerator,
                              const std::shared_ptr<const Camera::CCameraActivities> &activities,
                              const QString &journalFolder = QString(), QObject *parent = nullptr);
    ~CCameraEnumerationService() override;

    /// The camera as found by the last enumeration; null when it was not.
    [[nodiscard]] Plugin::CameraPool::CameraInfoPtr findCamera(const QString &cameraId) const;

    /// How far another process is with the update of the camera, in percent of its steps; nothing:
    /// no other process updates it.
    [[nodiscard]] std::optional<int> getProgressElsewhere(const QString &cameraId) const;

    [[nodiscard]] QVector<QSharedPointer<Plugin::CameraPool::ITransportLayerInfo>>
    getTransportLayerInfoVector() const override;
    void refreshEnumeration() override;

public slots:
    /// Enumerates, and announces the result if it is another one.
    void onCamerasChanged();

    /// The last running update has ended.
    void onUpdatesEnded();

signals:
    /// getProgressElsewhere() tells something else of the camera.
    void progressElsewhereChanged(const QString &cameraId);

    /// To the worker.
    void requested();

private slots:
    void onEnumerated();

private:
    void request();
    [[nodiscard]] QHash<QString, int> findUpdatedElsewhere() const;
    void markUpdatedElsewhere(QVector<Camera::CTransportLayerSnapshot> &layers);
    void onJournalTimeout();
    [[nodiscard]] bool replaceResult(const QVector<Camera::CTransportLayerSnapshot> &layers);

    Camera::ICameraEnumerator &m_enumerator;
    const std::shared_ptr<const Camera::CCameraActivities> m_activities;
    const QString m_journalFolder;
    /// In percent by the id of the camera; of the cameras as the last enumeration began.
    QHash<QString, int> m_updatedElsewhere;
    QTimer m_journalTimer; ///< runs while there are any
    QThread m_thread;
    CEnumerationWorker *const m_worker; // lives in the thread and is deleted with it

    QVector<Plugin::CameraPool::TransportLayerInfoPtr> m_layers;
    QHash<QString, Plugin::CameraPool::CameraInfoPtr> m_cameras;

    bool m_wanted = false; // another enumeration has to begin
    bool m_wantedAnnounced = false; // and its result is announced in any case
    bool m_running = false;
    bool m_runningAnnounced = false;
    int m_updateCountAtRequest = 0;
};

} // namespace Viewer::CameraPool
