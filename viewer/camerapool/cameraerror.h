#pragma once

#include "viewer/text/errortext.h"

#include "core/baseexception.h"

namespace Viewer::CameraPool {

/// A camera did not do what it was asked to do. The message is one line of English text without a
/// final full stop that names the camera and the cause.
class CCameraError : public Core::Exception::BaseException
{
public:
    /// "Camera <name>: <cause>"
    CCameraError(const QString &cameraName, const Text::CErrorText &cause);
    ~CCameraError() override;

    /// The message, also in the user's language.
    [[nodiscard]] Text::CErrorText getText() const;

private:
    explicit CCameraError(const Text::CErrorText &text);

    Text::CErrorText m_text;
};

} // namespace Viewer::CameraPool
