#include "fuzztarget.h"
#include "viewer/process/cbormessages.h"
#include "viewer/stream/streamcommand.h"
#include "viewer/stream/streamevent.h"
#include "viewer/stream/streamtask.h"

#include <QCborValue>

using namespace Viewer::Stream;
using Viewer::Camera::CFeatureInfo;

/// What was read of @p map can be written and read again the same.
template <typename T>
static void check(const QCborMap &map)
{
    const auto message = T::fromCbor(map);
    if (!message)
        return;
    const QCborMap written = message->toCbor();
    const auto again = T::fromCbor(written);
    Fuzz::require(again && again->toCbor() == written);
}

/// Whatever viewer and worker get from each other about images and settings.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QByteArray bytes = Fuzz::toBytes(data, size);
    bool isBroken = false;
    while (const auto map = Viewer::Process::takeMessage(bytes, isBroken)) {
        check<CStreamEvent>(*map);
        check<CStreamCommand>(*map);
        check<CFeatureInfo>(*map);
        QString fault;
        const auto task = CStreamTask::fromCbor(*map, fault);
        Fuzz::require(task ? fault.isEmpty() : Fuzz::isReadable(fault));
        if (task)
            Fuzz::require(CStreamTask::fromCbor(task->toCbor(), fault).has_value());
    }
    return 0;
}
