#include "fuzztarget.h"
#include "viewer/camera/simulation/cameradescription.h"
#include "viewer/process/cbormessages.h"
#include "viewer/update/workerevent.h"
#include "viewer/update/workertask.h"

#include <QCborValue>
#include <QVector>

using namespace Viewer::Update;
using Viewer::Camera::Simulation::CCameraDescriptionEntry;

static QByteArray write(const QCborMap &map)
{
    return QCborValue(map).toCbor();
}

/// The events in @p stream, of which the first @p size bytes come first; empty at the end: broken.
static QVector<QByteArray> takeEvents(const QByteArray &stream, int size)
{
    QVector<QByteArray> events;
    QByteArray bytes;
    bool isBroken = false;
    for (const QByteArray &part : {stream.left(size), stream.mid(size)}) {
        bytes += part;
        while (const auto event = CWorkerEvent::takeFirst(bytes, isBroken))
            events.append(write(event->toCbor()));
        if (isBroken)
            return events << QByteArray();
    }
    return events;
}

/// Whatever viewer and worker get from each other: a task or an event that was read can be written
/// and read again the same, anything else is refused, a task with a reason; and events are the same
/// ones in however many parts they come.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = Fuzz::toBytes(data, size);
    QString fault;
    QByteArray message = bytes;
    bool isBroken = false;
    const QCborMap map = Viewer::Process::takeMessage(message, isBroken).value_or(QCborMap());
    if (const auto task = CWorkerTask::fromCbor(map, fault)) {
        const auto again = CWorkerTask::fromCbor(task->toCbor(), fault);
        Fuzz::require(again && write(again->toCbor()) == write(task->toCbor()));
        if (const auto camera = CCameraDescriptionEntry::fromCbor(task->camera)) {
            const auto same = CCameraDescriptionEntry::fromCbor(camera->toCbor());
            Fuzz::require(same && write(same->toCbor()) == write(camera->toCbor()));
        }
    } else {
        Fuzz::require(Fuzz::isReadable(fault));
    }
    const QVector<QByteArray> events = takeEvents(bytes, bytes.size());
    for (const QByteArray &event : events)
        Fuzz::require(event.isEmpty()
                      || takeEvents(event, event.size()) == QVector<QByteArray>{event});
    Fuzz::require(takeEvents(bytes, bytes.size() / 2) == events);
    return 0;
}
