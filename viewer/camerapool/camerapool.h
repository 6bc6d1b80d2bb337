#pragma once

#include "remotecamera.h"

#include "viewer/camera/camerasnapshot.h"
#include "viewer/camera/ecameraactivity.h"
#include "viewer/camera/icamerakind.h"
#include "viewer/image/frame.h"
#include "viewer/text/errortext.h"

#include "core/iservice.h"

#include <QList>
#include <QObject>
#include <QSharedPointer>
#include <QString>

#include <functional>
#include <memory>

namespace Viewer::Stream {
class CCameraStream;
}

namespace Viewer::CameraPool {

/// The host's camera pool: owns the cameras and the services that plug-ins use. GUI thread.
class CCameraPool : public QObject
{
    Q_OBJECT

public:
    /// Takes over @p kinds and starts them; throws `Core::Exception::BaseException` when one cannot
    /// be started. Nothing is enumerated before start(). Updates keep their journals in
    /// @p journalFolder; empty: nowhere.
    explicit CCameraPool(Camera::CCameraKinds kinds, const QString &journalFolder = QString(),
                         QObject *parent = nullptr);
    ~CCameraPool() override;

    /// Each update, and the images of each camera, have a process of their own from now on:
    /// nuvexcameraworker at the absolute path @p program, which speaks the @p language. Without a
    /// call updates run on threads of this one, and there are no images.
    void setWorker(const QString &program, const QString &language);

    /// Where the log of an update lies, for its journal and the history: asked on the thread of the
    /// job when that begins. Without a call nobody knows.
    void setLogFinder(const std::function<QString()> &findLog);

    /// Begins the first enumeration. Its result is announced even if no camera is found.
    void start();

    /// The services to publish: enumeration, status, stream control and firmware update. They work
    /// on this pool, so whoever holds them has to let go of them before it is destroyed.
    [[nodiscard]] QList<QSharedPointer<Core::Service::IService>> getServices() const;

    /// The one of them that is a @p Service.
    template <typename Service>
    [[nodiscard]] QSharedPointer<Service> getService() const
    {
        for (const auto &service : getServices()) {
            if (const auto match = service.template dynamicCast<Service>())
                return match;
        }
        return {};
    }

    /// What the last enumeration found out about the camera @p cameraId, also what plug-ins do not
    /// get to know; empty: it did not find it.
    [[nodiscard]] Camera::CCameraSnapshot getSnapshot(const QString &cameraId) const;

    [[nodiscard]] Camera::ECameraActivity getActivity(const QString &cameraId) const;

    /// Why startAcquisition() and startRecording() would be refused now, as a sentence; empty: as
    /// far as one can know beforehand, nothing is in their way.
    [[nodiscard]] QString getStartObstacle(const QString &cameraId) const;

    /// Start and stop acquisition of one camera. False, with a sentence in @p error, when
    /// getStartObstacle() has one.
    bool startAcquisition(const QString &cameraId, QString *error = nullptr);
    void stopAcquisition(const QString &cameraId);

    /// The settings of a camera that acquires; null: it does not. Dies when it does not any more.
    [[nodiscard]] Stream::CCameraStream *findStream(const QString &cameraId) const;

    /// Recording acquires as well and writes each frame as a PNG file into @p folder, which must
    /// exist. The camera goes on acquiring when the recording ends, whether by stopRecording() or
    /// by an error; stopAcquisition() ends both.
    bool startRecording(const QString &cameraId, const QString &folder, QString *error = nullptr);
    void stopRecording(const QString &cameraId);

    /// While locked, no camera can be started: a wizard is open.
    void setStartsLocked(bool locked);

    /// True while an update job executes, on whatever thread.
    [[nodiscard]] bool isUpdateRunning() const;

    [[nodiscard]] const Camera::CCameraKinds &getKinds() const;

signals:
    /// GUI thread; what getStartObstacle() says may be different for every camera.
    void startsLockedChanged();

    /// GUI thread; the activity or the presence of a camera has changed.
    void activityChanged(const QString &cameraId);

    /// GUI thread; getSnapshot() tells something else of the camera, although no enumeration has
    /// changed.
    void snapshotChanged(const QString &cameraId);

    /// GUI thread; one frame of an acquiring camera. Who keeps many of them gets no more.
    void frameReady(const QString &cameraId, const Viewer::Image::CFrame &frame);

    /// GUI thread, about once a second for each acquiring camera. @p skippedFrames: those that
    /// nobody here had room for.
    void statisticsChanged(const QString &cameraId,
                           const Viewer::Camera::CStreamStatistics &statistics,
                           qint64 skippedFrames);

    /// GUI thread; acquisition or recording of a camera has ended by itself. @p message is one
    /// sentence that names the camera and the cause.
    void streamFailed(const QString &cameraId, const QString &message);

    /// GUI thread; all that could be written of a recording is. @p lostCount: frames for which
    /// there was no time.
    void recordingEnded(const QString &cameraId, quint64 writtenCount, quint64 lostCount);

    /// GUI thread.
    void updateRunningChanged(bool running);

    /// GUI thread; an update job has executed, and before updateRunningChanged(false). A job that
    /// is executed once more does nothing and is not told of.
    void updateEnded(const QString &cameraId, bool isUpdated);

private slots:
    void onActivityChanged(const QString &cameraId);
    void onCameraStateChanged(const QString &cameraId);
    void onRecordingFailed(const QString &cameraId, const QString &cause);
    void onStreamEnded(const QString &cameraId, const Text::CErrorText &error);
    void lookForLost();

private:
    [[nodiscard]] CRemoteCamera findRemote(const QString &cameraId) const;
    [[nodiscard]] bool beginStream(const QString &cameraId, Camera::ECameraActivity activity,
                                   QString *error);
    void stopAllCameras();
    /// Of the kind to which the camera belongs; null: there is no such camera.
    [[nodiscard]] const Camera::ICameraKind *findKind(const QString &cameraId) const;
    [[nodiscard]] Camera::ECameraPresence getPresence(const QString &cameraId) const;
    [[nodiscard]] QString getDisplayName(const QString &cameraId) const;

    struct CPrivate;
    const std::unique_ptr<CPrivate> d;
};

} // namespace Viewer::CameraPool
