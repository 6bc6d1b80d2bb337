#include "installation.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace Viewer::Process {

static QString fromProgram(const char *path)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1Char('/')
                           + QString::fromUtf8(path));
}

static QString findFromProgram(const char *path)
{
    const QString found = fromProgram(path);
    return QFileInfo::exists(found) ? found : QString();
}

QString getWorkerPath()
{
    return fromProgram(INSTALLED_WORKERS "/nuvexcameraworker");
}

QString getPluginFolder()
{
    const QString folder = findFromProgram(INSTALLED_PLUGINS);
    return folder.isEmpty() ? QCoreApplication::applicationDirPath() : folder;
}

QString findSampleFolder()
{
    return findFromProgram(INSTALLED_SAMPLES);
}

QString findManual()
{
    return findFromProgram(INSTALLED_MANUAL "/index.html");
}

} // namespace Viewer::Process
