#pragma once

#include "icameradevice.h"

#include <memory>

namespace Viewer::Camera {

/// Makes the device behind a camera id.
class ICameraDeviceFactory
{
public:
    virtual ~ICameraDeviceFactory() = default;

    /// A closed device for the camera @p cameraId, or null when there is no such camera. Does not
    /// touch the camera. GUI thread; the device is then used by one worker thread.
    [[nodiscard]] virtual std::unique_ptr<ICameraDevice> createDevice(const QString &cameraId) = 0;
};

} // namespace Viewer::Camera
