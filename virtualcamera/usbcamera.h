#pragma once

#include "cameramemory.h"
#include "camerasettings.h"
#include "statistics.h"
#include "u3v.h"
#include "usbstream.h"

#include <QByteArray>

#include <deque>
#include <optional>

namespace VirtualCamera {

class ICameraObserver;

/// A camera that speaks the protocols of USB3 Vision, without a bus and without a clock: transfers
/// and the time come from the caller, which fetches those that go back.
///
/// It does not know who talks to it; that only one host does is the host's affair.
class CUsbCamera
{
public:
    /// @p observer is borrowed.
    CUsbCamera(const CCameraSettings &settings, ICameraObserver &observer);

    /// Takes a transfer of the control channel. Any bytes are taken; those that are no request are
    /// dropped.
    void handle(const QByteArray &transfer, Time now);

    /// The next answer that is due; nothing: there is none.
    [[nodiscard]] std::optional<QByteArray> takeAnswer(Time now);

    /// The next transfer of the stream, see CUsbStream::take().
    [[nodiscard]] std::optional<int> takeImage(uchar *target, int size, Time now);

    /// Does what has become due.
    void tick(Time now);

    /// When tick() or takeAnswer() has something to do next, if nobody sends anything.
    [[nodiscard]] std::optional<Time> getNextDeadline() const;

    /// False: it is not to be found on its bus. Each time that it comes back it is a new device
    /// there.
    [[nodiscard]] bool isPlugged() const;

    /// Somebody pulls the plug, or puts it in again.
    void unplug(Time now);
    void plugIn();

    /// The control channel says no more than that until this has been cleared.
    [[nodiscard]] bool isStalled() const { return m_isStalled; }
    void clearStall();

    [[nodiscard]] const CCameraMemory &getMemory() const { return m_memory; }
    [[nodiscard]] const CStatistics &getStatistics() const { return m_statistics; }
    [[nodiscard]] const CStreamStatistics &getStreamStatistics() const;

private:
    struct CAnswer
    {
        Time due;
        QByteArray bytes;
    };

    struct CReply
    {
        Gvcp::EStatus status = Gvcp::EStatus::Success;
        QByteArray payload;
        std::chrono::milliseconds duration{0}; ///< until the answer may be sent
    };

    [[nodiscard]] CReply execute(const U3v::CRequest &request, Time now);
    [[nodiscard]] CReply readMemory(const QByteArray &payload, Time now);
    [[nodiscard]] CReply writeMemory(const QByteArray &payload, Time now);
    /// What is lost, cut short or mistaken by the faults; nothing is sent then, or something else.
    [[nodiscard]] std::optional<QByteArray> spoil(QByteArray answer);
    void runFaults(Time now);
    void announce(quint16 id, std::chrono::milliseconds duration, Time now);
    void leave(Time now);

    const CCameraSettings m_settings;
    ICameraObserver &m_observer;
    CUsbStream m_stream;
    CCameraMemory m_memory;
    CStatistics m_statistics;

    Time m_lastTick{0};
    std::deque<CAnswer> m_answers;
    std::optional<quint16> m_opening; ///< of the request that is announced without end
    bool m_isStalled = false;
    bool m_hasStalled = false; ///< by the fault, which happens once
    bool m_hasUnplugged = false; ///< the same
    bool m_isSilent = false; ///< for ever
    bool m_isUnplugged = false;
    bool m_isGone = false; ///< for ever
    std::optional<Time> m_leaves; ///< a reset has been asked for
    std::optional<Time> m_returns;
};

} // namespace VirtualCamera
