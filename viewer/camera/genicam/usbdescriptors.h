#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace Viewer::Camera::GenICam {

/// What a USB device says of itself as a USB3 Vision camera: the interface that controls it, and
/// the numbers of texts, of which 0 is none.
struct CUsbTexts
{
    quint8 interface = 0;
    QByteArray endpoints; ///< addresses of those of the interface
    quint8 uniqueNumber = 0; ///< given by the maker
    quint8 vendor = 0;
    quint8 model = 0;
    quint8 version = 0;
    quint8 serialNumber = 0;
    quint8 userName = 0;
};

/// Where @p descriptors, those of the device and of its configurations in a row, tell of a USB3
/// Vision camera; nothing when it is no such camera. Any bytes are taken.
[[nodiscard]] std::optional<CUsbTexts> findUsbCamera(const QByteArray &descriptors);

/// The text in a string descriptor, on one visible line; empty when it is none.
[[nodiscard]] QString readUsbText(const QByteArray &descriptor);

} // namespace Viewer::Camera::GenICam
