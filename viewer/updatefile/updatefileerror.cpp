#include "updatefileerror.h"

#include "viewer/text/visibletext.h"

#include <QDir>

namespace Viewer::UpdateFile {

using Text::CErrorText;
CUpdateFileError::CUpdateFileError(const QString &path, const CErrorText &cause)
    : CUpdateFileError(CErrorText::tr("Update file %1: %2")
                           .arg(Text::toSingleLine(QDir::toNativeSeparators(path)), cause),
                       cause)
{
}

CUpdateFileError::CUpdateFileError(const CErrorText &text, const CErrorText &cause)
    : BaseException(text.getEnglish())
    , m_text(text)
    , m_cause(cause)
{
}

CUpdateFileError::~CUpdateFileError() = default;

CErrorText CUpdateFileError::getCause() const
{
    return m_cause;
}

CErrorText CUpdateFileError::getText() const
{
    return m_text;
}

} // namespace Viewer::UpdateFile
