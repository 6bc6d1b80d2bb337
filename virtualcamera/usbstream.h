#pragma once

#include "camerasettings.h"
#include "frameclock.h"
#include "imagestream.h"

#include <QByteArray>

#include <deque>
#include <optional>

namespace VirtualCamera {

/// Takes frames and gives them out as transfers of USB3 Vision: a leader, the pixels, a trailer. It
/// has neither bus nor clock.
///
/// The host fetches; frames that find no room where they wait for it are lost.
class CUsbStream : public IImageStream
{
public:
    /// The faults are those of @p settings, which has to outlive this object.
    explicit CUsbStream(const CCameraSettings &settings);

    // IImageStream
    void configure(const CStreamSettings &settings) override;
    void setPicture(std::shared_ptr<const CPicture> picture) override;
    void start(quint32 frameCount, Time now) override;
    void stop() override;
    void abort() override;
    void trigger() override;
    [[nodiscard]] bool isAcquiring() const override;
    void fireTestPacket() override;
    [[nodiscard]] const CStreamStatistics &getStatistics() const override { return m_statistics; }

    /// Without it nothing is given out and frames are lost.
    void setEnabled(bool isEnabled);

    /// Takes the frames that are due.
    void tick(Time now);

    /// The next transfer, written to @p target, which has room for @p size bytes: how many there
    /// are; nothing: there is none yet.
    [[nodiscard]] std::optional<int> take(uchar *target, int size);

    /// When tick() has something to do; in the past: at once.
    [[nodiscard]] std::optional<Time> getNextDeadline() const;

    /// Half of the frame has been given out in which the camera is unplugged by its fault, which
    /// happens once.
    [[nodiscard]] bool isAtUnplugging() const { return m_isAtUnplugging; }

private:
    struct CFrame
    {
        qint64 number = 0;
        Time time{0};
        std::shared_ptr<const CPicture> picture;
        bool hasLeader = false; ///< it has been given out
        int offset = 0; ///< so many bytes of the pixels have been given out
    };

    [[nodiscard]] static int copy(const QByteArray &bytes, uchar *target, int size);

    const CCameraSettings &m_faults;
    CFrameClock m_clock;
    std::shared_ptr<const CPicture> m_picture;
    std::deque<CFrame> m_frames; ///< the first one is being given out, or waits for that
    bool m_isEnabled = false;
    bool m_isStuck = false; ///< by the fault, until the next start
    bool m_isAtUnplugging = false;
    CStreamStatistics m_statistics;
};

} // namespace VirtualCamera
