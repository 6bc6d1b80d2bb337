#pragma once

#include "foundcamera.h"

#include <QByteArray>
#include <QVector>

#include <optional>

namespace Viewer::Camera::GenICam {

/// The USB3 Vision cameras that are plugged in, as the system knows them. A camera is asked for its
/// texts, which disturbs nobody who uses it. Blocks up to a second for each camera that does not
/// answer; any thread.
[[nodiscard]] QVector<CFoundCamera> findUsbCameras();

/// By what a camera is controlled.
struct CUsbControl
{
    QByteArray node; ///< the file of the device
    quint8 interface = 0;
    quint8 commands = 0; ///< endpoints of the interface; 0: it has none
    quint8 answers = 0;
};

/// By what the camera at @p address, as it was found, is controlled; nothing: it is not there any
/// more. Nobody is disturbed; any thread.
[[nodiscard]] std::optional<CUsbControl> findUsbControl(const QString &address);

/// The file with the rule by which udev lets users open such cameras, as it is installed.
[[nodiscard]] inline QString getUsbRuleName()
{
    return QStringLiteral("70-nuvexviewer-usb3vision.rules");
}

} // namespace Viewer::Camera::GenICam
