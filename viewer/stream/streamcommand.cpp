#include "streamcommand.h"

#include "viewer/process/cborinteger.h"

#include <QCborArray>

#include <limits>

namespace Viewer::Stream {

static const QString TYPE = QStringLiteral("do");
static const QString SLOT_FIELD = QStringLiteral("slot");
static const QString START_FIELD = QStringLiteral("start");
static const QString NAME = QStringLiteral("name");
static const QString VALUE = QStringLiteral("value");
static const QString NAMES = QStringLiteral("names");

QCborMap CStreamCommand::toCbor() const
{
    QCborMap map{{TYPE, static_cast<int>(type)}};
    switch (type) {
    case EType::Start:
    case EType::Stop:
        break;
    case EType::Release:
        map.insert(SLOT_FIELD, slot);
        map.insert(START_FIELD, start);
        break;
    case EType::Read:
        map.insert(NAMES, QCborArray::fromStringList(names));
        break;
    case EType::Write:
        map.insert(VALUE, value);
        Q_FALLTHROUGH();
    case EType::Execute:
        map.insert(NAME, name);
        break;
    }
    return map;
}

std::optional<CStreamCommand> CStreamCommand::fromCbor(const QCborMap &map)
{
    const qint64 type = Process::toInteger(map.value(TYPE), -1);
    const qint64 slot = Process::toInteger(map.value(SLOT_FIELD), 0);
    const qint64 start = Process::toInteger(map.value(START_FIELD), 0);
    if (type < 0 || type > static_cast<int>(EType::Execute) || slot < 0
        || slot > std::numeric_limits<int>::max() || start < 0)
        return std::nullopt;
    CStreamCommand command;
    command.type = static_cast<EType>(type);
    command.slot = static_cast<int>(slot);
    command.start = start;
    command.name = map.value(NAME).toString();
    command.value = map.value(VALUE).toString();
    for (const QCborValue name : map.value(NAMES).toArray())
        command.names.append(name.toString());
    const bool needsName = command.type == EType::Write || command.type == EType::Execute;
    if (needsName && command.name.isEmpty())
        return std::nullopt;
    return command;
}

} // namespace Viewer::Stream
