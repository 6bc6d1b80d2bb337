#include "camerapool.h"

#include "cameraenumerationservice.h"
#include "camerainfo.h"
#include "camerastatusservice.h"
#include "camerastreamcontrolservice.h"
#include "camerastreams.h"
#include "devicefirmwareupdateservice.h"
#include "viewer/camera/cameraactivities.h"
#include "viewer/camera/combinedcameras.h"
#include "viewer/update/errortranslator.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>

#include <QHash>
#include <QSet>
#include <QTimer>

#include <utility>

namespace Viewer::CameraPool {

using Camera::ECameraActivity;
using Camera::ECameraPresence;
using Camera::ICameraKind;
using Core::Service::IService;

/// How long a camera may take to give control back before its process is killed.
static constexpr int END_TIME = 5000; // milliseconds

/// A camera that has gone while it streamed goes on by itself when it is back so soon.
static constexpr int RETURN_TIME = 60'000; // milliseconds
static constexpr int RETURN_INTERVAL = 3000; // milliseconds

static void setError(QString *error, const QString &text)
{
    if (error)
        *error = text;
}

struct CCameraPool::CPrivate
{
    explicit CPrivate(Camera::CCameraKinds ofPool)
        : kinds(std::move(ofPool))
        , cameras(kinds)
    {
        for (const std::unique_ptr<ICameraKind> &kind : kinds)
            kind->start();
    }

