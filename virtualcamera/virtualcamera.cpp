#include "virtualcamera.h"

#include "icameraobserver.h"
#include "memorymap.h"

#include <algorithm>

namespace VirtualCamera {

using Gvcp::ECommand;
using Gvcp::EStatus;

// Bits of the control channel privilege.
static constexpr quint32 EXCLUSIVE_BIT = 0x1;
static constexpr quint32 CONTROL_BIT = 0x2;

static bool isAligned(quint32 number)
{
    return number % 4 == 0;
}

static QByteArray getText(const CPeer &peer)
{
    QByteArray text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text += QByteArray::number(peer.address >> shift & 0xff) + (shift > 0 ? "." : ":");
    return text + QByteArray::number(peer.port);
}

CVirtualCamera::CVirtualCamera(const CCameraSettings &settings, ICameraObserver &observer)
    : m_settings(settings)
    , m_observer(observer)
    , m_stream(m_settings)
    , m_memory(settings, observer, m_stream)
{
}

bool CVirtualCamera::isAway() const
{
    return m_isGone || m_returns;
}

QVector<CDatagram> CVirtualCamera::handle(const QByteArray &datagram, const CPeer &sender, Time now)
{
    QVector<CDatagram> answers = tick(now);
    if (!sender.isLoopback() || isAway()) {
        ++m_statistics.dropped;
        return answers;
    }
    ++m_receivedCount;
    if (m_settings.losesEvery > 0 && m_receivedCount % m_settings.losesEvery == 0) {
        ++m_statistics.lost;
        m_observer.onEvent("lose request");
        return answers;
    }
    const std::optional<Gvcp::CRequest> request = Gvcp::parseRequest(datagram);
    if (!request) {
        ++m_statistics.dropped;
        return answers;
    }
    if (m_controller == sender)
        m_lastHeard = now;
    return answers + answer(datagram, *request, sender, now);
}

QVector<CDatagram> CVirtualCamera::answer(const QByteArray &datagram, const Gvcp::CRequest &request,
                                          const CPeer &sender, Time now)
{
    const auto makeAnswers = [&request, &sender](EStatus status, const QByteArray &payload = {}) {
        if (!request.wantsAnswer)
            return QVector<CDatagram>();
        return QVector<CDatagram>{
            {sender, Gvcp::makeAnswer(status, request.command, request.id, payload)}};
    };

    if (!request.isComplete) {
        ++m_statistics.dropped;
        return makeAnswers(EStatus::InvalidHeader);
    }
    if (request.command == static_cast<quint16>(ECommand::Discovery)) {
        ++m_statistics.discoveries;
        return makeAnswers(EStatus::Success, m_memory.getDiscoveryData());
    }
    if (request.command == static_cast<quint16>(ECommand::Restart)) {
        m_leaves = now;
        return leaveInTime(now);
    }
    if (request.command == static_cast<quint16>(ECommand::PacketResend)) {
        resendPackets(request.payload, sender);
        return {};
    }
    for (const CLastRequest &last : qAsConst(m_last)) {
        if (last.sender != sender || last.datagram != datagram)
            continue;
        return m_pending && m_pending->answer.receiver == sender ? announcePending(now)
                                                                 : repeatAnswer(last);
    }
    if (m_pending)
        return makeAnswers(EStatus::Busy);

    const CReply reply = execute(request, sender, now);
    QVector<CDatagram> answers = makeAnswers(reply.status, reply.payload);
    remember({sender, datagram, answers.isEmpty() ? QByteArray() : answers[0].bytes});

    if (m_settings.diesAfterBytes && m_memory.getUploadedBytes() >= *m_settings.diesAfterBytes) {
        m_isGone = true;
        m_observer.onEvent("die " + QByteArray::number(m_memory.getUploadedBytes()));
        return {};
    }
    if (m_settings.losesControlAfterBytes && !m_hasLostControl
        && m_memory.getUploadedBytes() >= *m_settings.losesControlAfterBytes)
        handControlToSomebodyElse(now);
    if (m_memory.isResetRequested() && !m_leaves) {
        m_leaves = now + m_settings.resetDelay;
        answers = leaveInTime(now) + answers;
    }
    if (reply.duration.count() > 0 && !answers.isEmpty() && !isAway()) {
        m_observer.onEvent("pending " + QByteArray::number(qint64(reply.duration.count())));
        return setPending(request.id, reply.duration, answers.last(), now);
    }
    const bool isWrite = request.command == static_cast<quint16>(ECommand::WriteMemory);
    if (isWrite && m_statistics.memoryWrites == m_settings.losesAcknowledge) {
        ++m_statistics.lost;
        m_observer.onEvent("lose acknowledge");
        return {};
    }
    return answers;
}

void CVirtualCamera::resendPackets(const QByteArray &payload, const CPeer &sender)
{
    const std::optional<Gvcp::CResendRequest> request = Gvcp::parseResendRequest(payload);
    // Who receives asks for itself, from another port than the controller's.
    if (!request || !m_controller || sender.address != m_stream.getReceiver().address) {
        ++m_statistics.dropped;
        return;
    }
    if (!m_settings.neverResends)
        m_stream.resend(request->block, request->firstPacket, request->lastPacket);
}

void CVirtualCamera::takePackets(Time now, CPacketBatch &batch)
{
    batch.clear();
    if (!isAway())
        m_stream.take(now, batch);
}

void CVirtualCamera::remember(const CLastRequest &request)
{
    constexpr int MOST_SENDERS = 8;
    m_last.erase(
        std::remove_if(m_last.begin(), m_last.end(),
                       [&](const CLastRequest &last) { return last.sender == request.sender; }),
        m_last.end());
    if (m_last.size() == MOST_SENDERS)
        m_last.removeFirst();
    m_last.append(request);
}

QVector<CDatagram> CVirtualCamera::setPending(quint16 id, std::chrono::milliseconds duration,
                                              const CDatagram &answer, Time now)
{
    const Time due = now + duration;
    // In time, so that nobody gives up before.
    const Time again = now + std::max(duration / 2, std::chrono::milliseconds(1));
    m_pending = CPendingAnswer{id, due, m_settings.neverOpens ? again : due, answer};
    return announcePending(now);
}

QVector<CDatagram> CVirtualCamera::announcePending(Time now) const
{
    const auto rest = std::chrono::duration_cast<std::chrono::milliseconds>(m_pending->due - now);
    const qint64 remaining = std::clamp<qint64>(rest.count(), 0, 0xffff);
    QByteArray payload;
    Gvcp::appendHalfWord(payload, 0);
    Gvcp::appendHalfWord(payload, static_cast<quint16>(remaining));
    return {{m_pending->answer.receiver,
             Gvcp::makeAnswer(EStatus::Success, static_cast<quint16>(ECommand::Pending),
                              m_pending->id, payload)}};
}

QVector<CDatagram> CVirtualCamera::endPending(Time now)
{
    m_lastHeard = now;
    if (m_settings.neverOpens)
        return setPending(m_pending->id, m_settings.openDuration, m_pending->answer, now);
    const CDatagram answer = m_pending->answer;
    m_pending.reset();
    return {answer};
}

QVector<CDatagram> CVirtualCamera::repeatAnswer(const CLastRequest &last)
{
    ++m_statistics.repeated;
    if (last.answer.isEmpty())
        return {};
    return {{last.sender, last.answer}};
}

CVirtualCamera::CReply CVirtualCamera::execute(const Gvcp::CRequest &request, const CPeer &sender,
                                               Time now)
{
    switch (static_cast<ECommand>(request.command)) {
    case ECommand::ReadRegister:
        ++m_statistics.registerReads;
        return readRegisters(request.payload, sender, now);
    case ECommand::WriteRegister:
        ++m_statistics.registerWrites;
        return writeRegisters(request.payload, sender, now);
    case ECommand::ReadMemory:
        ++m_statistics.memoryReads;
        return readMemory(request.payload, sender, now);
    case ECommand::WriteMemory:
        ++m_statistics.memoryWrites;
        return writeMemory(request.payload, sender, now);
    case ECommand::Discovery:
    case ECommand::PacketResend:
    case ECommand::Pending:
    case ECommand::Restart:
        break;
    }
    ++m_statistics.dropped;
    return {EStatus::NotImplemented, {}, {}};
}

CVirtualCamera::CReply CVirtualCamera::readRegisters(const QByteArray &payload, const CPeer &sender,
                                                     Time now)
{
    if (payload.isEmpty() || !isAligned(static_cast<quint32>(payload.size())))
        return {EStatus::InvalidHeader, {}, {}};

    CReply reply;
    for (int i = 0; i < payload.size() && reply.status == EStatus::Success; i += 4) {
        const quint32 address = Gvcp::readWord(payload, i);
        QByteArray bytes;
        if (!isAligned(address))
            reply.status = EStatus::BadAlignment;
        else if (!mayRead(address, sender))
            reply.status = EStatus::AccessDenied;
        else
            reply.status = m_memory.read(address, 4, now, bytes);
        reply.payload += bytes;
    }
    return reply;
}

CVirtualCamera::CReply CVirtualCamera::writeRegisters(const QByteArray &payload,
                                                      const CPeer &sender, Time now)
{
    if (payload.isEmpty() || payload.size() % 8 != 0)
        return {EStatus::InvalidHeader, {}, {}};

    CReply reply;
    quint16 written = 0;
    for (int i = 0; i < payload.size() && reply.status == EStatus::Success; i += 8) {
        const CCameraMemory::CWriteResult result
            = write(Gvcp::readWord(payload, i), payload.mid(i + 4, 4), sender, now);
        reply.status = result.status;
        reply.duration += result.duration;
        if (result.status == EStatus::Success)
            ++written;
    }
    Gvcp::appendHalfWord(reply.payload, 0);
    Gvcp::appendHalfWord(reply.payload, written);
    return reply;
}

CVirtualCamera::CReply CVirtualCamera::readMemory(const QByteArray &payload, const CPeer &sender,
                                                  Time now)
{
    if (payload.size() != 8)
        return {EStatus::InvalidHeader, {}, {}};
    const quint32 address = Gvcp::readWord(payload, 0);
    const quint32 size = Gvcp::readWord(payload, 4) & 0xffff;
    if (!isAligned(address) || !isAligned(size))
        return {EStatus::BadAlignment, {}, {}};
    if (size == 0 || size > Gvcp::MAXIMUM_BLOCK)
        return {EStatus::InvalidParameter, {}, {}};
    if (!mayRead(address, sender))
        return {EStatus::AccessDenied, {}, {}};

    QByteArray bytes;
    const EStatus status = m_memory.read(address, static_cast<int>(size), now, bytes);
    return {status, status == EStatus::Success ? payload.left(4) + bytes : QByteArray(), {}};
}

CVirtualCamera::CReply CVirtualCamera::writeMemory(const QByteArray &payload, const CPeer &sender,
                                                   Time now)
{
    if (payload.size() < 8)
        return {EStatus::InvalidHeader, {}, {}};
    const QByteArray bytes = payload.mid(4);
    const CCameraMemory::CWriteResult result
        = write(Gvcp::readWord(payload, 0), bytes, sender, now);
    const int written = result.status == EStatus::Success ? bytes.size() : 0;
    CReply reply{result.status, {}, result.duration};
    Gvcp::appendHalfWord(reply.payload, 0);
    Gvcp::appendHalfWord(reply.payload, static_cast<quint16>(written));
    return reply;
}

bool CVirtualCamera::mayRead(quint32 address, const CPeer &sender) const
{
    return !m_isExclusive || m_controller == sender || address == MemoryMap::CONTROL_PRIVILEGE;
}

CCameraMemory::CWriteResult CVirtualCamera::write(quint32 address, const QByteArray &bytes,
                                                  const CPeer &sender, Time now)
{
    if (!isAligned(address) || !isAligned(static_cast<quint32>(bytes.size()))) {
        m_observer.onEvent("refuse unaligned " + QByteArray::number(bytes.size()));
        return {EStatus::BadAlignment, {}};
    }
    if (address == MemoryMap::CONTROL_PRIVILEGE && bytes.size() == 4)
        return {setPrivilege(Gvcp::readWord(bytes, 0), sender, now), {}};
    if (m_controller != sender)
        return {EStatus::AccessDenied, {}};
    return m_memory.write(address, bytes, now);
}

EStatus CVirtualCamera::setPrivilege(quint32 value, const CPeer &sender, Time now)
{
    if (m_controller && m_controller != sender)
        return EStatus::AccessDenied;
    if ((value & (EXCLUSIVE_BIT | CONTROL_BIT)) == 0) {
        if (m_controller)
            loseControl("released");
        return EStatus::Success;
    }
    if (!m_controller)
        m_observer.onEvent("control " + getText(sender));
    m_controller = sender;
    m_isExclusive = (value & EXCLUSIVE_BIT) != 0;
    m_lastHeard = now;
    m_memory.setControlPrivilege(value);
    return EStatus::Success;
}

void CVirtualCamera::loseControl(const char *cause)
{
    m_controller.reset();
    m_isExclusive = false;
    m_memory.setControlPrivilege(0);
    m_observer.onEvent(QByteArray("control ") + cause);
    m_memory.abandon();
}

void CVirtualCamera::handControlToSomebodyElse(Time now)
{
    // Somebody who never says anything, and so loses it again in time.
    constexpr CPeer SOMEBODY{0x7f000001, 9};
    m_hasLostControl = true;
    loseControl("taken");
    static_cast<void>(setPrivilege(CONTROL_BIT, SOMEBODY, now));
}

QVector<CDatagram> CVirtualCamera::leaveInTime(Time now)
{
    if (!m_leaves || now < *m_leaves)
        return {};
    m_leaves.reset();
    m_pending.reset();
    if (m_controller)
        loseControl("reset");
    m_observer.onEvent("reset");
    m_memory.breakOff(now);
    m_returns = now + m_settings.resetDuration;
    m_isGone = m_settings.neverReturns;
    if (m_settings.restartsToo == 0)
        return {};
    return {{{m_settings.restartsToo, Gvcp::PORT}, Gvcp::makeOrder(ECommand::Restart)}};
}

QVector<CDatagram> CVirtualCamera::tick(Time now)
{
    QVector<CDatagram> answers;
    if (m_isGone)
        return answers;
    if (m_pending && now >= m_pending->next)
        answers += endPending(now);
    answers += leaveInTime(now);
    if (m_returns && now >= *m_returns) {
        m_returns.reset();
        m_last.clear();
        m_memory.restart();
    }
    if (m_controller && !m_pending && now >= m_lastHeard + m_memory.getHeartbeatTimeout())
        loseControl("timeout");
    return answers;
}

std::optional<Time> CVirtualCamera::getNextDeadline() const
{
    if (m_isGone)
        return {};
    if (m_returns)
        return m_returns;
    std::optional<Time> next = m_leaves;
    const auto consider
        = [&next](Time deadline) { next = next ? std::min(*next, deadline) : deadline; };
    if (const std::optional<Time> deadline = m_stream.getNextDeadline())
        consider(*deadline);
    if (m_pending)
        consider(m_pending->next);
    else if (m_controller)
        consider(m_lastHeard + m_memory.getHeartbeatTimeout());
    return next;
}

const CStatistics &CVirtualCamera::getStatistics() const
{
    return m_statistics;
}

const CStreamStatistics &CVirtualCamera::getStreamStatistics() const
{
    return m_stream.getStatistics();
}

qint64 CVirtualCamera::getUploadedBytes() const
{
    return m_memory.getUploadedBytes();
}

} // namespace VirtualCamera
