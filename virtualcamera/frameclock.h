#pragma once

#include "cameratime.h"

#include <QtGlobal>

#include <optional>

namespace VirtualCamera {

/// When a camera takes frames, and how many.
class CFrameClock
{
public:
    /// Another rate holds from the frame that has been taken last.
    void configure(Time period, bool isTriggered);

    /// From frame 1 on; ends by itself after @p frameCount frames, 0: never.
    void start(quint32 frameCount, Time now);
    /// No further frame is taken.
    void stop();
    void trigger();

    /// Takes a frame if one is due.
    [[nodiscard]] bool take(Time now);

    /// A further frame will be taken, or may be.
    [[nodiscard]] bool isRunning() const { return m_isRunning; }
    /// Of the frame that has been taken last, since start(), from 1 on.
    [[nodiscard]] qint64 getNumber() const { return m_number; }
    /// When take() has something to do; in the past: at once.
    [[nodiscard]] std::optional<Time> getNextDeadline() const;

private:
    bool m_isRunning = false;
    bool m_isTriggered = false; ///< frames are taken when somebody asks for them
    bool m_isAskedFor = false;
    quint32 m_framesWanted = 0;
    qint64 m_number = 0;
    Time m_period{0};
    Time m_next{0};
};

} // namespace VirtualCamera
