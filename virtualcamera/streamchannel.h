#pragma once

#include "camerasettings.h"
#include "frameclock.h"
#include "gvsp.h"
#include "imagestream.h"
#include "packetbatch.h"
#include "picture.h"

#include <deque>
#include <optional>

namespace VirtualCamera {

/// Takes frames and makes packets of them: which ones, and when. It has neither socket nor clock.
///
/// Packets of the latest frames are made again for who asks.
class CStreamChannel : public IImageStream
{
public:
    /// The faults are those of @p settings, which has to outlive this object.
    explicit CStreamChannel(const CCameraSettings &settings);

    // IImageStream; a frame is a block, of which 0 is none.
    void configure(const CStreamSettings &settings) override;
    void setPicture(std::shared_ptr<const CPicture> picture) override;
    void start(quint32 frameCount, Time now) override;
    void stop() override;
    void abort() override;
    void trigger() override;
    [[nodiscard]] bool isAcquiring() const override { return m_clock.isRunning() || m_isSending; }
    void fireTestPacket() override;
    [[nodiscard]] const CStreamStatistics &getStatistics() const override { return m_statistics; }

    [[nodiscard]] const CPeer &getReceiver() const { return m_settings.receiver; }

    /// Sends packets @p first to @p last of @p block once more, or says that they are not to be
    /// had.
    void resend(quint16 block, quint32 first, quint32 last);

    /// Adds what is due at @p now to @p batch, until that is full.
    void take(Time now, CPacketBatch &batch);

    /// When take() has something next; in the past: at once.
    [[nodiscard]] std::optional<Time> getNextDeadline() const;

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

    CFrameClock m_clock;
    bool m_isSending = false; ///< the latest frame
    bool m_isStuck = false; ///< by the fault, until the next start
    Time m_nextPacket{0}; ///< where there is a delay
    std::deque<CFrame> m_frames; ///< the latest ones, the one that is being sent last

    qint64 m_payloadCount = 0; ///< packets of payload whose turn has come, for faults
    std::optional<int> m_heldBack; ///< a packet that has been swapped with the next one

    std::deque<CResend> m_resends;
    bool m_hasTestPacket = false;
};

} // namespace VirtualCamera
