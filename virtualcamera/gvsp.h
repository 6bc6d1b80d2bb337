#pragma once

#include "pixelformat.h"

#include <QRect>
#include <QtGlobal>

#include <chrono>

/// The stream protocol of GigE Vision as a camera needs it: one leader, payload and one trailer
/// make a block, which is one image. All numbers are big-endian on the wire.
namespace VirtualCamera::Gvsp {

inline constexpr int HEADER_SIZE = 8;
inline constexpr int LEADER_SIZE = HEADER_SIZE + 36;
inline constexpr int TRAILER_SIZE = HEADER_SIZE + 8;

/// Headers of IP and UDP, which count as part of a packet where its size is told.
inline constexpr int TRANSPORT_SIZE = 20 + 8;

enum class EContent : quint8 {
    Leader = 1,
    Trailer = 2,
    Payload = 3,
};

enum class EStatus : quint16 {
    Success = 0x0000,
    Resent = 0x0100,
    Unavailable = 0x800C, ///< the packet is not, or no longer, to be had
};

/// Writes HEADER_SIZE bytes to @p target. @p block is 1 to 65535; @p packet counts from 0, the
/// leader, to the trailer.
void writeHeader(uchar *target, EStatus status, quint16 block, EContent content, quint32 packet);

/// Writes what follows the header of a leader. @p time is the camera's when the image was taken.
void writeLeader(uchar *target, std::chrono::nanoseconds time, const CPixelFormat &format,
                 const QRect &region);

/// Writes what follows the header of a trailer.
void writeTrailer(uchar *target, int rows);

} // namespace VirtualCamera::Gvsp
