#pragma once

#include "viewer/camera/camerasnapshot.h"
#include "viewer/camera/ecameraactivity.h"

#include "core/iservice.h"

#include <QHostAddress>
#include <QList>
#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QVector>

#include <memory>

class QImage;

namespace Viewer::Camera::Simulation {
class CSimulation;
}

namespace Viewer::CameraPool {

/// What the pool is started with.
struct CCameraPoolOptions
{
    QString descriptionFile; ///< JSON description of the simulated cameras; empty: the built-in one
    QString stateFile; ///< where the cameras' firmware versions are remembered; empty: nowhere
    double speedFactor = 1.0; ///< how many times faster than real cameras the simulation runs
    bool resetCameras = false; ///< forget what earlier updates wrote
    bool simulates = true; ///< false: there are no simulated cameras

    bool searchesNetwork = false; ///< looks for cameras by broadcast and on USB
    QVector<QHostAddress> cameraAddresses; ///< cameras that are asked whether they are there
};

/// The host's camera pool: owns the cameras and the services that plug-ins use. GUI thread.
class CCameraPool : public QObject
{
    Q_OBJECT

public:
    /// Throws `Core::Exception::BaseException`, naming file, line and field, when the description
    /// is faulty. Nothing is enumerated before start().
    explicit CCameraPool(const CCameraPoolOptions &options, QObject *parent = nullptr);
    ~CCameraPool() override;

    /// Begins the first enumeration. Its result is announced even if no camera is found.
    void start();

    /// The services to publish: enumeration, status, stream control and firmware update. They work
    /// on this pool, so whoever holds them has to let go of them before it is destroyed.
    [[nodiscard]] QList<QSharedPointer<Core::Service::IService>> getServices() const;

    /// What the last enumeration found out about the camera @p cameraId, also what plug-ins do not
    /// get to know; empty: it did not find it.
    [[nodiscard]] Camera::CCameraSnapshot getSnapshot(const QString &cameraId) const;

    [[nodiscard]] Camera::ECameraActivity getActivity(const QString &cameraId) const;

    /// Start and stop acquisition of one camera. False, with a sentence in @p error, when the
    /// camera is gone, being updated, or starts are locked.
    bool startAcquisition(const QString &cameraId, QString *error = nullptr);
    void stopAcquisition(const QString &cameraId);

    /// Recording acquires as well and writes each frame as a PNG file into @p folder, which must
    /// exist. The camera goes on acquiring when the recording ends, whether by stopRecording() or
    /// by an error; stopAcquisition() ends both.
    bool startRecording(const QString &cameraId, const QString &folder, QString *error = nullptr);
    void stopRecording(const QString &cameraId);

    /// While locked, no camera can be started: a wizard is open.
    void setStartsLocked(bool locked);

    /// True while an update job executes, on whatever thread.
    [[nodiscard]] bool isUpdateRunning() const;

    /// False: the viewer was built without the library for real cameras.
    [[nodiscard]] static bool canSearchNetwork();
    [[nodiscard]] bool searchesNetwork() const;

    /// Enumerates anew. Does nothing where the network cannot be searched.
    void setSearchesNetwork(bool searches);

    /// What stands in for cables and people: plug, unplug, make busy.
    [[nodiscard]] Camera::Simulation::CSimulation &getSimulation();

signals:
    /// GUI thread; the activity or the presence of a camera has changed.
    void activityChanged(const QString &cameraId);

    /// GUI thread; one frame of an acquiring camera.
    void frameReady(const QString &cameraId, const QImage &frame);

    /// GUI thread; acquisition or recording of a camera has ended by itself. @p message is one
    /// sentence that names the camera and the cause.
    void streamFailed(const QString &cameraId, const QString &message);

    /// GUI thread.
    void updateRunningChanged(bool running);

private slots:
    void onActivityChanged(const QString &cameraId);
    void onCameraStateChanged(const QString &cameraId);
    void onRecordingFailed(const QString &cameraId, const QString &cause);

private:
    [[nodiscard]] bool beginStream(const QString &cameraId, Camera::ECameraActivity activity,
                                   QString *error);
    void stopAllCameras();
    [[nodiscard]] QString getDisplayName(const QString &cameraId) const;

    struct CPrivate;
    const std::unique_ptr<CPrivate> d;
};

} // namespace Viewer::CameraPool
