#include "fuzztarget.h"
#include "viewer/camera/genicam/usbdescriptors.h"

using namespace Viewer::Camera::GenICam;

/// Whatever a device says of itself, its texts fit on one line, and are no longer than a descriptor
/// lets them be; what follows a camera's own descriptor changes nothing.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = Fuzz::toBytes(data, size);
    const QString text = readUsbText(bytes);
    Fuzz::require(text.size() <= 126 && !Viewer::Text::hasUnprintable(text));
    const auto camera = findUsbCamera(bytes);
    if (!camera)
        return 0;
    const auto again = findUsbCamera(bytes + bytes);
    Fuzz::require(again && again->model == camera->model && again->interface == camera->interface);
    return 0;
}
