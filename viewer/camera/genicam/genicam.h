#pragma once

#include "cameraidentities.h"
#include "foundcamera.h"

#include "viewer/camera/icameradevicefactory.h"
#include "viewer/camera/icameraenumerator.h"

#include <QHash>
#include <QHostAddress>
#include <QVector>

#include <atomic>
#include <mutex>

namespace Viewer::Camera::GenICam {

/// Real cameras, GigE Vision and USB3 Vision. Nothing is sent to anybody but the given
/// addresses unless searching the network is asked for.
class CGenICam : public ICameraDeviceFactory, public ICameraEnumerator
{
public:
    /// @p addresses are asked at each enumeration, whether the network is searched or not.
    CGenICam(const QVector<QHostAddress> &addresses, bool searchesNetwork);
    ~CGenICam() override;

    /// Takes effect at the next enumeration. Any thread.
    void setSearchesNetwork(bool searches);
    [[nodiscard]] bool searchesNetwork() const;

    // ICameraDeviceFactory
    [[nodiscard]] std::unique_ptr<ICameraDevice> createDevice(const QString &cameraId) override;

    // ICameraEnumerator
    [[nodiscard]] QVector<CTransportLayerSnapshot> enumerate() override;
    void cancel() override;

private:
    [[nodiscard]] QVector<CFoundCamera> find(bool searches) const;

    const QVector<QHostAddress> m_addresses;
    std::atomic<bool> m_searchesNetwork;
    std::atomic<bool> m_isCanceled{false};

    mutable std::mutex m_mutex; ///< guards what follows
    CCameraIdentities m_identities;
    QHash<QString, CFoundCamera> m_found; ///< by the last enumeration, by id
};

} // namespace Viewer::Camera::GenICam
