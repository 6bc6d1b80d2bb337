#include "genicam.h"

#include "genicamdevice.h"
#include "genicamkind.h"
#include "genicamstream.h"
#include "logging.h"
#include "networksearch.h"
#include "unicastdiscovery.h"
#include "usbsearch.h"

#include "viewer/text/errortext.h"

#include "camerapool/transportlayertypes.h"

#include <QSet>

#include <arv.h>

namespace Viewer::Camera::GenICam {

using Text::CErrorText;

/// Two cameras say that they are the same one: nobody can tell which one an update would reach.
static constexpr qint32 AMBIGUOUS_IDENTITY_STATUS = 1001;
/// The system keeps this user from opening the camera.
static constexpr qint32 FORBIDDEN_STATUS = 1003;

namespace {

/// A real camera is what it is, whichever process talks to it.
class CHandle : public ICameraHandle
{
public:
    explicit CHandle(const QCborMap &description)
        : m_description(description)
    {
    }
    [[nodiscard]] QCborMap describe() const override { return m_description; }
    void begin() override { }
    [[nodiscard]] bool isLost() const override { return false; }
    void end(const QCborMap &) override { }

private:
    const QCborMap m_description;
};

} // namespace

std::unique_ptr<ICameraKind> makeKind()
{
    return std::make_unique<CGenICam>();
}

static constexpr int SEARCH_INTERVAL = 5000; // milliseconds

CGenICam::CGenICam(const CSearchOptions &options, QObject *parent)
    : ICameraKind(parent)
    , m_options(options)
    , m_searchesNetwork(options.searchesNetwork)
{
}

CGenICam::~CGenICam() = default;

QString CGenICam::getName() const
{
    return QStringLiteral("genicam");
}

std::unique_ptr<ICameraHandle> CGenICam::createHandle(const QString &cameraId) const
{
    const std::lock_guard lock(m_mutex);
    const auto camera = m_found.constFind(cameraId);
    if (camera == m_found.constEnd())
        return nullptr;
    return std::make_unique<CHandle>(camera->toCbor());
}

std::unique_ptr<ICameraDevice> CGenICam::makeDevice(const QCborMap &description)
{
    const std::optional<CFoundCamera> camera = CFoundCamera::fromCbor(description);
    return camera ? std::make_unique<CGenICamDevice>(*camera) : nullptr;
}

std::unique_ptr<ICameraStream> CGenICam::makeStream(const QCborMap &description)
{
    const std::optional<CFoundCamera> camera = CFoundCamera::fromCbor(description);
    return camera ? std::make_unique<CGenICamStream>(*camera) : nullptr;
}

QVector<CommandLine::COption> CGenICam::getOptions()
{
    return getSearchOptions(m_options);
}

void CGenICam::start()
{
    m_searchesNetwork = m_searchesNetwork || m_options.searchesNetwork;
    connect(&m_searchTimer, &QTimer::timeout, this, [this] {
        if (m_searchesNetwork)
            Q_EMIT camerasChanged();
    });
    m_searchTimer.start(SEARCH_INTERVAL);
    connect(&m_usbWatcher, &CUsbWatcher::devicesChanged, this, [this] {
        m_hasUsbChanged = true;
        if (m_searchesNetwork)
            Q_EMIT camerasChanged();
    });
    m_usbWatcher.start();
}

QVector<Text::CLibraryVersion> CGenICam::getLibraries() const
{
    const QString version = QStringLiteral("%1.%2.%3");
    return {{QStringLiteral("Aravis"),
             version.arg(ARAVIS_MAJOR_VERSION).arg(ARAVIS_MINOR_VERSION).arg(ARAVIS_MICRO_VERSION),
             version.arg(arv_get_major_version())
                 .arg(arv_get_minor_version())
                 .arg(arv_get_micro_version())}};
}

QVector<CCameraSwitch> CGenICam::getSwitches()
{
    CCameraSwitch search{
        QStringLiteral("searchNetwork"), {}, tr("Search the &network for cameras")};
    search.isOn = m_searchesNetwork;
    search.isRemembered = true;
    search.set = [this](bool on) {
        m_searchesNetwork = on;
        Q_EMIT refreshWanted();
    };
    return {search};
}

ECameraPresence CGenICam::getPresence(const QString &cameraId) const
{
    const std::lock_guard lock(m_mutex);
    return m_found.contains(cameraId) ? ECameraPresence::Present : ECameraPresence::Unknown;
}

std::unique_ptr<ICameraDevice> CGenICam::createDevice(const QString &cameraId)
{
    const std::lock_guard lock(m_mutex);
    const auto camera = m_found.constFind(cameraId);
    if (camera == m_found.constEnd())
        return nullptr;
    return std::make_unique<CGenICamDevice>(*camera);
}

QVector<CFoundCamera> CGenICam::findOnEthernet(bool searches) const
{
    QVector<CFoundCamera> found = discoverUnicast(m_options.addresses);
    if (!searches || m_isCanceled)
        return found;

    QSet<QString> addresses;
    for (const CFoundCamera &camera : qAsConst(found))
        addresses.insert(camera.address);
    const QVector<CFoundCamera> searched = searchNetwork();
    for (const CFoundCamera &camera : searched) {
        if (!addresses.contains(camera.address))
            found.append(camera);
    }
    return found;
}

QVector<CTransportLayerSnapshot> CGenICam::enumerate()
{
    if (m_isCanceled)
        return {};
    const bool searches = m_searchesNetwork;
    // Who has just plugged in a camera need not wait for those on the network, which have been
    // searched for a moment ago.
    if (!m_hasUsbChanged.exchange(false) || !searches || m_ethernetDeadline.hasExpired()) {
        m_onEthernet = findOnEthernet(searches);
        m_ethernetDeadline.setRemainingTime(searches ? SEARCH_INTERVAL : 0);
    }
    QVector<CFoundCamera> found = m_onEthernet;
    if (searches)
        found += findUsbCameras();
    {
        const std::lock_guard lock(m_mutex);
        m_identities.assign(found);
        m_found.clear();
        for (const CFoundCamera &camera : qAsConst(found))
            m_found.insert(camera.id, camera);
    }

    for (const CFoundCamera &camera : qAsConst(found))
        qCDebug(genICamLog).noquote()
            << "found" << camera.id << "at" << camera.address << camera.hardwareAddress << "version"
            << camera.version << (camera.isAmbiguous ? "with a twin" : "");

    // Named unlike the simulation's layers, which may stand beside them.
    CTransportLayerSnapshot ethernet{QString::fromLatin1(Plugin::CameraPool::TLTypeGigE),
                                     QStringLiteral("GigE Vision (network)"),
                                     {}};
    CTransportLayerSnapshot usb{QString::fromLatin1(Plugin::CameraPool::TLTypeUSB),
                                QStringLiteral("USB3 Vision (USB)"),
                                {}};
    for (const CFoundCamera &camera : qAsConst(found)) {
        CCameraSnapshot snapshot;
        snapshot.id = camera.id;
        snapshot.displayName = camera.getDisplayName();
        snapshot.modelName = camera.model;
        snapshot.serialNumber = camera.serialNumber;
        snapshot.deviceVersion = camera.version;
        snapshot.firmwareVersion = camera.version;
        if (camera.transport == ETransport::Ethernet) {
            snapshot.ipAddress = camera.address;
            snapshot.macAddress = camera.hardwareAddress;
        }
        if (camera.isAmbiguous) {
            snapshot.statusCode = AMBIGUOUS_IDENTITY_STATUS;
            snapshot.statusReason
                = CErrorText::tr("same serial number as another camera").getLocalized();
        } else if (camera.isForbidden) {
            snapshot.statusCode = FORBIDDEN_STATUS;
            snapshot.statusReason
                = CErrorText::tr("no right to open it: the rule %1 for udev is missing")
                      .arg(getUsbRuleName())
                      .getLocalized();
        }
        (camera.transport == ETransport::Ethernet ? ethernet : usb).cameras.append(snapshot);
    }
    QVector<CTransportLayerSnapshot> layers;
    if (searches || !m_options.addresses.isEmpty())
        layers.append(ethernet);
    if (searches)
        layers.append(usb);
    return layers;
}

void CGenICam::cancel()
{
    m_isCanceled = true;
}

} // namespace Viewer::Camera::GenICam
