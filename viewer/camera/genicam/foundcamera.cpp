#include "foundcamera.h"

#include "viewer/process/cborinteger.h"

#include <QHostAddress>

namespace Viewer::Camera::GenICam {

namespace {

const QString TRANSPORT = QStringLiteral("transport");
const QString IS_AMBIGUOUS = QStringLiteral("isAmbiguous");
const QString IS_FORBIDDEN = QStringLiteral("isForbidden");
const QString IS_DESCRIPTION_TRUSTED = QStringLiteral("isDescriptionTrusted");

struct CTextField
{
    const char *name;
    QString CFoundCamera::*member;
};

const CTextField TEXT_FIELDS[] = {
    {"address", &CFoundCamera::address},   {"hardwareAddress", &CFoundCamera::hardwareAddress},
    {"vendor", &CFoundCamera::vendor},     {"model", &CFoundCamera::model},
    {"version", &CFoundCamera::version},   {"serialNumber", &CFoundCamera::serialNumber},
    {"userName", &CFoundCamera::userName}, {"id", &CFoundCamera::id},
};

} // namespace

QCborMap CFoundCamera::toCbor() const
{
    QCborMap map{{TRANSPORT, static_cast<int>(transport)},
                 {IS_AMBIGUOUS, isAmbiguous},
                 {IS_FORBIDDEN, isForbidden}};
    for (const CTextField &field : TEXT_FIELDS)
        map.insert(QString::fromLatin1(field.name), this->*field.member);
    return map;
}

std::optional<CFoundCamera> CFoundCamera::fromCbor(const QCborMap &map)
{
    CFoundCamera camera;
    for (const CTextField &field : TEXT_FIELDS) {
        const QCborValue value = map.value(QString::fromLatin1(field.name));
        if (!value.isString())
            return std::nullopt;
        camera.*field.member = value.toString();
    }
    const qint64 transport = Process::toInteger(map.value(TRANSPORT), -1);
    const bool isEthernet = transport == static_cast<int>(ETransport::Ethernet);
    if (!isEthernet && transport != static_cast<int>(ETransport::Usb))
        return std::nullopt;
    if (isEthernet && QHostAddress(camera.address).protocol() != QAbstractSocket::IPv4Protocol)
        return std::nullopt;
    camera.transport = isEthernet ? ETransport::Ethernet : ETransport::Usb;
    camera.isAmbiguous = map.value(IS_AMBIGUOUS).toBool(true);
    camera.isForbidden = map.value(IS_FORBIDDEN).toBool(false);
    camera.isDescriptionTrusted = map.value(IS_DESCRIPTION_TRUSTED).toBool(false);
    return camera;
}

} // namespace Viewer::Camera::GenICam
