#include "usbregisters.h"

#include "featuredescription.h"
#include "memorymap.h"
#include "registers.h"
#include "u3v.h"
#include "usbmap.h"

#include <QCryptographicHash>

namespace VirtualCamera {

static void setManifest(CRegisters &registers, const CFeatureDescription &description)
{
    constexpr quint32 FILE_VERSION = 0x01000000; // 1.0.0
    constexpr quint32 SCHEMA = 0x01010000; // 1.1
    constexpr quint32 PACKED = 1 << 10;
    registers.setLittleLong(UsbMap::MANIFEST, 1);
    registers.setLittleWord(UsbMap::MANIFEST_ENTRY, FILE_VERSION);
    registers.setLittleWord(UsbMap::MANIFEST_ENTRY + 4,
                            SCHEMA | (description.isPacked ? PACKED : 0));
    registers.setLittleLong(UsbMap::MANIFEST_ENTRY + 8, MemoryMap::DESCRIPTION);
    registers.setLittleLong(UsbMap::MANIFEST_ENTRY + 16, static_cast<quint64>(description.size));
    registers.setBytes(UsbMap::MANIFEST_ENTRY + 24,
                       QCryptographicHash::hash(description.bytes.left(description.size),
                                                QCryptographicHash::Sha1));
}

void setUpUsbRegisters(CRegisters &registers, const CFeatureDescription &description)
{
    const auto setWord
        = [&registers](quint32 address, quint32 value) { registers.setLittleWord(address, value); };
    setWord(UsbMap::PROTOCOL_VERSION, U3v::GENCP_VERSION);
    registers.setLittleLong(UsbMap::CAPABILITY, 0x3); // user name, family name
    setWord(UsbMap::RESPONSE_TIME, 200);
    registers.setLittleLong(UsbMap::MANIFEST_TABLE, UsbMap::MANIFEST);
    registers.setLittleLong(UsbMap::TECHNOLOGY_REGISTERS, UsbMap::TECHNOLOGY);

    setWord(UsbMap::TECHNOLOGY_VERSION, U3v::VERSION);
    setWord(UsbMap::LONGEST_COMMAND, U3v::LONGEST_TRANSFER);
    setWord(UsbMap::LONGEST_ANSWER, U3v::LONGEST_TRANSFER);
    setWord(UsbMap::STREAM_COUNT, 1);
    registers.setLittleLong(UsbMap::STREAM_REGISTERS, UsbMap::STREAM);
    setWord(UsbMap::STREAM_REGISTERS_SIZE, UsbMap::STREAM_END - UsbMap::STREAM);
    setWord(UsbMap::SPEED, U3v::SUPER_SPEED);

    for (quint32 address = UsbMap::STREAM; address < UsbMap::STREAM_END; address += 4)
        setWord(address, 0);
    setWord(UsbMap::REQUIRED_LEADER_SIZE, U3v::LEADER_SIZE);
    setWord(UsbMap::REQUIRED_TRAILER_SIZE, U3v::TRAILER_SIZE);
    setManifest(registers, description);
}

bool isUsbRegisterWritable(quint32 address)
{
    return (address >= UsbMap::USER_NAME && address < UsbMap::USER_NAME + UsbMap::TEXT_SIZE)
        || (address >= UsbMap::CONFIGURATION && address < UsbMap::CONFIGURATION + 8)
        || address == UsbMap::STREAM_CONTROL
        || (address >= UsbMap::LONGEST_LEADER && address < UsbMap::STREAM_END);
}

} // namespace VirtualCamera
