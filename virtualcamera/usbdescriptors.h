#pragma once

#include <QByteArray>
#include <QVector>

namespace VirtualCamera {

/// Endpoints of the camera: addresses on the bus.
namespace UsbEndpoint {
inline constexpr quint8 COMMANDS = 0x01;
inline constexpr quint8 ANSWERS = 0x81;
inline constexpr quint8 IMAGES = 0x82;
} // namespace UsbEndpoint

/// What a USB3 Vision camera says of itself to every host, before anybody talks its protocol.
struct CUsbDescriptors
{
    /// Device and configuration, as the system gives them out.
    QByteArray bytes;
    /// UTF-8, by the index that the descriptors name; the first one is no text.
    QVector<QByteArray> texts;
    QByteArray uniqueNumber; ///< 12 letters and digits, which no other camera has

    /// A string descriptor, as it goes over the wire; empty: there is none.
    [[nodiscard]] QByteArray getText(int index) const;
};

/// @p number tells cameras apart that say that they are the same one.
[[nodiscard]] CUsbDescriptors makeUsbDescriptors(const QByteArray &vendor, const QByteArray &model,
                                                 const QByteArray &version,
                                                 const QByteArray &serialNumber,
                                                 const QByteArray &userName, int number);

} // namespace VirtualCamera
