#pragma once

#include "cameramemory.h"
#include "camerasettings.h"
#include "gvcp.h"
#include "peer.h"
#include "statistics.h"
#include "streamchannel.h"

#include <QVector>

#include <optional>

namespace VirtualCamera {

class ICameraObserver;

/// A camera that speaks the control protocol of GigE Vision, without a socket and without a clock:
/// datagrams and the time come from the caller, datagrams go back to it.
///
/// One application at a time has control; it loses it when it is silent for longer than the
/// heartbeat time-out. A repeated request is answered again but never executed again.
class CVirtualCamera
{
public:
    /// @p observer is borrowed.
    CVirtualCamera(const CCameraSettings &settings, ICameraObserver &observer);

    /// Takes @p datagram from @p sender and gives what is to be sent now. Any bytes are taken;
    /// those that are no request, and all that do not come from this machine, are dropped.
    [[nodiscard]] QVector<CDatagram> handle(const QByteArray &datagram, const CPeer &sender,
                                            Time now);

    /// Does what has become due, and gives what is to be sent now.
    [[nodiscard]] QVector<CDatagram> tick(Time now);

    /// Puts the packets of the stream that are due into @p batch, which is emptied before. They are
    /// sent from the address and the port that the settings tell. Full batches leave some behind.
    void takePackets(Time now, CPacketBatch &batch);

    /// When tick() or takePackets() has something to do next, if nobody sends anything.
    [[nodiscard]] std::optional<Time> getNextDeadline() const;

    [[nodiscard]] const CStatistics &getStatistics() const;

    [[nodiscard]] const CStreamStatistics &getStreamStatistics() const;

    /// Bytes that have been uploaded so far.
    [[nodiscard]] qint64 getUploadedBytes() const;

private:
    struct CReply
    {
        Gvcp::EStatus status = Gvcp::EStatus::Success;
        QByteArray payload;
        std::chrono::milliseconds duration{0}; ///< until the answer may be sent
    };

    /// An answer that is sent only when the camera has done what was asked.
    struct CPendingAnswer
    {
        quint16 id; ///< of the request
        Time due; ///< as it is announced
        Time next; ///< when something is sent: the answer, or one more announcement
        CDatagram answer;
    };

    /// The last request of a sender, to know it again.
    struct CLastRequest
    {
        CPeer sender;
        QByteArray datagram;
        QByteArray answer; ///< empty: none was wanted
    };

    [[nodiscard]] bool isAway() const;
    [[nodiscard]] QVector<CDatagram> answer(const QByteArray &datagram,
                                            const Gvcp::CRequest &request, const CPeer &sender,
                                            Time now);
    void resendPackets(const QByteArray &payload, const CPeer &sender);
    [[nodiscard]] QVector<CDatagram> repeatAnswer(const CLastRequest &last);
    /// Keeps @p answer back for @p duration, and announces that.
    [[nodiscard]] QVector<CDatagram> setPending(quint16 id, std::chrono::milliseconds duration,
                                                const CDatagram &answer, Time now);
    [[nodiscard]] QVector<CDatagram> announcePending(Time now) const;
    /// What is to be sent at the time that the pending answer has set.
    [[nodiscard]] QVector<CDatagram> endPending(Time now);
    void remember(const CLastRequest &request);
    [[nodiscard]] CReply execute(const Gvcp::CRequest &request, const CPeer &sender, Time now);
    [[nodiscard]] CReply readRegisters(const QByteArray &payload, const CPeer &sender, Time now);
    [[nodiscard]] CReply writeRegisters(const QByteArray &payload, const CPeer &sender, Time now);
    [[nodiscard]] CReply readMemory(const QByteArray &payload, const CPeer &sender, Time now);
    [[nodiscard]] CReply writeMemory(const QByteArray &payload, const CPeer &sender, Time now);
    [[nodiscard]] bool mayRead(quint32 address, const CPeer &sender) const;
    CCameraMemory::CWriteResult write(quint32 address, const QByteArray &bytes, const CPeer &sender,
                                      Time now);
    [[nodiscard]] Gvcp::EStatus setPrivilege(quint32 value, const CPeer &sender, Time now);
    void loseControl(const char *cause);
    void handControlToSomebodyElse(Time now);

    /// Goes away when a reset is due, and gives what is to be sent at that.
    [[nodiscard]] QVector<CDatagram> leaveInTime(Time now);

    const CCameraSettings m_settings;
    ICameraObserver &m_observer;
    CStreamChannel m_stream;
    CCameraMemory m_memory;
    CStatistics m_statistics;
    qint64 m_receivedCount = 0;

    std::optional<CPeer> m_controller;
    bool m_isExclusive = false;
    Time m_lastHeard{0}; ///< from the controller
    bool m_hasLostControl = false; ///< by the fault, which happens once
    std::optional<CPendingAnswer> m_pending;
    QVector<CLastRequest> m_last; ///< one of each sender, the latest sender's last

    std::optional<Time> m_leaves; ///< a reset has been asked for
    std::optional<Time> m_returns; ///< end of the reset
    bool m_isGone = false; ///< for ever
};

} // namespace VirtualCamera
