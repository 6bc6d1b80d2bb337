#pragma once

#include "viewer/text/errortext.h"

#include "core/baseexception.h"

namespace Viewer::UpdateFile {

/// An update file cannot be read, or breaks a rule of the format. The message is one line of
/// English text without a final full stop that names the file and the fault.
class CUpdateFileError : public Core::Exception::BaseException
{
public:
    /// "Update file <path>: <cause>", with native separators.
    CUpdateFileError(const QString &path, const Text::CErrorText &cause);
    ~CUpdateFileError() override;

    /// The cause alone.
    [[nodiscard]] Text::CErrorText getCause() const;

    /// The message, also in the user's language.
    [[nodiscard]] Text::CErrorText getText() const;

private:
    CUpdateFileError(const Text::CErrorText &text, const Text::CErrorText &cause);

    Text::CErrorText m_text;
    Text::CErrorText m_cause;
};

} // namespace Viewer::UpdateFile
