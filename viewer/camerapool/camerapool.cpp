#include "camerapool.h"

#include "cameraenumerationservice.h"
#include "camerainfo.h"
#include "camerastatusservice.h"
#include "camerastreamcontrolservice.h"
#include "devicefirmwareupdateservice.h"
#include "framestream.h"
#include "viewer/camera/cameraactivities.h"
#include "viewer/camera/combinedcameras.h"
#include "viewer/update/errortranslator.h"
#ifdef WITH_ARAVIS
#include "viewer/camera/genicam/genicam.h"
#endif
#include "viewer/camera/simulation/cameradescriptionreader.h"
#include "viewer/camera/simulation/firmwarestatefile.h"
#include "viewer/camera/simulation/simulation.h"

#include "core/baseexception.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>

#include <cmath>

namespace Viewer::CameraPool {

using Camera::Simulation::CCameraDescription;
using Camera::Simulation::CCameraDescriptionReader;
using Camera::Simulation::CSimulation;
using Core::Service::IService;

static CCameraDescription readDescription(const CCameraPoolOptions &options)
{
    if (!std::isfinite(options.speedFactor) || options.speedFactor <= 0.0)
        throw Core::Exception::BaseException(
            QStringLiteral("The simulation's speed must be a number greater than 0"));
    if (!options.simulates)
        return {};
    return options.descriptionFile.isEmpty()
        ? CCameraDescriptionReader::readBuiltIn()
        : CCameraDescriptionReader::readFile(options.descriptionFile);
}

static void setError(QString *error, const QString &text)
{
    if (error)
        *error = text;
}

struct CCameraPool::CPrivate
{
    explicit CPrivate(const CCameraPoolOptions &options)
        : simulation(readDescription(options), getStateFile(options), options.speedFactor)
#ifdef WITH_ARAVIS
        , genICam(options.cameraAddresses, options.searchesNetwork)
#endif
    {
        cameras.add(simulation);
#ifdef WITH_ARAVIS
        cameras.add(genICam);
#endif
    }

    static QString getStateFile(const CCameraPoolOptions &options)
    {
        if (options.resetCameras)
            Camera::Simulation::CFirmwareStateFile(options.stateFile).clear();
        return options.stateFile;
    }

