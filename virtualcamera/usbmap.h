#pragma once

#include <QtGlobal>

/// Where the bootstrap registers of USB3 Vision lie in the camera's address space; little-endian,
/// where the features are big-endian as on Ethernet.
namespace VirtualCamera::UsbMap {

// Every device of GenCP has these, at these places.
inline constexpr quint32 PROTOCOL_VERSION = 0x0000;
inline constexpr quint32 VENDOR_NAME = 0x0004;
inline constexpr quint32 MODEL_NAME = 0x0044;
inline constexpr quint32 FAMILY_NAME = 0x0084;
inline constexpr quint32 DEVICE_VERSION = 0x00C4;
inline constexpr quint32 VENDOR_INFORMATION = 0x0104;
inline constexpr quint32 SERIAL_NUMBER = 0x0144;
inline constexpr quint32 USER_NAME = 0x0184;
inline constexpr int TEXT_SIZE = 64;
inline constexpr quint32 CAPABILITY = 0x01C4; ///< 8 bytes, as all but the shorter ones below
inline constexpr quint32 RESPONSE_TIME = 0x01CC; ///< 4 bytes, ms
inline constexpr quint32 MANIFEST_TABLE = 0x01D0;
inline constexpr quint32 TECHNOLOGY_REGISTERS = 0x01D8;
inline constexpr quint32 CONFIGURATION = 0x01E0;

// Those of USB3 Vision.
inline constexpr quint32 TECHNOLOGY = 0x0400;
inline constexpr quint32 TECHNOLOGY_VERSION = TECHNOLOGY + 0x00; ///< 4 bytes
inline constexpr quint32 LONGEST_COMMAND = TECHNOLOGY + 0x14; ///< 4 bytes
inline constexpr quint32 LONGEST_ANSWER = TECHNOLOGY + 0x18; ///< 4 bytes
inline constexpr quint32 STREAM_COUNT = TECHNOLOGY + 0x1C; ///< 4 bytes
inline constexpr quint32 STREAM_REGISTERS = TECHNOLOGY + 0x20;
inline constexpr quint32 STREAM_REGISTERS_SIZE = TECHNOLOGY + 0x28; ///< 4 bytes
inline constexpr quint32 SPEED = TECHNOLOGY + 0x40; ///< 4 bytes

// Those of the stream.
inline constexpr quint32 STREAM = 0x0480;
inline constexpr quint32 STREAM_CONTROL = STREAM + 0x04;
inline constexpr quint32 REQUIRED_PAYLOAD_SIZE = STREAM + 0x08; ///< 8 bytes
inline constexpr quint32 REQUIRED_LEADER_SIZE = STREAM + 0x10;
inline constexpr quint32 REQUIRED_TRAILER_SIZE = STREAM + 0x14;
inline constexpr quint32 LONGEST_LEADER = STREAM + 0x18;
inline constexpr quint32 TRANSFER_SIZE = STREAM + 0x1C;
inline constexpr quint32 LONGEST_TRAILER = STREAM + 0x2C;
inline constexpr quint32 STREAM_END = STREAM + 0x30;

/// How many descriptions there are, and behind it where and what the only one is.
inline constexpr quint32 MANIFEST = 0x0500;
inline constexpr quint32 MANIFEST_ENTRY = MANIFEST + 8;

} // namespace VirtualCamera::UsbMap
