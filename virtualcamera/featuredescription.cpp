#include "featuredescription.h"

#include "camerasettings.h"
#include "memorymap.h"
#include "pixelformat.h"
#include "usbmap.h"
#include "zipwriter.h"

#include <QFile>
#include <QList>

#include <utility>

namespace VirtualCamera {

static const QByteArray XML_NAME = "camera.xml";

static constexpr std::pair<const char *, EDescription> NAMES[] = {
    {"sound", EDescription::Sound},
    {"zip", EDescription::Zipped},
    {"self-value", EDescription::SelfValue},
    {"self-address", EDescription::SelfAddress},
    {"self-feature", EDescription::SelfFeature},
    {"file", EDescription::File},
    {"http", EDescription::Http},
    {"bomb-100", EDescription::Bomb100},
    {"bomb-1000", EDescription::Bomb1000},
    {"large", EDescription::Large},
    {"broken", EDescription::Broken},
};

std::optional<EDescription> findDescription(const QByteArray &name)
{
    for (const auto &[known, description] : NAMES) {
        if (name == known)
            return description;
    }
    return {};
}

QByteArray getDescriptionNames()
{
    QList<QByteArray> names;
    for (const auto &[name, description] : NAMES)
        names.append(name);
    return names.join(", ");
}

static QByteArray getPixelFormatEntries()
{
    QByteArray entries;
    for (const CPixelFormat &format : PIXEL_FORMATS) {
        entries += QByteArray("\n    <EnumEntry Name=\"") + format.name + "\">\n      <Value>0x"
            + QByteArray::number(format.code, 16) + "</Value>\n    </EnumEntry>";
    }
    return entries;
}

// The bootstrap registers that tell who the camera is.
static QByteArray getIdentity(ETransport transport)
{
    struct CText
    {
        const char *name;
        quint32 ethernetAddress;
        int ethernetSize;
        quint32 usbAddress;
        const char *access;
    };
    static constexpr CText TEXTS[] = {
        {"DeviceVendorName", MemoryMap::VENDOR_NAME, 32, UsbMap::VENDOR_NAME, "RO"},
        {"DeviceModelName", MemoryMap::MODEL_NAME, 32, UsbMap::MODEL_NAME, "RO"},
        {"DeviceVersion", MemoryMap::DEVICE_VERSION, 32, UsbMap::DEVICE_VERSION, "RO"},
        {"DeviceSerialNumber", MemoryMap::SERIAL_NUMBER, 16, UsbMap::SERIAL_NUMBER, "RO"},
        {"DeviceUserID", MemoryMap::USER_NAME, 16, UsbMap::USER_NAME, "RW"},
    };
    const bool isUsb = transport == ETransport::Usb;
    QByteArray xml;
    for (const CText &text : TEXTS) {
        xml += QByteArray("  <StringReg Name=\"") + text.name + "\">\n    <Address>0x"
            + QByteArray::number(isUsb ? text.usbAddress : text.ethernetAddress, 16)
            + "</Address>\n    <Length>"
            + QByteArray::number(isUsb ? UsbMap::TEXT_SIZE : text.ethernetSize)
            + "</Length>\n    <AccessMode>" + text.access
            + "</AccessMode>\n    <pPort>Device</pPort>\n  </StringReg>\n\n";
    }
    return xml;
}

// Each piece of text that begins so, up to the end that follows.
static void removeAll(QByteArray &xml, const QByteArray &begin, const QByteArray &end)
{
    for (int from = xml.indexOf(begin); from >= 0; from = xml.indexOf(begin, from))
        xml.remove(from, xml.indexOf(end, from + 1) - from);
}

static QByteArray readSound(const CCameraSettings &settings)
{
    QFile file(QStringLiteral(":/virtualcamera/camera.xml"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The description of the features is not part of the program.");
    QByteArray xml = file.readAll();
    xml.replace("@BUFFER_LENGTH@", QByteArray::number(settings.bufferLength));
    xml.replace("@SENSOR_WIDTH@", QByteArray::number(MemoryMap::SENSOR_WIDTH));
    xml.replace("@SENSOR_HEIGHT@", QByteArray::number(MemoryMap::SENSOR_HEIGHT));
    xml.replace("@PIXEL_FORMATS@", getPixelFormatEntries());
    xml.replace("@IDENTITY@", getIdentity(settings.transport));
    if (settings.transport == ETransport::Usb) {
        xml.replace("StandardNameSpace=\"GEV\"", "StandardNameSpace=\"U3V\"");
        removeAll(xml, "\n    <pFeature>Gev", "\n");
        removeAll(xml, "  <!-- Of Ethernet only -->", "  <!-- File access -->");
    }
    // Who can read it can wait for its end.
    xml.replace("@EXECUTE_ACCESS@", settings.operationReads > 0 ? "RW" : "WO");
    return xml;
}

static QByteArray replaceOnce(QByteArray xml, const QByteArray &before, const QByteArray &after)
{
    if (xml.count(before) != 1)
        qFatal("\"%s\" is not once in the description of the features.", before.constData());
    return xml.replace(before, after);
}

// The feature is one that is read before every update.
static QByteArray tieKnot(const QByteArray &xml, EDescription kind)
{
    switch (kind) {
    case EDescription::SelfValue:
        return replaceOnce(xml, "<IntReg Name=\"DeviceStatus\">",
                           "<Integer Name=\"DeviceStatus\">\n"
                           "    <pValue>DeviceStatusAgain</pValue>\n"
                           "  </Integer>\n\n"
                           "  <Integer Name=\"DeviceStatusAgain\">\n"
                           "    <pValue>DeviceStatus</pValue>\n"
                           "  </Integer>\n\n"
                           "  <IntReg Name=\"DeviceStatusRegister\">");
    case EDescription::SelfAddress:
        return replaceOnce(xml, "<Address>0x100020</Address>", "<pAddress>DeviceStatus</pAddress>");
    case EDescription::SelfFeature:
        return replaceOnce(xml, "<Category Name=\"DeviceControl\">",
                           "<Category Name=\"DeviceControl\">\n    <pFeature>Root</pFeature>");
    default:
        return xml;
    }
}

static CFeatureDescription makeLocal(const QByteArray &name, QByteArray bytes)
{
    const QByteArray url = "Local:" + name + ';' + QByteArray::number(MemoryMap::DESCRIPTION, 16)
        + ';' + QByteArray::number(bytes.size(), 16);
    const int size = bytes.size();
    bytes.append((4 - size % 4) % 4, '\0');
    return {url, bytes, size, name.endsWith(".zip")};
}

static CFeatureDescription makeZipped(const QByteArray &xml, qint64 size = 0)
{
    CZipWriter writer;
    writer.add(XML_NAME, xml, size);
    return makeLocal("camera.zip", writer.getArchive());
}

CFeatureDescription makeFeatureDescription(const CCameraSettings &settings)
{
    constexpr qint64 BOMB_UNIT = 1'000'000;
    constexpr int MEBIBYTE = 1024 * 1024;
    const QByteArray sound = readSound(settings);
    switch (settings.description) {
    case EDescription::Sound:
        break;
    case EDescription::Zipped:
        return makeZipped(sound);
    case EDescription::SelfValue:
    case EDescription::SelfAddress:
    case EDescription::SelfFeature:
        return makeLocal(XML_NAME, tieKnot(sound, settings.description));
    case EDescription::File:
        return {"File:///dev/zero", {}, 0, false};
    case EDescription::Http:
        return {"http://127.0.0.1:9/camera.xml", {}, 0, false};
    case EDescription::Bomb100:
        return makeZipped(sound, 100 * BOMB_UNIT);
    case EDescription::Bomb1000:
        return makeZipped(sound, 1000 * BOMB_UNIT);
    case EDescription::Large:
        return makeLocal(XML_NAME, sound.leftJustified(16 * MEBIBYTE + 4, ' '));
    case EDescription::Broken:
        return makeLocal(XML_NAME, sound.left(sound.size() / 2));
    case EDescription::Given:
        return makeLocal(settings.descriptionName, settings.descriptionContent);
    }
    return makeLocal(XML_NAME, sound);
}

} // namespace VirtualCamera
