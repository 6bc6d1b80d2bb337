#include "statefolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <sys/stat.h>

namespace Viewer::Files {

/// The folder of the viewer below that of the environment's @p variable, or below @p name in the
/// home folder.
static QString getFolder(const char *variable, const QLatin1String &name)
{
    QString folder = QFile::decodeName(qgetenv(variable));
    if (!QDir::isAbsolutePath(folder)) {
        const QString home = QFile::decodeName(qgetenv("HOME"));
        if (!QDir::isAbsolutePath(home))
            return {};
        folder = home + name;
    }
    return QDir::cleanPath(folder) + QLatin1String("/nuvexviewer");
}

QString getStateFolder(const QString &name)
{
    const QString folder = getFolder("XDG_STATE_HOME", QLatin1String("/.local/state"));
    return folder.isEmpty() ? QString() : folder + QLatin1Char('/') + name;
}

QString getConfigFolder()
{
    return getFolder("XDG_CONFIG_HOME", QLatin1String("/.config"));
}

int makePrivateFolder(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    if (mkdir(name.constData(), S_IRWXU) == 0 || errno == EEXIST)
        return 0;
    if (errno != ENOENT || path == QLatin1String("/"))
        return errno;
    const int error = makePrivateFolder(QFileInfo(path).path());
    if (error != 0)
        return error;
    return mkdir(name.constData(), S_IRWXU) == 0 || errno == EEXIST ? 0 : errno;
}

} // namespace Viewer::Files
