#include "cameraerror.h"

namespace Viewer::CameraPool {

using Text::CErrorText;
CCameraError::CCameraError(const QString &cameraName, const CErrorText &cause)
    : CCameraError(CErrorText::tr("Camera %1: %2").arg(cameraName, cause))
{
}

CCameraError::CCameraError(const CErrorText &text)
    : BaseException(text.getEnglish())
    , m_text(text)
{
}

CCameraError::~CCameraError() = default;

CErrorText CCameraError::getText() const
{
    return m_text;
}

} // namespace Viewer::CameraPool