    // The order matters: who is named first is used by those that follow.
    const Camera::CCameraKinds kinds;
    Camera::CCombinedCameras cameras;
    const std::shared_ptr<Camera::CCameraActivities> activities
        = std::make_shared<Camera::CCameraActivities>();
    const std::shared_ptr<Update::CErrorTranslator> errors
        = std::make_shared<Update::CErrorTranslator>();
    CCameraStreams streams;
    bool hasWorker = false;
    QSharedPointer<CCameraEnumerationService> enumeration;
    QList<QSharedPointer<IService>> services;
    bool startsLocked = false;
    QSet<QString> restarts; // cameras that are to start again when they have been given back
    QHash<QString, QDeadlineTimer> lost; // by id; cameras that start again when they are back
    QTimer lostTimer;
    bool updateRunning = false; // as announced
    int updateCount = 0; // of the updates that have been reacted to
};

CCameraPool::CCameraPool(Camera::CCameraKinds kinds, const QString &journalFolder, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<CPrivate>(std::move(kinds)))
{
    d->enumeration.reset(new CCameraEnumerationService(d->cameras, d->activities, journalFolder));
    const auto getActivityOf = [this](const QString &cameraId) { return getActivity(cameraId); };
    const auto findCamera
        = [service = d->enumeration.data()](const QString &id) { return service->findCamera(id); };
    d->services
        = {d->enumeration, QSharedPointer<IService>(new CCameraStatusService(getActivityOf)),
           QSharedPointer<IService>(new CCameraStreamControlService([this] { stopAllCameras(); })),
           QSharedPointer<IService>(new CDeviceFirmwareUpdateService(
               d->cameras, findCamera, d->activities, d->errors, journalFolder))};

    for (const std::unique_ptr<ICameraKind> &kind : d->kinds) {
        connect(kind.get(), &ICameraKind::camerasChanged, d->enumeration.data(),
                &CCameraEnumerationService::onCamerasChanged);
        connect(kind.get(), &ICameraKind::refreshWanted, d->enumeration.data(),
                &CCameraEnumerationService::refreshEnumeration);
        connect(kind.get(), &ICameraKind::cameraStateChanged, this,
                &CCameraPool::onCameraStateChanged);
    }
    connect(d->enumeration.data(), &CCameraEnumerationService::progressElsewhereChanged, this,
            &CCameraPool::snapshotChanged);
    connect(getService<CDeviceFirmwareUpdateService>().data(),
            &CDeviceFirmwareUpdateService::updateEnded, this, &CCameraPool::updateEnded);
    connect(&d->streams, &CCameraStreams::frameReady, this,
            [this](const QString &cameraId, const Image::CFrame &frame) {
                d->lost.remove(cameraId); // it is back
                emit frameReady(cameraId, frame);
            });
    connect(&d->streams, &CCameraStreams::statisticsChanged, this, &CCameraPool::statisticsChanged);
    connect(&d->streams, &CCameraStreams::recordingFailed, this, &CCameraPool::onRecordingFailed);
    connect(&d->streams, &CCameraStreams::recordingEnded, this, &CCameraPool::recordingEnded);
    connect(&d->streams, &CCameraStreams::ended, this, &CCameraPool::onStreamEnded);
    d->lostTimer.setInterval(RETURN_INTERVAL);
    connect(&d->lostTimer, &QTimer::timeout, this, &CCameraPool::lookForLost);
    QCoreApplication::installTranslator(d->errors.get());
    // Jobs report from their own threads.
    d->activities->setListener([this](const QString &cameraId) {
        QMetaObject::invokeMethod(
            this, [this, cameraId] { onActivityChanged(cameraId); }, Qt::QueuedConnection);
    });
}

CCameraPool::~CCameraPool()
{
    QCoreApplication::removeTranslator(d->errors.get());
    d->activities->setListener({});
}

void CCameraPool::setWorker(const QString &program, const QString &language)
{
    getService<CDeviceFirmwareUpdateService>()->setWorker(
        program, language, [this](const QString &cameraId) { return findRemote(cameraId); });
    d->streams.setWorker(program, language);
    d->hasWorker = true;
}

CRemoteCamera CCameraPool::findRemote(const QString &cameraId) const
{
    CRemoteCamera camera;
    camera.name = getDisplayName(cameraId);
    for (const std::unique_ptr<ICameraKind> &kind : d->kinds) {
        camera.kind = kind->getName();
        camera.handle = kind->createHandle(cameraId);
        if (camera.handle)
            break;
    }
    return camera;
}

void CCameraPool::setLogFinder(const std::function<QString()> &findLog)
{
    getService<CDeviceFirmwareUpdateService>()->setLogFinder(findLog);
}

void CCameraPool::start()
{
    d->enumeration->refreshEnumeration();
}

QList<QSharedPointer<IService>> CCameraPool::getServices() const
{
    return d->services;
}

Camera::CCameraSnapshot CCameraPool::getSnapshot(const QString &cameraId) const
{
    const Plugin::CameraPool::CameraInfoPtr camera = d->enumeration->findCamera(cameraId);
    if (!camera)
        return {};
    Camera::CCameraSnapshot snapshot = static_cast<const CCameraInfo &>(*camera).getSnapshot();
    if (const std::optional<int> percent = d->enumeration->getProgressElsewhere(cameraId))
        snapshot.statusReason = tr("being updated (%1 %)").arg(*percent);
    return snapshot;
}

ECameraActivity CCameraPool::getActivity(const QString &cameraId) const
{
    const ECameraActivity activity = d->activities->get(cameraId);
    return activity == ECameraActivity::Idle
            && getPresence(cameraId) == ECameraPresence::InUseElsewhere
        ? ECameraActivity::InUseElsewhere
        : activity;
}

bool CCameraPool::startAcquisition(const QString &cameraId, QString *error)
{
    if (getActivity(cameraId) == ECameraActivity::Recording)
        return true;
    return beginStream(cameraId, ECameraActivity::Acquiring, error);
}

void CCameraPool::stopAcquisition(const QString &cameraId)
{
    const ECameraActivity activity = d->activities->get(cameraId);
    d->restarts.remove(cameraId);
    d->lost.remove(cameraId);
    if (activity != ECameraActivity::Acquiring && activity != ECameraActivity::Recording)
        return;
    d->streams.setFolder(cameraId, {});
    d->streams.end(cameraId);
}

Stream::CCameraStream *CCameraPool::findStream(const QString &cameraId) const
{
    return d->streams.findStream(cameraId);
}

bool CCameraPool::startRecording(const QString &cameraId, const QString &folder, QString *error)
{
    if (!QFileInfo(folder).isDir()) {
        setError(error,
                 tr("The folder \"%1\" does not exist; choose another one.")
                     .arg(QDir::toNativeSeparators(folder)));
        return false;
    }
    if (!beginStream(cameraId, ECameraActivity::Recording, error))
        return false;
    d->streams.setFolder(cameraId, QDir(folder).absolutePath());
    return true;
}

void CCameraPool::stopRecording(const QString &cameraId)
{
    if (d->activities->get(cameraId) != ECameraActivity::Recording)
        return;
    d->streams.setFolder(cameraId, {});
    d->activities->begin(cameraId, ECameraActivity::Acquiring);
}

void CCameraPool::setStartsLocked(bool locked)
{
    if (d->startsLocked == locked)
        return;
    d->startsLocked = locked;
    emit startsLockedChanged();
}

bool CCameraPool::isUpdateRunning() const
{
    return d->activities->isUpdateRunning();
}

const Camera::CCameraKinds &CCameraPool::getKinds() const
{
    return d->kinds;
}

void CCameraPool::onActivityChanged(const QString &cameraId)
{
    emit activityChanged(cameraId);
    // This call comes late: updates may have begun and ended since the change that it reports.
    const bool running = isUpdateRunning();
    const int updateCount = d->activities->getUpdateCount();
    const bool hasEnded = !running && (d->updateRunning || updateCount != d->updateCount);
    const bool hasChanged = running != d->updateRunning;
    d->updateRunning = running;
    d->updateCount = updateCount;
    if (hasEnded)
        d->enumeration->onUpdatesEnded();
    if (hasChanged)
        emit updateRunningChanged(running);
}

void CCameraPool::onCameraStateChanged(const QString &cameraId)
{
    const ECameraActivity activity = d->activities->get(cameraId);
    if (getPresence(cameraId) == ECameraPresence::Absent && !d->lost.contains(cameraId)
        && (activity == ECameraActivity::Acquiring || activity == ECameraActivity::Recording)) {
        stopAcquisition(cameraId);
        d->lost.insert(cameraId, QDeadlineTimer(RETURN_TIME));
        d->lostTimer.start();
        emit streamFailed(cameraId,
                          tr("Camera %1 no longer answers; acquisition has stopped.")
                              .arg(getDisplayName(cameraId)));
    }
    emit activityChanged(cameraId);
}

void CCameraPool::onRecordingFailed(const QString &cameraId, const QString &cause)
{
    stopRecording(cameraId);
    emit streamFailed(
        cameraId,
        tr("The recording of camera %1 has ended: %2.").arg(getDisplayName(cameraId), cause));
}

QString CCameraPool::getStartObstacle(const QString &cameraId) const
{
    const QString name = getDisplayName(cameraId);
    if (d->startsLocked)
        return tr("Camera %1 cannot be started while the firmware updater is open.").arg(name);
    const ICameraKind *const kind = findKind(cameraId);
    if (!kind || !d->hasWorker)
        return tr("Camera %1 has no images here.").arg(name);
    if (kind->getPresence(cameraId) == ECameraPresence::Absent)
        return tr("Camera %1 does not answer; check its cable.").arg(name);
    const ECameraActivity activity = getActivity(cameraId);
    if (activity == ECameraActivity::InUseElsewhere)
        return tr("Camera %1 is in use by another application.").arg(name);
    if (activity == ECameraActivity::Updating || d->enumeration->getProgressElsewhere(cameraId))
        return tr("Camera %1 is being updated.").arg(name);
    return {};
}

bool CCameraPool::beginStream(const QString &cameraId, ECameraActivity activity, QString *error)
{
    QString obstacle = getStartObstacle(cameraId);
    // An update may begin on its own thread at any time.
    if (obstacle.isEmpty() && d->activities->begin(cameraId, activity) == ECameraActivity::Updating)
        obstacle = tr("Camera %1 is being updated.").arg(getDisplayName(cameraId));
    if (!obstacle.isEmpty()) {
        setError(error, obstacle);
        return false;
    }
    d->lost.remove(cameraId);
    // It may be on its way out, and cannot be had before it is.
    if (d->streams.findStream(cameraId))
        d->restarts.insert(cameraId);
    else
        d->streams.start(cameraId, findRemote(cameraId));
    return true;
}

void CCameraPool::onStreamEnded(const QString &cameraId, const Text::CErrorText &error)
{
    if (error.isEmpty() && d->restarts.remove(cameraId)) {
        d->streams.start(cameraId, findRemote(cameraId));
        // findStream() gives another one from now on.
        emit activityChanged(cameraId);
        return;
    }
    d->activities->end(cameraId);
    if (error.isEmpty())
        return;
    // Who has been told once is not told of each look for the camera.
    if (!d->lost.contains(cameraId)) {
        d->lost.insert(cameraId, QDeadlineTimer(RETURN_TIME));
        emit streamFailed(cameraId, tr("%1.").arg(error.getLocalized()));
    }
    d->lostTimer.start();
}

void CCameraPool::lookForLost()
{
    for (auto camera = d->lost.begin(); camera != d->lost.end();) {
        if (camera->hasExpired())
            camera = d->lost.erase(camera);
        else
            ++camera;
    }
    const QStringList cameraIds = d->lost.keys();
    for (const QString &cameraId : cameraIds) {
        const QDeadlineTimer deadline = d->lost.value(cameraId);
        // The last attempt may not have ended yet.
        if (d->streams.findStream(cameraId))
            continue;
        if (beginStream(cameraId, ECameraActivity::Acquiring, nullptr))
            d->lost.insert(cameraId, deadline);
    }
    if (d->lost.isEmpty())
        d->lostTimer.stop();
}

void CCameraPool::stopAllCameras()
{
    d->restarts.clear();
    d->lost.clear();
    d->streams.endAll(QDeadlineTimer(END_TIME));
    // "Stop all cameras" means the other applications' acquisition as well.
    for (const std::unique_ptr<ICameraKind> &kind : d->kinds)
        kind->freeCameras();
}

const ICameraKind *CCameraPool::findKind(const QString &cameraId) const
{
    for (const std::unique_ptr<ICameraKind> &kind : d->kinds) {
        if (kind->getPresence(cameraId) != ECameraPresence::Unknown)
            return kind.get();
    }
    return nullptr;
}

ECameraPresence CCameraPool::getPresence(const QString &cameraId) const
{
    const ICameraKind *const kind = findKind(cameraId);
    return kind ? kind->getPresence(cameraId) : ECameraPresence::Unknown;
}

QString CCameraPool::getDisplayName(const QString &cameraId) const
{
    const Plugin::CameraPool::CameraInfoPtr camera = d->enumeration->findCamera(cameraId);
    return camera ? camera->getDisplayName() : cameraId;
}

} // namespace Viewer::CameraPool
