#pragma once

#include "camerasettings.h"
#include "cameratime.h"
#include "gvsp.h"
#include "packetbatch.h"
#include "peer.h"
#include "picture.h"
#include "statistics.h"

#include <deque>
#include <memory>
#include <optional>

namespace VirtualCamera {

/// How and where to a camera streams. All of it may change at any time; a frame that has begun
/// keeps its receiver and the size of its packets.
struct CStreamSettings
{
    CPeer receiver; ///< port 0: nobody; frames are taken and not sent
    int packetSize = 0; ///< in bytes with all headers
    bool mayBeFragmented = true;
    Time packetDelay{0}; ///< from one packet to the next; 0: as the frame's period allows
    Time framePeriod{0};
    bool isTriggered = false; ///< frames are taken when trigger() asks for them
};

/// Takes frames and makes packets of them: which ones, and when. It has neither socket nor clock.
///
/// Packets of the latest frames are made again for who asks.
class CStreamChannel
{
public:
    /// The faults are those of @p settings, which has to outlive this object.
    explicit CStreamChannel(const CCameraSettings &settings);

    void configure(const CStreamSettings &settings);

    /// What frames show that have not begun yet. Null must not be streamed.
    void setPicture(std::shared_ptr<const CPicture> picture);

    /// Begins with block 1, and ends by itself after @p frameCount frames; 0: never.
    void start(quint32 frameCount, Time now);
    /// Ends when the frame that has begun is complete.
    void stop();
    /// Ends at once and forgets all frames.
    void abort();
    /// One frame, unless one is being sent.
    void trigger();

    [[nodiscard]] const CPeer &getReceiver() const { return m_settings.receiver; }

    /// True from start() to the last packet.
    [[nodiscard]] bool isAcquiring() const { return m_isAcquiring; }

    /// Sends a packet of the size of packets, which means nothing.
    void fireTestPacket();

    /// Sends packets @p first to @p last of @p block once more, or says that they are not to be
    /// had.
    void resend(quint16 block, quint32 first, quint32 last);

    /// Adds what is due at @p now to @p batch, until that is full.
    void take(Time now, CPacketBatch &batch);

    /// When take() has something next; in the past: at once.
    [[nodiscard]] std::optional<Time> getNextDeadline() const;

    [[nodiscard]] const CStreamStatistics &getStatistics() const { return m_statistics; }

private:
    struct CFrame
    {
        quint16 block = 0;
        qint64 number = 0; ///< since the acquisition was started, from 1 on
        Time start{0};
        CPeer receiver;
        int packetSize = 0;
        bool mayBeFragmented = true;
        std::shared_ptr<const CPicture> picture;
        int position = 0; ///< packets whose turn has come, lost ones too

        [[nodiscard]] int getDataSize() const;
        [[nodiscard]] int getPacketCount() const; ///< with leader and trailer
    };

    struct CResend
    {
        quint16 block;
        quint32 next;
        quint32 last;
    };

    [[nodiscard]] bool beginFrame(Time now);
    void endFrame();
    [[nodiscard]] Time getPacketDue() const;
    [[nodiscard]] bool sendNextPacket(CPacketBatch &batch, Time now);
    [[nodiscard]] bool sendPacket(CPacketBatch &batch, const CFrame &frame, int packet,
                                  Gvsp::EStatus status);
    void takeResends(CPacketBatch &batch);
    [[nodiscard]] const CFrame *findFrame(quint16 block) const;

    const CCameraSettings &m_faults;
    CStreamSettings m_settings;
    std::shared_ptr<const CPicture> m_picture;
    CStreamStatistics m_statistics;

    bool m_isAcquiring = false;
    bool m_isStopping = false;
    bool m_isSending = false; ///< the latest frame
    bool m_isStuck = false; ///< by the fault, until the next start
    bool m_isTriggered = false;
    quint32 m_framesWanted = 0;
    qint64 m_frameNumber = 0;
    Time m_nextFrame{0};
    Time m_nextPacket{0}; ///< where there is a delay
    std::deque<CFrame> m_frames; ///< the latest ones, the one that is being sent last

    qint64 m_payloadCount = 0; ///< packets of payload whose turn has come, for faults
    std::optional<int> m_heldBack; ///< a packet that has been swapped with the next one

    std::deque<CResend> m_resends;
    bool m_hasTestPacket = false;
};

} // namespace VirtualCamera
