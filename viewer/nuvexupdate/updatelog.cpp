#include "updatelog.h"

#include "viewer/files/statefolder.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Viewer::NuvexUpdate {

static constexpr int MAXIMUM_COUNT = 200;

/// Their names sort by time.
static void removeOldLogs(const QString &folder)
{
    const QStringList names
        = QDir(folder).entryList({QStringLiteral("nuvexupdate_*.log")},
                                 QDir::Files | QDir::NoSymLinks, QDir::Name | QDir::Reversed);
    for (const QString &name : names.mid(MAXIMUM_COUNT))
        QFile::remove(folder + QLatin1Char('/') + name);
}

CUpdateLog::CUpdateLog(const FaultListener &listener)
{
    const QString folder = Files::getStateFolder(QStringLiteral("logs"));
    const auto tell = [folder, listener](const QString &reason) {
        listener(tr("The log in \"%1\" cannot be written: %2; the updates go on without it.")
                     .arg(QDir::toNativeSeparators(folder), reason));
    };
    if (folder.isEmpty()) {
        tell(tr("there is no home folder"));
        return;
    }
    if (const int error = Files::makePrivateFolder(folder)) {
        tell(qt_error_string(error));
        return;
    }
    m_path
        = QStringLiteral("%1/nuvexupdate_%2_%3.log")
              .arg(folder, QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd_HHmmss")))
              .arg(QCoreApplication::applicationPid());
    m_file = ::open(QFile::encodeName(m_path).constData(),
                    O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (m_file < 0) {
        m_path.clear();
        tell(qt_error_string(errno));
        return;
    }
    m_output = std::make_unique<COutput>(m_file, tell);
    removeOldLogs(folder);
}

CUpdateLog::~CUpdateLog()
{
    if (m_file >= 0)
        ::close(m_file);
}

QString CUpdateLog::getPath() const
{
    return m_path;
}

COutput *CUpdateLog::getOutput() const
{
    return m_output.get();
}

} // namespace Viewer::NuvexUpdate