    // The order matters: who is named first is used by those that follow.
    CSimulation simulation;
#ifdef WITH_ARAVIS
    Camera::GenICam::CGenICam genICam;
#endif
    Camera::CCombinedCameras cameras;
    const std::shared_ptr<Camera::CCameraActivities> activities
        = std::make_shared<Camera::CCameraActivities>();
    const std::shared_ptr<Update::CErrorTranslator> errors
        = std::make_shared<Update::CErrorTranslator>();
    CFrameStream stream;
    QSharedPointer<CCameraEnumerationService> enumeration;
    QList<QSharedPointer<IService>> services;
    bool startsLocked = false;
    bool updateRunning = false; // as announced
    int updateCount = 0; // of the updates that have been reacted to
};

CCameraPool::CCameraPool(const CCameraPoolOptions &options, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<CPrivate>(options))
{
    d->enumeration.reset(new CCameraEnumerationService(d->cameras, d->activities));
    const auto getActivityOf = [this](const QString &cameraId) { return getActivity(cameraId); };
    const auto findCamera
        = [service = d->enumeration.data()](const QString &id) { return service->findCamera(id); };
    d->services
        = {d->enumeration, QSharedPointer<IService>(new CCameraStatusService(getActivityOf)),
           QSharedPointer<IService>(new CCameraStreamControlService([this] { stopAllCameras(); })),
           QSharedPointer<IService>(
               new CDeviceFirmwareUpdateService(d->cameras, findCamera, d->activities, d->errors))};

    connect(&d->simulation, &CSimulation::camerasChanged, d->enumeration.data(),
            &CCameraEnumerationService::onCamerasChanged);
    connect(&d->simulation, &CSimulation::cameraStateChanged, this,
            &CCameraPool::onCameraStateChanged);
    connect(&d->stream, &CFrameStream::frameReady, this, &CCameraPool::frameReady);
    connect(&d->stream, &CFrameStream::recordingFailed, this, &CCameraPool::onRecordingFailed);
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
    return camera ? static_cast<const CCameraInfo &>(*camera).getSnapshot()
                  : Camera::CCameraSnapshot();
}

Camera::ECameraActivity CCameraPool::getActivity(const QString &cameraId) const
{
    const Camera::ECameraActivity activity = d->activities->get(cameraId);
    return activity == Camera::ECameraActivity::Idle && d->simulation.isBusy(cameraId)
        ? Camera::ECameraActivity::InUseElsewhere
        : activity;
}

bool CCameraPool::startAcquisition(const QString &cameraId, QString *error)
{
    if (getActivity(cameraId) == Camera::ECameraActivity::Recording)
        return true;
    return beginStream(cameraId, Camera::ECameraActivity::Acquiring, error);
}

void CCameraPool::stopAcquisition(const QString &cameraId)
{
    const Camera::ECameraActivity activity = d->activities->get(cameraId);
    if (activity != Camera::ECameraActivity::Acquiring
        && activity != Camera::ECameraActivity::Recording)
        return;
    d->stream.stop(cameraId);
    d->activities->end(cameraId);
}

bool CCameraPool::startRecording(const QString &cameraId, const QString &folder, QString *error)
{
    if (!QFileInfo(folder).isDir()) {
        setError(error,
                 tr("The folder \"%1\" does not exist; choose another one.")
                     .arg(QDir::toNativeSeparators(folder)));
        return false;
    }
    if (!beginStream(cameraId, Camera::ECameraActivity::Recording, error))
        return false;
    d->stream.setFolder(cameraId, QDir(folder).absolutePath());
    return true;
}

void CCameraPool::stopRecording(const QString &cameraId)
{
    if (d->activities->get(cameraId) != Camera::ECameraActivity::Recording)
        return;
    d->stream.setFolder(cameraId, {});
    d->activities->begin(cameraId, Camera::ECameraActivity::Acquiring);
}

void CCameraPool::setStartsLocked(bool locked)
{
    d->startsLocked = locked;
}

bool CCameraPool::isUpdateRunning() const
{
    return d->activities->isUpdateRunning();
}

bool CCameraPool::canSearchNetwork()
{
#ifdef WITH_ARAVIS
    return true;
#else
    return false;
#endif
}

bool CCameraPool::searchesNetwork() const
{
#ifdef WITH_ARAVIS
    return d->genICam.searchesNetwork();
#else
    return false;
#endif
}

void CCameraPool::setSearchesNetwork(bool searches)
{
#ifdef WITH_ARAVIS
    d->genICam.setSearchesNetwork(searches);
    d->enumeration->refreshEnumeration();
#else
    Q_UNUSED(searches)
#endif
}

CSimulation &CCameraPool::getSimulation()
{
    return d->simulation;
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
    const Camera::ECameraActivity activity = d->activities->get(cameraId);
    if (!d->simulation.isPlugged(cameraId)
        && (activity == Camera::ECameraActivity::Acquiring
            || activity == Camera::ECameraActivity::Recording)) {
        stopAcquisition(cameraId);
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

bool CCameraPool::beginStream(const QString &cameraId, Camera::ECameraActivity activity,
                              QString *error)
{
    const QString name = getDisplayName(cameraId);
    if (d->startsLocked) {
        setError(error,
                 tr("Camera %1 cannot be started while the firmware updater is open.").arg(name));
        return false;
    }
    if (!d->simulation.hasCamera(cameraId)) {
        setError(
            error,
            tr("Camera %1 is a real camera; only its firmware can be updated here.").arg(name));
        return false;
    }
    if (!d->simulation.isPlugged(cameraId)) {
        setError(error, tr("Camera %1 does not answer; check its cable.").arg(name));
        return false;
    }
    if (getActivity(cameraId) == Camera::ECameraActivity::InUseElsewhere) {
        setError(error, tr("Camera %1 is in use by another application.").arg(name));
        return false;
    }
    if (d->activities->begin(cameraId, activity) == Camera::ECameraActivity::Updating) {
        setError(error, tr("Camera %1 is being updated.").arg(name));
        return false;
    }
    d->stream.start(cameraId);
    return true;
}

void CCameraPool::stopAllCameras()
{
    for (const Camera::Simulation::CSimulatedCameraState &camera : d->simulation.getCameras()) {
        stopAcquisition(camera.id);
        // "Stop all cameras" means the other applications' acquisition as well.
        d->simulation.setBusy(camera.id, false);
    }
}

QString CCameraPool::getDisplayName(const QString &cameraId) const
{
    const Plugin::CameraPool::CameraInfoPtr camera = d->enumeration->findCamera(cameraId);
    return camera ? camera->getDisplayName() : cameraId;
}

} // namespace Viewer::CameraPool
