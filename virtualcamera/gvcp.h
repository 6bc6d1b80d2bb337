#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <optional>

/// The control protocol of GigE Vision as a camera needs it: words of a datagram and their
/// packing. All numbers are big-endian on the wire.
namespace VirtualCamera::Gvcp {

inline constexpr quint16 PORT = 3956;
inline constexpr int HEADER_SIZE = 8;

/// Bytes of memory that one command reads or writes at most, a multiple of 4.
inline constexpr int MAXIMUM_BLOCK = 536;

/// Bytes behind the header of the longest datagram, a write of a whole block.
inline constexpr int MAXIMUM_PAYLOAD = MAXIMUM_BLOCK + 4;

enum class ECommand : quint16 {
    Discovery = 0x0002,
    PacketResend = 0x0040,
    ReadRegister = 0x0080,
    WriteRegister = 0x0082,
    ReadMemory = 0x0084,
    WriteMemory = 0x0086,
    Pending = 0x0088, ///< only its acknowledge exists
    Restart = 0xC000, ///< no command of the standard: from one virtual camera to another
};

enum class EStatus : quint16 {
    Success = 0x0000,
    NotImplemented = 0x8001,
    InvalidParameter = 0x8002,
    InvalidAddress = 0x8003,
    WriteProtect = 0x8004,
    BadAlignment = 0x8005,
    AccessDenied = 0x8006,
    Busy = 0x8007,
    InvalidHeader = 0x800E,
    Error = 0x8FFF,
};

/// A datagram that asks for something.
struct CRequest
{
    bool wantsAnswer = false;
    quint16 command = 0; ///< an ECommand, or something unknown
    quint16 id = 0; ///< chosen by the sender, not 0
    bool isComplete = false; ///< the payload is as long as the header says
    QByteArray payload;
};

/// What a PacketResend asks for.
struct CResendRequest
{
    quint16 block; ///< of 16 bits
    quint32 firstPacket; ///< both of 24 bits
    quint32 lastPacket;
};

/// What is asked for in the payload of a PacketResend; nothing when it is of another size or for
/// another than the first stream channel.
[[nodiscard]] std::optional<CResendRequest> parseResendRequest(const QByteArray &payload);

/// The request in @p datagram; nothing when it is too short for a header, of another protocol, or
/// an answer.
[[nodiscard]] std::optional<CRequest> parseRequest(const QByteArray &datagram);

/// A datagram that asks for something without a payload and wants no answer.
[[nodiscard]] QByteArray makeOrder(ECommand command);

/// The answer to @p command with @p id.
[[nodiscard]] QByteArray makeAnswer(EStatus status, quint16 command, quint16 id,
                                    const QByteArray &payload = {});

[[nodiscard]] quint32 readWord(const QByteArray &bytes, int offset);
void appendWord(QByteArray &bytes, quint32 word);
void appendHalfWord(QByteArray &bytes, quint16 word);

/// A word that holds a number by IEEE 754.
[[nodiscard]] float toFloat(quint32 word);
[[nodiscard]] quint32 toWord(float number);

} // namespace VirtualCamera::Gvcp
