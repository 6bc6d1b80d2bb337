#include "cameradescription.h"

#include "viewer/process/cborinteger.h"

namespace Viewer::Camera::Simulation {

namespace {

const QString UPLOAD_SPEED = QStringLiteral("uploadSpeed");
const QString STATUS_CODE = QStringLiteral("statusCode");

struct CTextField
{
    const char *name;
    QString CCameraSnapshot::*member;
};

const CTextField TEXT_FIELDS[] = {
    {"id", &CCameraSnapshot::id},
    {"displayName", &CCameraSnapshot::displayName},
    {"model", &CCameraSnapshot::modelName},
    {"serialNumber", &CCameraSnapshot::serialNumber},
    {"deviceVersion", &CCameraSnapshot::deviceVersion},
    {"firmwareVersion", &CCameraSnapshot::firmwareVersion},
};

struct CFaultField
{
    const char *name;
    bool CScriptedFaults::*member;
};

const CFaultField FAULT_FIELDS[] = {
    {"preconditionNotMet", &CScriptedFaults::preconditionNotMet},
    {"writeRefused", &CScriptedFaults::writeRefused},
    {"assertFails", &CScriptedFaults::assertFails},
    {"neverReturnsFromReset", &CScriptedFaults::neverReturnsFromReset},
    {"returnsLate", &CScriptedFaults::returnsLate},
    {"returnsWithOldVersion", &CScriptedFaults::returnsWithOldVersion},
};

struct CPlaceField
{
    const char *name;
    std::optional<qint64> CScriptedFaults::*member;
};

const CPlaceField PLACE_FIELDS[] = {
    {"uploadFailsAtByte", &CScriptedFaults::uploadFailsAtByte},
    {"vanishesAtByte", &CScriptedFaults::vanishesAtByte},
};

} // namespace

QCborMap CCameraDescriptionEntry::toCbor() const
{
    QCborMap map{{UPLOAD_SPEED, uploadSpeed}, {STATUS_CODE, camera.statusCode}};
    for (const CTextField &field : TEXT_FIELDS)
        map.insert(QString::fromLatin1(field.name), camera.*field.member);
    for (const CFaultField &field : FAULT_FIELDS)
        map.insert(QString::fromLatin1(field.name), faults.*field.member);
    for (const CPlaceField &field : PLACE_FIELDS) {
        if (faults.*field.member)
            map.insert(QString::fromLatin1(field.name), *(faults.*field.member));
    }
    return map;
}

std::optional<CCameraDescriptionEntry> CCameraDescriptionEntry::fromCbor(const QCborMap &map)
{
    CCameraDescriptionEntry entry;
    for (const CTextField &field : TEXT_FIELDS) {
        const QCborValue value = map.value(QString::fromLatin1(field.name));
        if (!value.isString())
            return std::nullopt;
        entry.camera.*field.member = value.toString();
    }
    for (const CFaultField &field : FAULT_FIELDS)
        entry.faults.*field.member = map.value(QString::fromLatin1(field.name)).toBool();
    for (const CPlaceField &field : PLACE_FIELDS) {
        const QCborValue place = map.value(QString::fromLatin1(field.name));
        if (place.isInteger())
            entry.faults.*field.member = place.toInteger();
    }
    entry.camera.statusCode = static_cast<qint32>(Process::toInteger(map.value(STATUS_CODE), 0));
    entry.uploadSpeed = Process::toInteger(map.value(UPLOAD_SPEED), 0);
    if (entry.uploadSpeed < 1)
        return std::nullopt;
    return entry;
}

} // namespace Viewer::Camera::Simulation
