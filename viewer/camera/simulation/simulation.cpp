#include "simulation.h"

#include "cameradescription.h"
#include "firmwarestatefile.h"
#include "simulatedcamera.h"
#include "simulatedcameradevice.h"
#include "simulationnotifier.h"

#include <QHash>

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace Viewer::Camera::Simulation {

// Layers are asked side by side; the slowest one counts.
static constexpr std::chrono::milliseconds EnumerationDuration(150);

struct CSimulation::CPrivate
{
    struct CLayer
    {
        QString id;
        QString displayName;
        QVector<std::shared_ptr<CSimulatedCamera>> cameras;
    };

    [[nodiscard]] std::shared_ptr<CSimulatedCamera> find(const QString &cameraId) const
    {
        return index.value(cameraId);
    }

    // Layers and index do not change after construction, so that any thread may read them.
    QVector<CLayer> layers;
    QHash<QString, std::shared_ptr<CSimulatedCamera>> index;
    std::shared_ptr<CFirmwareStateFile> stateFile;
    std::shared_ptr<CSimulationNotifier> notifier = std::make_shared<CSimulationNotifier>();
    double speedFactor = 1.0;

    std::mutex cancelMutex;
    std::condition_variable cancelCondition;
    bool cancelled = false;
};

CSimulation::CSimulation(const CCameraDescription &description, const QString &stateFile,
                         double speedFactor, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<CPrivate>())
{
    d->stateFile = std::make_shared<CFirmwareStateFile>(stateFile);
    d->speedFactor = speedFactor;
    for (const CLayerDescription &layer : description.layers) {
        CPrivate::CLayer simulated{layer.id, layer.displayName, {}};
        simulated.cameras.reserve(layer.cameras.size());
        for (const CCameraDescriptionEntry &entry : layer.cameras) {
            const auto camera
                = std::make_shared<CSimulatedCamera>(entry, speedFactor, d->stateFile, d->notifier);
            simulated.cameras.append(camera);
            d->index.insert(entry.camera.id, camera);
        }
        d->layers.append(simulated);
    }
    // Cameras report from the threads of updates, and also from within calls of this object.
    d->notifier->setListener([this](const QString &cameraId) {
        QMetaObject::invokeMethod(
            this,
            [this, cameraId] {
                emit cameraStateChanged(cameraId);
                emit camerasChanged();
            },
            Qt::QueuedConnection);
    });
}

CSimulation::~CSimulation()
{
    d->notifier->setListener({});
}

QVector<CSimulatedCameraState> CSimulation::getCameras() const
{
    QVector<CSimulatedCameraState> states;
    states.reserve(d->index.size());
    for (const CPrivate::CLayer &layer : qAsConst(d->layers)) {
        for (const std::shared_ptr<CSimulatedCamera> &camera : layer.cameras) {
            const CCameraSnapshot &described = camera->getDescription().camera;
            states.append(
                {described.id, described.displayName, camera->isPlugged(), camera->isBusy()});
        }
    }
    return states;
}

void CSimulation::plugIn(const QString &cameraId)
{
    if (const auto camera = d->find(cameraId))
        camera->setPlugged(true);
}

void CSimulation::unplug(const QString &cameraId)
{
    if (const auto camera = d->find(cameraId))
        camera->setPlugged(false);
}

bool CSimulation::hasCamera(const QString &cameraId) const
{
    return d->find(cameraId) != nullptr;
}

bool CSimulation::isPlugged(const QString &cameraId) const
{
    const auto camera = d->find(cameraId);
    return camera && camera->isPlugged();
}

void CSimulation::setBusy(const QString &cameraId, bool busy)
{
    if (const auto camera = d->find(cameraId))
        camera->setBusy(busy);
}

bool CSimulation::isBusy(const QString &cameraId) const
{
    const auto camera = d->find(cameraId);
    return camera && camera->isBusy();
}

std::unique_ptr<ICameraDevice> CSimulation::createDevice(const QString &cameraId)
{
    const auto camera = d->find(cameraId);
    if (!camera)
        return nullptr;
    return std::make_unique<CSimulatedCameraDevice>(camera);
}

QVector<CTransportLayerSnapshot> CSimulation::enumerate()
{
    {
        std::unique_lock lock(d->cancelMutex);
        const auto duration = std::chrono::duration_cast<std::chrono::microseconds>(
            std::chrono::duration<double, std::milli>(EnumerationDuration) / d->speedFactor);
        d->cancelCondition.wait_for(lock, duration, [this] { return d->cancelled; });
        if (d->cancelled)
            return {};
    }
    QVector<CTransportLayerSnapshot> result;
    for (const CPrivate::CLayer &layer : qAsConst(d->layers)) {
        CTransportLayerSnapshot snapshot{layer.id, layer.displayName, {}};
        snapshot.cameras.reserve(layer.cameras.size());
        for (const std::shared_ptr<CSimulatedCamera> &camera : layer.cameras) {
            if (const std::optional<CCameraSnapshot> found = camera->getSnapshot())
                snapshot.cameras.append(*found);
        }
        result.append(snapshot);
    }
    return result;
}

void CSimulation::cancel()
{
    {
        const std::lock_guard lock(d->cancelMutex);
        d->cancelled = true;
    }
    d->cancelCondition.notify_all();
}

} // namespace Viewer::Camera::Simulation
