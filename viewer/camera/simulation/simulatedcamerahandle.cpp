#include "simulatedcamerahandle.h"

#include "firmwarestatefile.h"
#include "simulationnotifier.h"
#include "viewer/text/errortext.h"

namespace Viewer::Camera::Simulation {

// Beside the description of the camera itself.
static const QString SPEED = QStringLiteral("speed");
static const QString STATE_FILE = QStringLiteral("stateFile");
static const QString IS_PLUGGED = QStringLiteral("isPlugged");
static const QString IS_BUSY = QStringLiteral("isBusy");
static const QString FIRMWARE_VERSION = QStringLiteral("firmwareVersion");

CSimulatedCameraHandle::CSimulatedCameraHandle(const std::shared_ptr<CSimulatedCamera> &camera,
                                               double speedFactor, const QString &stateFile)
    : m_camera(camera)
    , m_speedFactor(speedFactor)
    , m_stateFile(stateFile)
{
}

CSimulatedCameraHandle::~CSimulatedCameraHandle()
{
    if (m_session != 0)
        m_camera->disconnect(m_session);
}

QCborMap CSimulatedCameraHandle::describe() const
{
    CCameraDescriptionEntry entry = m_camera->getDescription();
    entry.camera.firmwareVersion = m_camera->getFirmwareVersion();
    QCborMap map = entry.toCbor();
    map.insert(SPEED, m_speedFactor);
    map.insert(STATE_FILE, m_stateFile);
    map.insert(IS_PLUGGED, m_camera->isPlugged());
    map.insert(IS_BUSY, m_camera->isBusy());
    return map;
}

void CSimulatedCameraHandle::begin()
{
    // A camera that cannot be had now says so in the other process, in the words of a device.
    Text::CErrorText ignored;
    bool isInUse = false;
    m_session = m_camera->connect(ignored, isInUse);
}

bool CSimulatedCameraHandle::isLost() const
{
    return m_session != 0 && !m_camera->isConnected(m_session);
}

void CSimulatedCameraHandle::end(const QCborMap &state)
{
    const CSimulatedCamera::Session session = m_session;
    m_session = 0;
    if (session == 0)
        return;
    const QString version = state.value(FIRMWARE_VERSION).toString();
    if (!version.isEmpty())
        m_camera->takeFirmware(session, version);
    m_camera->disconnect(session);
    if (!state.value(IS_PLUGGED).toBool(true))
        m_camera->setPlugged(false);
}

std::shared_ptr<CSimulatedCamera> CSimulatedCameraHandle::makeCamera(const QCborMap &description,
                                                                     double slowestSpeed,
                                                                     double fastestSpeed)
{
    const std::optional<CCameraDescriptionEntry> entry
        = CCameraDescriptionEntry::fromCbor(description);
    const double speed = description.value(SPEED).toDouble();
    if (!entry || !(speed >= slowestSpeed && speed <= fastestSpeed))
        return nullptr;
    const auto camera = std::make_shared<CSimulatedCamera>(
        *entry, speed,
        std::make_shared<CFirmwareStateFile>(description.value(STATE_FILE).toString()),
        std::make_shared<CSimulationNotifier>());
    camera->setBusy(description.value(IS_BUSY).toBool());
    camera->setPlugged(description.value(IS_PLUGGED).toBool());
    return camera;
}

QCborMap CSimulatedCameraHandle::describeState(const CSimulatedCamera &camera)
{
    return {{FIRMWARE_VERSION, camera.getFirmwareVersion()}, {IS_PLUGGED, camera.isPlugged()}};
}

} // namespace Viewer::Camera::Simulation
