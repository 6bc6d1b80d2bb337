#include "updatefileerror.h"

#include "viewer/json/messagetext.h"

#include <QDir>

namespace Viewer::CameraPool::UpdateFile {

CUpdateFileError::CUpdateFileError(const QString &path, const QString &cause)
    : BaseException(QStringLiteral("Update file %1: %2")
                        .arg(Json::toSingleLine(QDir::toNativeSeparators(path)), cause))
    , m_cause(cause)
{
}

CUpdateFileError::~CUpdateFileError() = default;

QString CUpdateFileError::getCause() const
{
    return m_cause;
}

} // namespace Viewer::CameraPool::UpdateFile
