#include "workerevent.h"

#include "workertask.h"

#include <limits>

namespace Viewer::Update {

using Plugin::CameraPool::EFirmwareUpdateStep;

static const QString PROTOCOL = QStringLiteral("protocol");
static const QString TYPE = QStringLiteral("event");
static const QString KIND = QStringLiteral("kind");
static const QString ESTIMATE = QStringLiteral("estimateMs");
static const QString PERCENT = QStringLiteral("percent");
static const QString DESCRIPTION = QStringLiteral("description");
static const QString ERROR_TEXT = QStringLiteral("error");
static const QString LOCALIZED_ERROR = QStringLiteral("localizedError");
static const QString HAS_WRITTEN = QStringLiteral("hasWritten");
static const QString VERSION = QStringLiteral("version");

QCborMap CWorkerEvent::toCbor() const
{
    QCborMap map{{TYPE, static_cast<int>(type)}, {HAS_WRITTEN, hasWritten}, {VERSION, version}};
    switch (type) {
    case EType::Hello:
        map.insert(PROTOCOL, CWorkerTask::PROTOCOL);
        break;
    case EType::StepBegun:
        map.insert(DESCRIPTION, description);
        Q_FALLTHROUGH();
    case EType::StepDone:
        map.insert(ESTIMATE, static_cast<qint64>(estimate.count()));
        map.insert(KIND, static_cast<int>(kind));
        break;
    case EType::StepProgressed:
        map.insert(PERCENT, percent);
        map.insert(KIND, static_cast<int>(kind));
        break;
    case EType::Failed:
        map.insert(ERROR_TEXT, error);
        map.insert(LOCALIZED_ERROR, localizedError);
        break;
    case EType::Done:
        break;
    }
    return map;
}

std::optional<CWorkerEvent> CWorkerEvent::fromCbor(const QCborMap &map)
{
    const qint64 type = map.value(TYPE).toInteger(-1);
    const qint64 kind = map.value(KIND).toInteger(static_cast<int>(EFirmwareUpdateStep::Invalid));
    const qint64 estimate = map.value(ESTIMATE).toInteger();
    CWorkerEvent event;
    event.percent = map.value(PERCENT).toDouble();
    if (type < 0 || type > static_cast<int>(EType::Failed) || kind < 0
        || kind > static_cast<int>(EFirmwareUpdateStep::Invalid) || estimate < 0
        || estimate > std::numeric_limits<int>::max()
        || !(event.percent >= 0 && event.percent <= 100))
        return std::nullopt;
    event.type = static_cast<EType>(type);
    event.kind = static_cast<EFirmwareUpdateStep>(kind);
    event.estimate = std::chrono::milliseconds(estimate);
    event.description = map.value(DESCRIPTION).toString();
    event.error = map.value(ERROR_TEXT).toString();
    event.localizedError = map.value(LOCALIZED_ERROR).toString();
    event.hasWritten = map.value(HAS_WRITTEN).toBool(true);
    event.version = map.value(VERSION).toString();
    if (event.type == EType::Hello && map.value(PROTOCOL).toInteger(-1) != CWorkerTask::PROTOCOL)
        return std::nullopt;
    if (event.type == EType::Failed && event.error.isEmpty())
        return std::nullopt;
    return event;
}

} // namespace Viewer::Update
