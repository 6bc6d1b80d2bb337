#include "cameraerror.h"

namespace Viewer::Camera {

using Text::CErrorText;
CCameraError::CCameraError(const QString &cameraName, const CErrorText &cause, EChange change)
    : CCameraError(CErrorText::tr("Camera %1: %2").arg(cameraName, cause), change)
{
}

CCameraError::CCameraError(const CErrorText &text, EChange change)
    : BaseException(text.getEnglish())
    , m_text(text)
    , m_change(change)
{
}

CCameraError::~CCameraError() = default;

CCameraError CCameraError::fromText(const CErrorText &text, EChange change)
{
    return {text, change};
}

CErrorText CCameraError::getText() const
{
    return m_text;
}

CCameraError::EChange CCameraError::getChange() const
{
    return m_change;
}

} // namespace Viewer::Camera
