#pragma once

#include <QCborMap>
#include <QString>

#include <optional>

namespace Viewer::Camera::GenICam {

enum class ETransport {
    Ethernet,
    Usb,
};

/// Who a camera is and where it is to be reached, as its answer to a search says; each text on one
/// visible line, since a camera may call itself anything.
struct CFoundCamera
{
    ETransport transport = ETransport::Ethernet;
    QString
        address; ///< IPv4 address; on USB bus and device, "001/017", new whenever it is plugged in
    QString hardwareAddress; ///< MAC address; on USB the maker's unique number; empty: unknown
    QString vendor;
    QString model;
    QString version; ///< empty: the camera has to be opened to tell
    QString serialNumber;
    QString userName; ///< given by the user; may be empty
    QString id; ///< by CCameraIdentities
    bool isAmbiguous = false; ///< another camera says that it is the same one
    bool isForbidden = false; ///< this user has no right to open it
    bool isDescriptionTrusted = false; ///< the library gets it unjudged: only tests ask for that

    /// For another process, which decides on its own whom it trusts.
    [[nodiscard]] QCborMap toCbor() const;
    /// Nothing: not what toCbor() gives.
    [[nodiscard]] static std::optional<CFoundCamera> fromCbor(const QCborMap &map);

    /// Which camera it says it is: the same wherever it is found, and meant to be no other one's.
    [[nodiscard]] QString getIdentity() const
    {
        const QString transportName
            = transport == ETransport::Ethernet ? QStringLiteral("GEV") : QStringLiteral("U3V");
        return QStringLiteral("%1:%2:%3:%4").arg(transportName, vendor, model, serialNumber);
    }

    /// Whether @p other is this camera, as far as one can tell.
    [[nodiscard]] bool isSameAs(const CFoundCamera &other) const
    {
        return getIdentity() == other.getIdentity()
            && (hardwareAddress == other.hardwareAddress || hardwareAddress.isEmpty()
                || other.hardwareAddress.isEmpty());
    }

    /// What the user reads: the user's own name for the camera, else what tells it from others.
    [[nodiscard]] QString getDisplayName() const
    {
        return userName.isEmpty() ? QStringLiteral("%1 (%2)").arg(serialNumber, model) : userName;
    }

    /// What messages call the camera: everything that helps to find it in a hall.
    [[nodiscard]] QString getFullName() const
    {
        const QString place
            = transport == ETransport::Ethernet ? address : QStringLiteral("on USB");
        return userName.isEmpty()
            ? QStringLiteral("%1 (%2, %3)").arg(serialNumber, model, place)
            : QStringLiteral("%1 (%2, %3, %4)").arg(userName, model, serialNumber, place);
    }
};

} // namespace Viewer::Camera::GenICam
