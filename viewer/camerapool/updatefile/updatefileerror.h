#pragma once

#include "core/baseexception.h"

namespace Viewer::CameraPool::UpdateFile {

/// An update file cannot be read, or breaks a rule of the format. The message is one line of
/// English text without a final full stop that names the file and the fault.
class CUpdateFileError : public Core::Exception::BaseException
{
public:
    /// "Update file <path>: <cause>", with native separators.
    CUpdateFileError(const QString &path, const QString &cause);
    ~CUpdateFileError() override;

    /// The cause alone.
    [[nodiscard]] QString getCause() const;

private:
    QString m_cause;
};

} // namespace Viewer::CameraPool::UpdateFile
