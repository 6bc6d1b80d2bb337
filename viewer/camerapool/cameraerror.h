#pragma once

#include "core/baseexception.h"

namespace Viewer::CameraPool {

/// A camera did not do what it was asked to do. The message is one line of English text without a
/// final full stop that names the camera and the cause.
class CCameraError : public Core::Exception::BaseException
{
public:
    /// "Camera <name>: <cause>"
    CCameraError(const QString &cameraName, const QString &cause);
    ~CCameraError() override;
};

} // namespace Viewer::CameraPool
