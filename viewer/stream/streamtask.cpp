#include "streamtask.h"

#include "viewer/process/cborinteger.h"

namespace Viewer::Stream {

static const QString PROTOCOL_FIELD = QStringLiteral("protocol");
static const QString COMMAND = QStringLiteral("command");
static const QString STREAM = QStringLiteral("stream");
static const QString KIND = QStringLiteral("kind");
static const QString CAMERA = QStringLiteral("camera");
static const QString LANGUAGE = QStringLiteral("language");

QCborMap CStreamTask::toCbor() const
{
    return {{PROTOCOL_FIELD, PROTOCOL},
            {COMMAND, STREAM},
            {KIND, kind},
            {CAMERA, camera},
            {LANGUAGE, language}};
}

std::optional<CStreamTask> CStreamTask::fromCbor(const QCborMap &map, QString &fault)
{
    CStreamTask task;
    task.kind = map.value(KIND).toString();
    task.camera = map.value(CAMERA).toMap();
    task.language = map.value(LANGUAGE).toString();
    if (Process::toInteger(map.value(PROTOCOL_FIELD), -1) != PROTOCOL)
        fault = QStringLiteral("the task is not of protocol %1").arg(PROTOCOL);
    else if (map.value(COMMAND).toString() != STREAM)
        fault = QStringLiteral("the task has no command that is known");
    else if (task.kind.isEmpty() || task.camera.isEmpty())
        fault = QStringLiteral("the task has no camera");
    if (!fault.isEmpty())
        return std::nullopt;
    return task;
}

} // namespace Viewer::Stream
