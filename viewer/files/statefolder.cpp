#include "statefolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <sys/stat.h>

namespace Viewer::Files {

QString getStateFolder(const QString &name)
{
    QString stateHome = QFile::decodeName(qgetenv("XDG_STATE_HOME"));
    if (!QDir::isAbsolutePath(stateHome)) {
        const QString home = QFile::decodeName(qgetenv("HOME"));
        if (!QDir::isAbsolutePath(home))
            return {};
        stateHome = home + QLatin1String("/.local/state");
    }
    return QDir::cleanPath(stateHome) + QLatin1String("/nuvexviewer/") + name;
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
