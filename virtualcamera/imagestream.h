#pragma once

#include "cameratime.h"
#include "peer.h"
#include "statistics.h"

#include <memory>

namespace VirtualCamera {

class CPicture;

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

/// What takes a camera's frames and brings them on their way, whatever that is.
class IImageStream
{
public:
    virtual ~IImageStream() = default;

    virtual void configure(const CStreamSettings &settings) = 0;

    /// What frames show that have not begun yet. Null must not be streamed.
    virtual void setPicture(std::shared_ptr<const CPicture> picture) = 0;

    /// Begins with frame 1, and ends by itself after @p frameCount frames; 0: never.
    virtual void start(quint32 frameCount, Time now) = 0;
    /// Ends when the frame that has begun is complete.
    virtual void stop() = 0;
    /// Ends at once and forgets all frames.
    virtual void abort() = 0;
    /// One frame, unless one is being sent.
    virtual void trigger() = 0;

    /// True from start() to the end of the last frame.
    [[nodiscard]] virtual bool isAcquiring() const = 0;

    /// Sends a packet of the size of packets, which means nothing, where there are packets.
    virtual void fireTestPacket() = 0;

    [[nodiscard]] virtual const CStreamStatistics &getStatistics() const = 0;
};

} // namespace VirtualCamera
