#pragma once

#include <QtGlobal>

/// Where things lie in the camera's address space.
namespace VirtualCamera::MemoryMap {

// Bootstrap registers, placed by the standard.
inline constexpr quint32 PROTOCOL_VERSION = 0x0000;
inline constexpr quint32 DEVICE_MODE = 0x0004;
inline constexpr quint32 HARDWARE_ADDRESS_HIGH = 0x0008;
inline constexpr quint32 HARDWARE_ADDRESS_LOW = 0x000C;
inline constexpr quint32 SUPPORTED_IP_CONFIGURATION = 0x0010;
inline constexpr quint32 CURRENT_IP_CONFIGURATION = 0x0014;
inline constexpr quint32 CURRENT_ADDRESS = 0x0024;
inline constexpr quint32 CURRENT_SUBNET_MASK = 0x0034;
inline constexpr quint32 VENDOR_NAME = 0x0048;
inline constexpr quint32 MODEL_NAME = 0x0068;
inline constexpr quint32 DEVICE_VERSION = 0x0088;
inline constexpr quint32 VENDOR_INFORMATION = 0x00A8;
inline constexpr quint32 SERIAL_NUMBER = 0x00D8;
inline constexpr quint32 USER_NAME = 0x00E8;
inline constexpr int DISCOVERY_SIZE = 0x00F8; ///< a discovery answer holds everything up to here
inline constexpr quint32 FIRST_URL = 0x0200;
inline constexpr quint32 SECOND_URL = 0x0400;
inline constexpr int URL_SIZE = 512;
inline constexpr quint32 INTERFACE_COUNT = 0x0600;
inline constexpr quint32 MESSAGE_CHANNEL_COUNT = 0x0900;
inline constexpr quint32 STREAM_CHANNEL_COUNT = 0x0904;
inline constexpr quint32 STREAM_CAPABILITY = 0x092C;
inline constexpr quint32 CAPABILITY = 0x0934;
inline constexpr quint32 HEARTBEAT_TIMEOUT = 0x0938;
inline constexpr quint32 TICK_FREQUENCY_HIGH = 0x093C;
inline constexpr quint32 TICK_FREQUENCY_LOW = 0x0940;
inline constexpr quint32 CONTROL_PRIVILEGE = 0x0A00;
inline constexpr quint32 STREAM_PORT = 0x0D00; ///< of who receives
inline constexpr quint32 STREAM_PACKET_SIZE = 0x0D04;
inline constexpr quint32 STREAM_PACKET_DELAY = 0x0D08; ///< in ns, the ticks of time stamps
inline constexpr quint32 STREAM_ADDRESS = 0x0D18; ///< of who receives
inline constexpr quint32 STREAM_SOURCE_PORT = 0x0D1C;
inline constexpr int BOOTSTRAP_SIZE = 0x0D28;

// Features.
inline constexpr quint32 FEATURES = 0x00100000;
inline constexpr quint32 FIRMWARE_VERSION = FEATURES + 0x00; ///< 32 bytes of text
inline constexpr quint32 DEVICE_STATUS = FEATURES + 0x20;
inline constexpr quint32 DEVICE_RESET = FEATURES + 0x24;
inline constexpr quint32 FIRMWARE_UPDATE_MODE = FEATURES + 0x28;
inline constexpr quint32 FIRMWARE_ACTIVATE = FEATURES + 0x2C;
inline constexpr quint32 EXPOSURE_TIME = FEATURES + 0x30;
inline constexpr quint32 REVERSE_X = FEATURES + 0x34;
inline constexpr quint32 GAIN = FEATURES + 0x38;
inline constexpr quint32 BLACK_LEVEL = FEATURES + 0x3C;

// File access.
inline constexpr quint32 FILE_SELECTOR = FEATURES + 0x40;
inline constexpr quint32 FILE_OPERATION_SELECTOR = FEATURES + 0x44;
inline constexpr quint32 FILE_OPEN_MODE = FEATURES + 0x48;
inline constexpr quint32 FILE_ACCESS_OFFSET = FEATURES + 0x4C;
inline constexpr quint32 FILE_ACCESS_LENGTH = FEATURES + 0x50;
inline constexpr quint32 FILE_OPERATION_EXECUTE = FEATURES + 0x54;
inline constexpr quint32 FILE_OPERATION_STATUS = FEATURES + 0x58;
inline constexpr quint32 FILE_OPERATION_RESULT = FEATURES + 0x5C;
inline constexpr quint32 FILE_SIZE = FEATURES + 0x60;

// The image.
inline constexpr int SENSOR_WIDTH = 4096;
inline constexpr int SENSOR_HEIGHT = 3000;
inline constexpr quint32 WIDTH = FEATURES + 0x64;
inline constexpr quint32 HEIGHT = FEATURES + 0x68;
inline constexpr quint32 OFFSET_X = FEATURES + 0x6C;
inline constexpr quint32 OFFSET_Y = FEATURES + 0x70;
inline constexpr quint32 PIXEL_FORMAT = FEATURES + 0x74;
inline constexpr quint32 TEST_PATTERN = FEATURES + 0x78;
inline constexpr quint32 PAYLOAD_SIZE = FEATURES + 0x7C;

// Acquisition.
inline constexpr quint32 ACQUISITION_MODE = FEATURES + 0x80;
inline constexpr quint32 ACQUISITION_START = FEATURES + 0x84;
inline constexpr quint32 ACQUISITION_STOP = FEATURES + 0x88;
inline constexpr quint32 ACQUISITION_FRAME_COUNT = FEATURES + 0x8C;
inline constexpr quint32 FRAME_RATE_ENABLE = FEATURES + 0x90;
inline constexpr quint32 FRAME_RATE = FEATURES + 0x94;
inline constexpr quint32 TRIGGER_MODE = FEATURES + 0x98;
inline constexpr quint32 TRIGGER_SELECTOR = FEATURES + 0x9C;
inline constexpr quint32 TRIGGER_SOURCE = FEATURES + 0xA0;
inline constexpr quint32 TRIGGER_ACTIVATION = FEATURES + 0xA4;
inline constexpr quint32 TRIGGER_SOFTWARE = FEATURES + 0xA8;
inline constexpr quint32 TL_PARAMS_LOCKED = FEATURES + 0xAC;
inline constexpr quint32 ACQUISITION_ACTIVE = FEATURES + 0xB0;
inline constexpr int FEATURES_SIZE = 0xB4;

/// Exactly as long as the buffer: where that is no whole number of words, its last bytes cannot be
/// written.
inline constexpr quint32 FILE_ACCESS_BUFFER = 0x00200000;

/// The description of the features, filled up to a whole word. Behind everything else, since it may
/// be of any size.
inline constexpr quint32 DESCRIPTION = 0x10000000;

} // namespace VirtualCamera::MemoryMap
