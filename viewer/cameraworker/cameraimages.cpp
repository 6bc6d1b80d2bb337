#include "cameraimages.h"

#include "messagewriter.h"

#include "viewer/camera/cameraerror.h"
#include "viewer/camera/camerakinds.h"
#include "viewer/process/cbormessages.h"

#include <QCborValue>
#include <QElapsedTimer>

#include <algorithm>
#include <cerrno>
#include <new>
#include <poll.h>
#include <unistd.h>

namespace Viewer::CameraWorker {

using namespace std::chrono_literals;
using Camera::CCameraError;
using Stream::CStreamCommand;
using Stream::CStreamEvent;
using Text::CErrorText;

namespace {

constexpr auto OPEN_LIMIT = 10s;
constexpr int LOOK_INTERVAL = 100; // milliseconds
constexpr qint64 STATISTICS_INTERVAL = 1000; // milliseconds

/// As many slots as make this, but not fewer than the library and the viewer need at a time.
constexpr qint64 WANTED_MEMORY = qint64(64) * 1024 * 1024;
constexpr int FEWEST_SLOTS = 6;
constexpr int MOST_SLOTS = 32;

/// Enough for one on the screen, one that is being converted and one that waits.
constexpr int SLOTS_OF_LIBRARY = 3;

/// In a message, but for one feature that has more by itself. Few enough for its greatest number of
/// entries, too.
constexpr qint64 MOST_BYTES_OF_FEATURES = 64 * 1024;

} // namespace

CCameraImages::CCameraImages(CMessageWriter &writer)
    : m_writer(writer)
    , m_kinds(Camera::makeCameraKinds())
{
}

CCameraImages::~CCameraImages() = default;

bool CCameraImages::serve(const Stream::CStreamTask &task, int input, const QByteArray &bytes)
{
    CStreamEvent event;
    send(event);
    event.type = CStreamEvent::EType::Failed;
    try {
        open(task);
        CStreamEvent opened;
        opened.type = CStreamEvent::EType::Opened;
        send(opened);
        m_input = input;
        m_bytes = bytes;
        follow();
        stop();
        m_stream->close();
        return true;
    } catch (const CCameraError &error) {
        event.error = error.getText();
        event.isInUse = error.getChange() == CCameraError::EChange::InUse;
    } catch (const Core::Exception::BaseException &exception) {
        event.error = CErrorText(exception.getMessage());
    } catch (const std::bad_alloc &) {
        event.error = CErrorText::tr("out of memory");
    } catch (const std::exception &exception) {
        event.error = CErrorText(QString::fromLocal8Bit(exception.what()));
    }
    if (m_stream)
        m_stream->close();
    send(event);
    return false;
}

void CCameraImages::open(const Stream::CStreamTask &task)
{
    for (const std::unique_ptr<Camera::ICameraKind> &kind : m_kinds) {
        if (kind->getName() == task.kind)
            m_stream = kind->makeStream(task.camera);
    }
    if (!m_stream)
        throw CCameraError(
            task.kind, CErrorText::tr("the camera program does not know a camera of this kind"));
    m_stream->open(OPEN_LIMIT);
}

void CCameraImages::follow()
{
    QElapsedTimer sinceStatistics;
    sinceStatistics.start();
    takeCommands();
    while (true) {
        while (!m_commands.empty()) {
            const CStreamCommand command = m_commands.front();
            m_commands.pop_front();
            obey(command);
        }
        if (m_isOver)
            return;
        m_stream->check();
        if (m_memory && sinceStatistics.hasExpired(STATISTICS_INTERVAL)) {
            sendStatistics();
            sinceStatistics.restart();
        }
        listen(LOOK_INTERVAL);
    }
}

void CCameraImages::listen(int milliseconds)
{
    pollfd wanted = {m_input, POLLIN, 0};
    if (m_isOver || poll(&wanted, 1, milliseconds) <= 0)
        return;
    char block[4096];
    const ssize_t count = ::read(m_input, block, sizeof(block));
    if (count < 0 && errno == EINTR)
        return;
    m_isOver = count <= 0;
    m_bytes.append(block, static_cast<int>(std::max<ssize_t>(count, 0)));
    takeCommands();
}

/// Slots are released at once, in the middle of whatever is being done: the camera goes on and
/// needs them.
void CCameraImages::takeCommands()
{
    bool isBroken = false;
    while (const std::optional<QCborMap> message = Process::takeMessage(m_bytes, isBroken)) {
        const auto command = CStreamCommand::fromCbor(*message);
        if (command && command->type == CStreamCommand::EType::Release)
            release(*command);
        else if (command)
            m_commands.push_back(*command);
    }
    m_isOver |= isBroken;
}

void CCameraImages::obey(const CStreamCommand &command)
{
    try {
        switch (command.type) {
        case CStreamCommand::EType::Start:
            start();
            break;
        case CStreamCommand::EType::Stop:
            stop();
            break;
        case CStreamCommand::EType::Release:
            break; // done when it came
        case CStreamCommand::EType::Read:
            sendFeatures(command.names);
            break;
        case CStreamCommand::EType::Write:
            write(command.name, command.value);
            break;
        case CStreamCommand::EType::Execute:
            m_stream->executeCommand(command.name);
            break;
        }
    } catch (const CCameraError &error) {
        // Without images there is nothing to go on with.
        if (command.type == CStreamCommand::EType::Start || m_isRestarting)
            throw;
        refuse(error.getText());
    }
}

void CCameraImages::refuse(const CErrorText &error)
{
    CStreamEvent event;
    event.type = CStreamEvent::EType::Refused;
    event.error = error;
    send(event);
}

/// Images stop only for what can be written in no other way: each one counts.
void CCameraImages::write(const QString &name, const QString &value)
{
    const auto isLocked = [this, &name] {
        const QVector<Camera::CFeatureInfo> features = m_stream->readFeatures({name}, [] {});
        return !features.isEmpty() && features.first().isLockedByImages;
    };
    const bool wasLocked = m_memory && isLocked();
    if (wasLocked) {
        m_isRestarting = true;
        stop();
        try {
            m_stream->writeFeature(name, value);
        } catch (const CCameraError &error) {
            refuse(error.getText());
        }
    } else {
        m_stream->writeFeature(name, value);
        m_isRestarting = m_memory && m_stream->getFrameSize() > m_memory->getSlotSize();
        if (m_isRestarting)
            stop();
    }
    if (m_isRestarting)
        start();
    m_isRestarting = false;
}

void CCameraImages::start()
{
    if (m_memory)
        return;
    const qint64 size = m_stream->getFrameSize();
    const int slotCount
        = static_cast<int>(std::clamp<qint64>(WANTED_MEMORY / size, FEWEST_SLOTS, MOST_SLOTS));
    m_memory = std::make_unique<Stream::CFrameMemory>(slotCount, size);
    {
        const std::lock_guard lock(m_mutex);
        m_isHeld.assign(static_cast<std::size_t>(slotCount), false);
        m_heldCount = 0;
        m_skippedFrames = 0;
    }
    ++m_startCount;
    CStreamEvent event;
    event.type = CStreamEvent::EType::Started;
    event.descriptor = m_memory->getDescriptor();
    event.slotCount = slotCount;
    event.slotSize = m_memory->getSlotSize();
    send(event);
    m_stream->start(m_memory->getData(), slotCount, m_memory->getSlotSize(),
                    [this](const Camera::CFrameInfo &frame) { onFrame(frame); });
}

void CCameraImages::stop()
{
    if (!m_memory)
        return;
    m_stream->stop();
    sendStatistics();
    m_memory.reset();
    CStreamEvent event;
    event.type = CStreamEvent::EType::Stopped;
    send(event);
}

/// On a thread of the library's.
void CCameraImages::onFrame(const Camera::CFrameInfo &frame)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_heldCount + SLOTS_OF_LIBRARY >= static_cast<int>(m_isHeld.size())) {
            ++m_skippedFrames;
            m_stream->giveBack(frame.slot);
            return;
        }
        m_isHeld.at(static_cast<std::size_t>(frame.slot)) = true;
        ++m_heldCount;
    }
    CStreamEvent event;
    event.type = CStreamEvent::EType::Frame;
    event.frame = frame;
    send(event);
}

