#pragma once

#include <QtGlobal>

namespace VirtualCamera {

/// What a camera has been asked, in numbers of datagrams.
struct CStatistics
{
    qint64 discoveries = 0;
    qint64 registerReads = 0;
    qint64 registerWrites = 0;
    qint64 memoryReads = 0;
    qint64 memoryWrites = 0;
    qint64 repeated = 0; ///< answered again without being executed again
    qint64 lost = 0; ///< by a fault that the camera was started with
    qint64 dropped = 0; ///< not understood, not from this machine, or while the camera was away
};

/// What a camera has streamed.
struct CStreamStatistics
{
    qint64 frames = 0; ///< taken to their end
    qint64 packets = 0; ///< sent for the first time
    qint64 lost = 0; ///< by a fault that the camera was started with
    qint64 resent = 0;
    qint64 unavailable = 0; ///< asked for again, and not to be had
};

} // namespace VirtualCamera
