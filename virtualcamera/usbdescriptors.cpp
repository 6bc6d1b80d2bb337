#include "usbdescriptors.h"

#include "u3v.h"

#include <QCryptographicHash>
#include <QtEndian>

namespace VirtualCamera {

namespace {

// Kinds of descriptors.
constexpr char DEVICE = 1;
constexpr char CONFIGURATION = 2;
constexpr char STRING = 3;
constexpr char INTERFACE = 4;
constexpr char ENDPOINT = 5;
constexpr char ASSOCIATION = 11;
constexpr char CAMERA = 0x24;
constexpr char COMPANION = 0x30;

// The class of USB3 Vision and its parts.
constexpr char MISCELLANEOUS = '\xEF';
constexpr char VISION = 5;
constexpr char CONTROL_PROTOCOL = 0;
constexpr char STREAM_PROTOCOL = 2;

// Texts, by their index.
enum EText : char {
    Languages,
    Vendor,
    Model,
    SerialNumber,
    UniqueNumber,
    Version,
    Information,
    UserName,
};

template <typename Number>
QByteArray little(Number number)
{
    char bytes[sizeof number];
    qToLittleEndian(number, bytes);
    return QByteArray(bytes, sizeof number);
}

QByteArray makeDescriptor(char kind, const QByteArray &rest)
{
    return QByteArray(1, static_cast<char>(rest.size() + 2)) + kind + rest;
}

QByteArray makeEndpoint(quint8 address)
{
    constexpr char BULK = 2;
    constexpr quint16 PACKET_SIZE = 1024;
    return makeDescriptor(ENDPOINT,
                          QByteArray(1, static_cast<char>(address)) + BULK + little(PACKET_SIZE)
                              + '\0')
        + makeDescriptor(COMPANION, QByteArray(4, '\0'));
}

QByteArray makeInterface(char number, char endpoints, char protocol)
{
    return makeDescriptor(INTERFACE,
                          QByteArray(1, number) + '\0' + endpoints + MISCELLANEOUS + VISION
                              + protocol + '\0');
}

} // namespace

QByteArray CUsbDescriptors::getText(int index) const
{
    if (index < 0 || index >= texts.size())
        return {};
    if (index == Languages)
        return makeDescriptor(STRING, little(quint16(0x0409)));
    QByteArray utf16;
    for (const QChar letter : QString::fromUtf8(texts.at(index)).left(126))
        utf16 += little(quint16(letter.unicode()));
    return makeDescriptor(STRING, utf16);
}

CUsbDescriptors makeUsbDescriptors(const QByteArray &vendor, const QByteArray &model,
                                   const QByteArray &version, const QByteArray &serialNumber,
                                   const QByteArray &userName, int number)
{
    // Four digits that stand for the vendor, and eight of its own.
    const QByteArray digest = QCryptographicHash::hash(vendor + '\n' + model + '\n' + serialNumber
                                                           + '\n' + QByteArray::number(number),
                                                       QCryptographicHash::Sha1)
                                  .toHex()
                                  .toUpper();
    CUsbDescriptors descriptors;
    descriptors.uniqueNumber = "F0A7" + digest.left(8);
    descriptors.texts = {{},      vendor,           model,   serialNumber, descriptors.uniqueNumber,
                         version, "virtual camera", userName};

    const QByteArray device
        = makeDescriptor(DEVICE,
                         little(quint16(0x0300)) + MISCELLANEOUS + '\x02' + '\x01' + '\x09'
                             + little(quint16(0x1209)) + little(quint16(0x0001))
                             + little(quint16(0x0100)) + Vendor + Model + SerialNumber + '\x01');
    const char userNameIndex = userName.isEmpty() ? '\0' : char(UserName);
    const QByteArray camera
        = makeDescriptor(CAMERA,
                         QByteArray(1, '\x01') + little(U3v::GENCP_VERSION) + little(U3v::VERSION)
                             + UniqueNumber + Vendor + Model + Model + Version + Information
                             + SerialNumber + userNameIndex + static_cast<char>(U3v::SUPER_SPEED));
    const QByteArray rest
        = makeDescriptor(ASSOCIATION,
                         QByteArray(1, '\0') + '\x02' + MISCELLANEOUS + VISION + '\0' + '\0')
        + makeInterface(0, 2, CONTROL_PROTOCOL) + camera + makeEndpoint(UsbEndpoint::COMMANDS)
        + makeEndpoint(UsbEndpoint::ANSWERS) + makeInterface(1, 1, STREAM_PROTOCOL)
        + makeEndpoint(UsbEndpoint::IMAGES);
    constexpr int CONFIGURATION_SIZE = 9;
    descriptors.bytes = device
        + makeDescriptor(CONFIGURATION,
                         little(static_cast<quint16>(CONFIGURATION_SIZE + rest.size())) + '\x02'
                             + '\x01' + '\0' + '\x80' + '\x70')
        + rest;
    return descriptors;
}

} // namespace VirtualCamera
