#pragma once

#include "viewer/text/errortext.h"

#include "core/baseexception.h"

namespace Viewer::Camera {

/// A camera did not do what it was asked to do. The message is one line of English text without a
/// final full stop that names the camera and the cause.
class CCameraError : public Core::Exception::BaseException
{
public:
    /// What the failed operation may have left behind in the camera.
    enum class EChange {
        Possible, ///< it may have been carried out, as a whole or in part
        None, ///< it was refused, or never sent
        InUse, ///< nothing either: somebody else works with the camera
    };

    /// "Camera <name>: <cause>"
    CCameraError(const QString &cameraName, const Text::CErrorText &cause,
                 EChange change = EChange::Possible);
    ~CCameraError() override;

    /// An error of another process, complete with the camera's name.
    [[nodiscard]] static CCameraError fromText(const Text::CErrorText &text,
                                               EChange change = EChange::Possible);

    /// The message, also in the user's language.
    [[nodiscard]] Text::CErrorText getText() const;
    [[nodiscard]] EChange getChange() const;

private:
    CCameraError(const Text::CErrorText &text, EChange change);

    Text::CErrorText m_text;
    EChange m_change;
};

} // namespace Viewer::Camera
