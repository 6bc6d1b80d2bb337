#pragma once

#include "viewer/camera/icamerahandle.h"

#include <QString>

#include <memory>

namespace Viewer::CameraPool {

/// A camera for a process of its own.
struct CRemoteCamera
{
    QString kind; ///< that it is of
    QString name; ///< what messages call it
    std::shared_ptr<Camera::ICameraHandle> handle; ///< null: there is no such camera
};

} // namespace Viewer::CameraPool
