#include "simulation.h"

#include "cameradescription.h"
#include "cameradescriptionreader.h"
#include "firmwarestatefile.h"
#include "simulatedcamera.h"
#include "simulatedcameradevice.h"
#include "simulatedcamerahandle.h"
#include "simulatedcamerastream.h"
#include "simulationnotifier.h"
#include "viewer/commandline/takers.h"

#include <QDir>
#include <QHash>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>

namespace Viewer::Camera::Simulation {

static constexpr double SLOWEST_SPEED = 0.01;
static constexpr double FASTEST_SPEED = 10000.0;

// Layers are asked side by side; the slowest one counts.
static constexpr std::chrono::milliseconds ENUMERATION_DURATION(150);

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

    // Layers and index do not change once the simulation has started, so that any thread may read
    // them.
    QVector<CLayer> layers;
    QHash<QString, std::shared_ptr<CSimulatedCamera>> index;
    std::shared_ptr<CFirmwareStateFile> stateFile;
    std::shared_ptr<CSimulationNotifier> notifier = std::make_shared<CSimulationNotifier>();
    double speedFactor = 1.0;
    std::shared_ptr<CSimulatedCamera> made; ///< for an update in this process alone

    std::mutex cancelMutex;
    std::condition_variable cancelCondition;
    bool cancelled = false;
};

CSimulation::CSimulation(const CSimulationOptions &options, QObject *parent)
    : ICameraKind(parent)
    , m_options(options)
    , d(std::make_unique<CPrivate>())
{
}

CSimulation::~CSimulation()
{
    d->notifier->setListener({});
}

QString CSimulation::getName() const
{
    return QStringLiteral("simulation");
}

QVector<CommandLine::COption> CSimulation::getOptions()
{
    const auto takeSpeed = [this](const QString &text) {
        bool isNumber = false;
        m_askedSpeed = text.toDouble(&isNumber);
        return isNumber && *m_askedSpeed >= SLOWEST_SPEED && *m_askedSpeed <= FASTEST_SPEED;
    };
    return {
        {QStringLiteral("cameras"), tr("file"), tr("Simulate the cameras described in <file>."),
         CommandLine::takePath(m_options.descriptionFile)},
        {QStringLiteral("reset-cameras"),
         {},
         tr("Forget the firmware that earlier updates wrote to the simulated cameras."),
         CommandLine::takeSwitch(m_options.forgets)},
        {QStringLiteral("speed"), tr("n"),
         tr("Let the simulated cameras work <n> times as fast as real ones (default 1)."),
         takeSpeed, tr("The speed \"%1\" is not a number from 0.01 to 10000.")},
        {QStringLiteral("no-simulation"),
         {},
         tr("Leave out the simulated cameras."),
         CommandLine::takeSwitch(m_options.simulates, false)},
    };
}

void CSimulation::setDataFolder(const QString &folder)
{
    m_options.stateFile = QDir(folder).filePath(QStringLiteral("cameras.json"));
}

void CSimulation::prepareDemonstration()
{
    m_options.speedFactor = DEMONSTRATION_SPEED;
}

void CSimulation::start()
{
    d->speedFactor = m_askedSpeed.value_or(m_options.speedFactor);
    CCameraDescription description;
    if (m_options.simulates)
        description = m_options.descriptionFile.isEmpty()
            ? CCameraDescriptionReader::readBuiltIn()
            : CCameraDescriptionReader::readFile(m_options.descriptionFile);
    if (m_options.forgets)
        CFirmwareStateFile(m_options.stateFile).clear();
    d->stateFile = std::make_shared<CFirmwareStateFile>(m_options.stateFile);
    for (const CLayerDescription &layer : qAsConst(description.layers)) {
        CPrivate::CLayer simulated{layer.id, layer.displayName, {}};
        simulated.cameras.reserve(layer.cameras.size());
        for (const CCameraDescriptionEntry &entry : layer.cameras) {
            const auto camera = std::make_shared<CSimulatedCamera>(entry, d->speedFactor,
                                                                   d->stateFile, d->notifier);
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

QString CSimulation::getMenuTitle() const
{
    return m_options.simulates ? tr("&Simulation") : QString();
}

QVector<CCameraSwitch> CSimulation::getSwitches()
{
    QVector<CCameraSwitch> switches;
    for (const CPrivate::CLayer &layer : qAsConst(d->layers)) {
        for (const std::shared_ptr<CSimulatedCamera> &camera : layer.cameras) {
            const CCameraSnapshot &described = camera->getDescription().camera;
            CCameraSwitch plugged{QStringLiteral("plugged:") + described.id, described.displayName,
                                  tr("&Plugged in")};
            plugged.isOn = camera->isPlugged();
            plugged.set = [camera](bool on) { camera->setPlugged(on); };
            CCameraSwitch busy{QStringLiteral("busy:") + described.id, described.displayName,
                               tr("In &use elsewhere")};
            busy.isOn = camera->isBusy();
            busy.isEnabled = camera->isPlugged();
            busy.set = [camera](bool on) { camera->setBusy(on); };
            switches << plugged << busy;
        }
    }
    return switches;
}

ECameraPresence CSimulation::getPresence(const QString &cameraId) const
{
    const auto camera = d->find(cameraId);
    if (!camera)
        return ECameraPresence::Unknown;
    if (!camera->isPlugged())
        return ECameraPresence::Absent;
    return camera->isBusy() ? ECameraPresence::InUseElsewhere : ECameraPresence::Present;
}

std::unique_ptr<ICameraHandle> CSimulation::createHandle(const QString &cameraId) const
{
    const auto camera = d->find(cameraId);
    if (!camera)
        return nullptr;
    return std::make_unique<CSimulatedCameraHandle>(camera, d->speedFactor, m_options.stateFile);
}

std::unique_ptr<ICameraDevice> CSimulation::makeDevice(const QCborMap &description)
{
    d->made = CSimulatedCameraHandle::makeCamera(description, SLOWEST_SPEED, FASTEST_SPEED);
    return d->made ? std::make_unique<CSimulatedCameraDevice>(d->made) : nullptr;
}

std::unique_ptr<ICameraStream> CSimulation::makeStream(const QCborMap &description)
{
    d->made = CSimulatedCameraHandle::makeCamera(description, SLOWEST_SPEED, FASTEST_SPEED);
    return d->made ? std::make_unique<CSimulatedCameraStream>(d->made) : nullptr;
}

QCborMap CSimulation::describeMade() const
{
    return d->made ? CSimulatedCameraHandle::describeState(*d->made) : QCborMap();
}

double CSimulation::getSlownessOfMade() const
{
    return d->made ? std::max(1.0, 1.0 / d->made->getSpeedFactor()) : 1.0;
}

void CSimulation::loseMade()
{
    if (d->made)
        d->made->setPlugged(false);
}

void CSimulation::freeCameras()
{
    for (const CPrivate::CLayer &layer : qAsConst(d->layers)) {
        for (const std::shared_ptr<CSimulatedCamera> &camera : layer.cameras)
            camera->setBusy(false);
    }
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
            std::chrono::duration<double, std::milli>(ENUMERATION_DURATION) / d->speedFactor);
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
