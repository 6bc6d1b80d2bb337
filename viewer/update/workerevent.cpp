#include "workerevent.h"

#include "workertask.h"

#include "viewer/process/cborinteger.h"
#include "viewer/process/cbormessages.h"

#include <algorithm>
#include <limits>

namespace Viewer::Update {

static const QString PROTOCOL = QStringLiteral("protocol");
static const QString TYPE = QStringLiteral("event");
static const QString STEP = QStringLiteral("step");
static const QString ESTIMATE = QStringLiteral("estimateMs");
static const QString PATIENCE = QStringLiteral("patienceMs");
static const QString PERCENT = QStringLiteral("percent");
static const QString CAMERA = QStringLiteral("camera");
static const QString ERROR_TEXT = QStringLiteral("error");
static const QString LOCALIZED_ERROR = QStringLiteral("localizedError");
static const QString IN_USE = QStringLiteral("inUse");
static const QString HAS_WRITTEN = QStringLiteral("hasWritten");
static const QString VERSION = QStringLiteral("version");

QCborMap CWorkerEvent::toCbor() const
{
    QCborMap map{{TYPE, static_cast<int>(type)},
                 {PATIENCE, static_cast<qint64>(patience.count())},
                 {HAS_WRITTEN, hasWritten},
                 {VERSION, version}};
    switch (type) {
    case EType::Hello:
        map.insert(PROTOCOL, CWorkerTask::PROTOCOL);
        break;
    case EType::StepBegun:
    case EType::StepDone:
        map.insert(ESTIMATE, static_cast<qint64>(estimate.count()));
        map.insert(STEP, step);
        break;
    case EType::StepProgressed:
        map.insert(PERCENT, percent);
        map.insert(STEP, step);
        break;
    case EType::Failed:
        map.insert(ERROR_TEXT, error);
        map.insert(LOCALIZED_ERROR, localizedError);
        map.insert(IN_USE, isInUse);
        Q_FALLTHROUGH();
    case EType::Done:
        map.insert(CAMERA, camera);
        break;
    }
    return map;
}

std::optional<CWorkerEvent> CWorkerEvent::fromCbor(const QCborMap &map)
{
    const qint64 type = Process::toInteger(map.value(TYPE), -1);
    const qint64 step = Process::toInteger(map.value(STEP), 0);
    const qint64 estimate = Process::toInteger(map.value(ESTIMATE), 0);
    CWorkerEvent event;
    event.percent = map.value(PERCENT).toDouble();
    if (type < 0 || type > static_cast<int>(EType::Failed) || step < 0
        || step > std::numeric_limits<int>::max() || estimate < 0
        || estimate > std::numeric_limits<int>::max()
        || !(event.percent >= 0 && event.percent <= 100))
        return std::nullopt;
    event.type = static_cast<EType>(type);
    event.step = static_cast<int>(step);
    event.patience = std::chrono::milliseconds(std::clamp<qint64>(
        Process::toInteger(map.value(PATIENCE), 0), 0, std::numeric_limits<int>::max()));
    event.estimate = std::chrono::milliseconds(estimate);
    event.camera = map.value(CAMERA).toMap();
    event.error = map.value(ERROR_TEXT).toString();
    event.localizedError = map.value(LOCALIZED_ERROR).toString();
    event.isInUse = map.value(IN_USE).toBool();
    event.hasWritten = map.value(HAS_WRITTEN).toBool(true);
    event.version = map.value(VERSION).toString();
    if (event.type == EType::Hello
        && Process::toInteger(map.value(PROTOCOL), -1) != CWorkerTask::PROTOCOL)
        return std::nullopt;
    if (event.type == EType::Failed && event.error.isEmpty())
        return std::nullopt;
    return event;
}

std::optional<CWorkerEvent> CWorkerEvent::takeFirst(QByteArray &bytes, bool &isBroken)
{
    const std::optional<QCborMap> message = Process::takeMessage(bytes, isBroken);
    if (!message)
        return std::nullopt;
    const std::optional<CWorkerEvent> event = fromCbor(*message);
    isBroken = !event;
    return event;
}

} // namespace Viewer::Update
