#pragma once

#include "foundcamera.h"

#include <QVector>

namespace Viewer::Camera::GenICam {

/// The USB3 Vision cameras that are plugged in, as the system knows them. A camera is asked for its
/// texts, which disturbs nobody who uses it. Blocks up to a second for each camera that does not
/// answer; any thread.
[[nodiscard]] QVector<CFoundCamera> findUsbCameras();

/// Clears the control channel of the camera at @p address, as it was found, from what a program
/// before may have left there. False: another program uses the camera, which has been left alone.
/// Whoever asks must not use it itself. Any thread.
[[nodiscard]] bool prepareUsbCamera(const QString &address);

/// The file with the rule by which udev lets users open such cameras, as it is installed.
[[nodiscard]] inline QString getUsbRuleName()
{
    return QStringLiteral("70-nuvexviewer-usb3vision.rules");
}

} // namespace Viewer::Camera::GenICam
