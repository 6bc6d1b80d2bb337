#pragma once

#include "gvcp.h"
#include "pixelformat.h"

#include <QByteArray>
#include <QRect>

#include <chrono>
#include <optional>

/// The control and the stream protocol of USB3 Vision as a camera needs them. All numbers are
/// little-endian on the wire.
namespace VirtualCamera::U3v {

inline constexpr quint32 GENCP_VERSION = 0x00010001; // 1.1
inline constexpr quint32 VERSION = 0x00010000; // 1.0
inline constexpr quint32 SUPER_SPEED = 0x8; ///< where a speed is told by a bit

inline constexpr int HEADER_SIZE = 12;
/// Of commands and of answers, in bytes with the header.
inline constexpr int LONGEST_TRANSFER = 1024;

inline constexpr int LEADER_SIZE = 52;
inline constexpr int TRAILER_SIZE = 32;

enum class ECommand : quint16 {
    ReadMemory = 0x0800,
    WriteMemory = 0x0802,
    Pending = 0x0804, ///< only its acknowledge exists
};

/// A transfer that asks for something.
struct CRequest
{
    bool wantsAnswer = false;
    quint16 command = 0; ///< an ECommand, or something unknown
    quint16 id = 0; ///< chosen by the sender
    bool isComplete = false; ///< the payload is as long as the header says
    QByteArray payload;
};

/// The request in @p transfer; nothing when it is too short for a header, or of another protocol.
[[nodiscard]] std::optional<CRequest> parseRequest(const QByteArray &transfer);

/// The answer to @p command with @p id. The status is the same number as on Ethernet.
[[nodiscard]] QByteArray makeAnswer(Gvcp::EStatus status, quint16 command, quint16 id,
                                    const QByteArray &payload = {});

/// Two halves of a word, of which the first means nothing.
[[nodiscard]] QByteArray makeHalfWord(quint16 number);

/// What comes in front of a frame, and behind it.
[[nodiscard]] QByteArray makeLeader(quint64 block, std::chrono::nanoseconds time,
                                    const CPixelFormat &format, const QRect &region);
[[nodiscard]] QByteArray makeTrailer(quint64 block, quint64 payloadSize, int rows);

} // namespace VirtualCamera::U3v
