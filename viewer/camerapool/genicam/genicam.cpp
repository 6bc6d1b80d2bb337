#include "genicamdevice.h"

#include "genicam.h"
#include "networksearch.h"
#include "unicastdiscovery.h"

#include "viewer/text/errortext.h"

#include "camerapool/transportlayertypes.h"

#include <QSet>

namespace Viewer::CameraPool::GenICam {

using Text::CErrorText;
/// Two cameras say that they are the same one: nobody can tell which one an update would reach.
static constexpr qint32 AmbiguousIdentityStatus = 1001;

CGenICam::CGenICam(const QVector<QHostAddress> &addresses, bool searchesNetwork)
    : m_addresses(addresses)
    , m_searchesNetwork(searchesNetwork)
{
}

CGenICam::~CGenICam() = default;

void CGenICam::setSearchesNetwork(bool searches)
{
    m_searchesNetwork = searches;
}

bool CGenICam::searchesNetwork() const
{
    return m_searchesNetwork;
}

std::unique_ptr<ICameraDevice> CGenICam::createDevice(const QString &cameraId)
{
    const std::lock_guard lock(m_mutex);
    const auto camera = m_found.constFind(cameraId);
    if (camera == m_found.constEnd())
        return nullptr;
    return std::make_unique<CGenICamDevice>(*camera);
}

QVector<CFoundCamera> CGenICam::find(bool searches) const
{
    QVector<CFoundCamera> found = discoverUnicast(m_addresses);
    if (!searches || m_isCanceled)
        return found;

    QSet<QString> addresses;
    for (const CFoundCamera &camera : qAsConst(found))
        addresses.insert(camera.address);
    const QVector<CFoundCamera> searched = searchNetwork();
    for (const CFoundCamera &camera : searched) {
        if (camera.transport == ETransport::Usb || !addresses.contains(camera.address))
            found.append(camera);
    }
    return found;
}

QVector<CTransportLayerSnapshot> CGenICam::enumerate()
{
    if (m_isCanceled)
        return {};
    const bool searches = m_searchesNetwork;
    QVector<CFoundCamera> found = find(searches);

    QHash<QString, int> counts;
    for (const CFoundCamera &camera : qAsConst(found))
        ++counts[camera.getId()];

    // Named unlike the simulation's layers, which may stand beside them.
    CTransportLayerSnapshot ethernet{QString::fromLatin1(Plugin::CameraPool::TLTypeGigE),
                                     QStringLiteral("GigE Vision (network)"),
                                     {}};
    CTransportLayerSnapshot usb{QString::fromLatin1(Plugin::CameraPool::TLTypeUSB),
                                QStringLiteral("USB3 Vision (USB)"),
                                {}};
    QHash<QString, CFoundCamera> byId;
    for (CFoundCamera &camera : found) {
        CCameraSnapshot snapshot;
        snapshot.id = camera.getId();
        snapshot.displayName = camera.getDisplayName();
        snapshot.modelName = camera.model;
        snapshot.serialNumber = camera.serialNumber;
        snapshot.deviceVersion = camera.version;
        snapshot.firmwareVersion = camera.version;
        if (counts.value(snapshot.id) > 1) {
            camera.isAmbiguous = true;
            snapshot.statusCode = AmbiguousIdentityStatus;
            snapshot.statusReason
                = CErrorText::tr("same serial number as another camera").getLocalized();
            // On USB there is no address, but still a place in the list.
            snapshot.id += QLatin1Char('@')
                + (camera.address.isEmpty() ? QString::number(usb.cameras.size()) : camera.address);
        }
        byId.insert(snapshot.id, camera);
        (camera.transport == ETransport::Ethernet ? ethernet : usb).cameras.append(snapshot);
    }
    {
        const std::lock_guard lock(m_mutex);
        m_found = byId;
    }
    QVector<CTransportLayerSnapshot> layers;
    if (searches || !m_addresses.isEmpty())
        layers.append(ethernet);
    if (searches)
        layers.append(usb);
    return layers;
}

void CGenICam::cancel()
{
    m_isCanceled = true;
}

} // namespace Viewer::CameraPool::GenICam
