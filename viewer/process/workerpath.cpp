#include "workerpath.h"

#include <QCoreApplication>
#include <QDir>

namespace Viewer::Process {

QString getWorkerPath()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath()
                           + QStringLiteral("/../libexec/nuvexcameraworker"));
}

} // namespace Viewer::Process