void CCameraImages::release(const CStreamCommand &command)
{
    const auto index = static_cast<std::size_t>(command.slot);
    {
        const std::lock_guard lock(m_mutex);
        // It may be one of images that came before the last stop.
        if (!m_memory || command.start != m_startCount || index >= m_isHeld.size()
            || !m_isHeld.at(index))
            return;
        m_isHeld.at(index) = false;
        --m_heldCount;
    }
    m_stream->giveBack(command.slot);
}

void CCameraImages::sendFeatures(const QStringList &names)
{
    const QVector<Camera::CFeatureInfo> features
        = m_stream->readFeatures(names, [this] { listen(0); });
    CStreamEvent event;
    event.type = CStreamEvent::EType::Features;
    qint64 size = 0;
    event.isLast = false;
    for (const Camera::CFeatureInfo &feature : features) {
        const qint64 length = QCborValue(feature.toCbor()).toCbor().size();
        if (size + length > MOST_BYTES_OF_FEATURES) {
            send(event);
            event.features.clear();
            size = 0;
        }
        event.features.append(feature);
        size += length;
    }
    event.isLast = true;
    send(event);
}

void CCameraImages::sendStatistics()
{
    CStreamEvent event;
    event.type = CStreamEvent::EType::Statistics;
    event.statistics = m_stream->getStatistics();
    {
        const std::lock_guard lock(m_mutex);
        event.skippedFrames = m_skippedFrames;
    }
    send(event);
}

void CCameraImages::send(const CStreamEvent &event)
{
    m_writer.write(event.toCbor());
}

} // namespace Viewer::CameraWorker
