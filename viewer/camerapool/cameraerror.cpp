#include "cameraerror.h"

namespace Viewer::CameraPool {

CCameraError::CCameraError(const QString &cameraName, const QString &cause)
    : BaseException(QStringLiteral("Camera %1: %2").arg(cameraName, cause))
{
}

CCameraError::~CCameraError() = default;

} // namespace Viewer::CameraPool
