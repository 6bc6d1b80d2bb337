#include "usbcamera.h"

#include "icameraobserver.h"
#include "memorymap.h"
#include "usbmap.h"

#include <QtEndian>

#include <algorithm>

namespace VirtualCamera {

using Gvcp::EStatus;
using U3v::ECommand;

static constexpr int ADDRESS_SIZE = 8;

CUsbCamera::CUsbCamera(const CCameraSettings &settings, ICameraObserver &observer)
    : m_settings(settings)
    , m_observer(observer)
    , m_stream(m_settings)
    , m_memory(settings, observer, m_stream)
{
}

bool CUsbCamera::isPlugged() const
{
    return !m_isGone && !m_isUnplugged && !m_returns;
}

void CUsbCamera::unplug(Time now)
{
    m_isUnplugged = true;
    leave(now);
}

void CUsbCamera::plugIn()
{
    m_isUnplugged = false;
    m_returns.reset();
    m_memory.restart();
}

void CUsbCamera::clearStall()
{
    m_isStalled = false;
    m_answers.clear();
}

const CStreamStatistics &CUsbCamera::getStreamStatistics() const
{
    return m_stream.getStatistics();
}

void CUsbCamera::handle(const QByteArray &transfer, Time now)
{
    tick(now);
    if (!isPlugged() || m_isSilent || m_isStalled) {
        ++m_statistics.dropped;
        return;
    }
    const std::optional<U3v::CRequest> request = U3v::parseRequest(transfer);
    if (!request) {
        ++m_statistics.dropped;
        return;
    }
    const CReply reply
        = request->isComplete ? execute(*request, now) : CReply{EStatus::InvalidHeader, {}, {}};
    const bool isWrite = request->command == static_cast<quint16>(ECommand::WriteMemory);
    if (request->wantsAnswer) {
        std::optional<QByteArray> answer
            = U3v::makeAnswer(reply.status, request->command, request->id, reply.payload);
        if (isWrite)
            answer = spoil(*answer);
        if (reply.duration.count() > 0)
            announce(request->id, reply.duration, now);
        if (answer && !m_opening)
            m_answers.push_back({now + m_settings.answerDelay + reply.duration, *answer});
    }
    runFaults(now);
}

std::optional<QByteArray> CUsbCamera::spoil(QByteArray answer)
{
    const auto isAsked = [this](int number) { return m_statistics.memoryWrites == number; };
    if (isAsked(m_settings.losesAcknowledge)) {
        ++m_statistics.lost;
        m_observer.onEvent("lose acknowledge");
        return {};
    }
    if (isAsked(m_settings.cutsAnswer)) {
        m_observer.onEvent("cut acknowledge");
        return answer.left(answer.size() / 2);
    }
    if (isAsked(m_settings.mistakesAnswer)) {
        m_observer.onEvent("mistake acknowledge");
        answer[U3v::HEADER_SIZE - 1] = static_cast<char>(answer.at(U3v::HEADER_SIZE - 1) ^ 0x55);
    }
    return answer;
}

void CUsbCamera::announce(quint16 id, std::chrono::milliseconds duration, Time now)
{
    m_observer.onEvent("pending " + QByteArray::number(qint64(duration.count())));
    const auto announced = static_cast<quint16>(std::min<qint64>(duration.count(), 0xffff));
    m_answers.push_back({now,
                         U3v::makeAnswer(EStatus::Success, static_cast<quint16>(ECommand::Pending),
                                         id, U3v::makeHalfWord(announced))});
    if (m_settings.neverOpens)
        m_opening = id;
}

void CUsbCamera::runFaults(Time now)
{
    const auto isDue = [this](const std::optional<qint64> &bytes) {
        return bytes && m_memory.getUploadedBytes() >= *bytes;
    };
    if (isDue(m_settings.diesAfterBytes) && !m_isSilent) {
        m_isSilent = true;
        m_answers.clear();
        m_observer.onEvent("die " + QByteArray::number(m_memory.getUploadedBytes()));
    }
    if (isDue(m_settings.unplugsAfterBytes) && !m_isGone) {
        m_isGone = true;
        leave(now);
        m_observer.onEvent("unplug " + QByteArray::number(m_memory.getUploadedBytes()));
    }
    if (isDue(m_settings.stallsAfterBytes) && !m_hasStalled) {
        m_isStalled = m_hasStalled = true;
        m_observer.onEvent("stall");
    }
    if (m_memory.isResetRequested() && !m_leaves)
        m_leaves = now + m_settings.resetDelay;
}

CUsbCamera::CReply CUsbCamera::execute(const U3v::CRequest &request, Time now)
{
    switch (static_cast<ECommand>(request.command)) {
    case ECommand::ReadMemory:
        ++m_statistics.memoryReads;
        return readMemory(request.payload, now);
    case ECommand::WriteMemory:
        ++m_statistics.memoryWrites;
        return writeMemory(request.payload, now);
    case ECommand::Pending:
        break;
    }
    ++m_statistics.dropped;
    return {EStatus::NotImplemented, {}, {}};
}

// Addresses have 64 bits, and nothing lies behind the first 32.
static std::optional<quint32> readAddress(const QByteArray &payload)
{
    const auto address = qFromLittleEndian<quint64>(payload.constData());
    if (address > 0xffffffff)
        return {};
    return static_cast<quint32>(address);
}

CUsbCamera::CReply CUsbCamera::readMemory(const QByteArray &payload, Time now)
{
    constexpr int SIZE_OFFSET = ADDRESS_SIZE + 2;
    if (payload.size() != SIZE_OFFSET + 2)
        return {EStatus::InvalidHeader, {}, {}};
    const std::optional<quint32> address = readAddress(payload);
    const int size = qFromLittleEndian<quint16>(payload.constData() + SIZE_OFFSET);
    if (size == 0 || size > U3v::LONGEST_TRANSFER - U3v::HEADER_SIZE)
        return {EStatus::InvalidParameter, {}, {}};
    if (!address)
        return {EStatus::InvalidAddress, {}, {}};
    // The memory has whole words only.
    const int lead = static_cast<int>(*address % 4);
    QByteArray bytes;
    const EStatus status = m_memory.read(*address - static_cast<quint32>(lead),
                                         (lead + size + 3) / 4 * 4, now, bytes);
    return {status, bytes.mid(lead, size), {}};
}

CUsbCamera::CReply CUsbCamera::writeMemory(const QByteArray &payload, Time now)
{
    if (payload.size() <= ADDRESS_SIZE)
        return {EStatus::InvalidHeader, {}, {}};
    const std::optional<quint32> address = readAddress(payload);
    const QByteArray bytes = payload.mid(ADDRESS_SIZE);
    if (!address)
        return {EStatus::InvalidAddress, {}, {}};
    if (*address % 4 != 0 || bytes.size() % 4 != 0) {
        m_observer.onEvent("refuse unaligned " + QByteArray::number(bytes.size()));
        return {EStatus::BadAlignment, {}, {}};
    }
    const CCameraMemory::CWriteResult result = m_memory.write(*address, bytes, now);
    m_stream.setEnabled((m_memory.getUsbRegister(UsbMap::STREAM_CONTROL) & 1) != 0);
    const int written = result.status == EStatus::Success ? bytes.size() : 0;
    return {result.status, U3v::makeHalfWord(static_cast<quint16>(written)), result.duration};
}

std::optional<QByteArray> CUsbCamera::takeAnswer(Time now)
{
    tick(now);
    if (m_answers.empty() || m_answers.front().due > now)
        return {};
    const QByteArray answer = m_answers.front().bytes;
    m_answers.pop_front();
    if (m_answers.empty() && m_opening)
        m_answers.push_back({now + m_settings.openDuration / 2, answer});
    return answer;
}

std::optional<int> CUsbCamera::takeImage(uchar *target, int size, Time now)
{
    tick(now);
    const std::optional<int> count = isPlugged() ? m_stream.take(target, size) : std::nullopt;
    if (m_stream.isAtUnplugging() && !m_hasUnplugged) {
        m_hasUnplugged = true;
        m_observer.onEvent("unplug in frame");
        leave(now);
        m_isGone = m_settings.plugsInAfter.count() == 0;
        m_returns = now + m_settings.plugsInAfter;
    }
    return count;
}

void CUsbCamera::leave(Time now)
{
    m_leaves.reset();
    m_answers.clear();
    m_opening.reset();
    m_isStalled = false;
    m_memory.breakOff(now);
    m_memory.abandon();
    m_stream.setEnabled(false);
}

void CUsbCamera::tick(Time now)
{
    if (m_leaves && now >= *m_leaves) {
        m_observer.onEvent("reset");
        leave(now);
        m_returns = now + m_settings.resetDuration;
        m_isGone = m_settings.neverReturns;
    }
    if (m_returns && now >= *m_returns && !m_isGone && !m_isUnplugged)
        plugIn();
    m_stream.tick(now);
    m_lastTick = now;
}

std::optional<Time> CUsbCamera::getNextDeadline() const
{
    if (m_isGone || m_isUnplugged)
        return {};
    if (m_returns)
        return m_returns;
    std::optional<Time> next = m_leaves;
    const auto consider = [&next](std::optional<Time> deadline) {
        if (deadline)
            next = next ? std::min(*next, *deadline) : *deadline;
    };
    consider(m_stream.getNextDeadline());
    // What is due already waits for who fetches it.
    if (!m_answers.empty() && m_answers.front().due > m_lastTick)
        consider(m_answers.front().due);
    return next;
}

} // namespace VirtualCamera
