#include "logfolder.h"

#include "viewer/files/pathtrust.h"
#include "viewer/files/statefolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Viewer::AppCore {

static const char *const VARIABLE = "TMPDIR";
static const char *const DEFAULT_TEMPORARY_FOLDER = "/tmp";
// A path at which nothing can be made, whoever asks; a missing folder would not do, because Qt
// takes the root folder for it.
static const char *const NOWHERE = "/dev/null";
static const QLatin1String LOCK_NAME(".lock");
static const QLatin1String NEW_LOCK_NAME(".lock.new");
static const QLatin1String TIME_FORMAT("yyyyMMdd_HHmmss");
static constexpr qint64 TRIAL_SIZE = 64 * 1024; // bytes; about the log of two cameras

namespace {

struct CFolder
{
    QString path;
    bool inUse = false;
};

/// Locks the folder of a viewer that has ended, for oneself alone with LOCK_EX; -1: it still runs,
/// or nobody can tell. Closing what comes back unlocks it.
int lockEndedFolder(const QString &folder, int operation)
{
    const QByteArray name = QFile::encodeName(folder + QLatin1Char('/') + LOCK_NAME);
    const int lock = ::open(name.constData(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    struct stat info = {};
    if (lock < 0
        || (fstat(lock, &info) == 0 && S_ISREG(info.st_mode)
            && flock(lock, operation | LOCK_NB) == 0))
        return lock;
    close(lock);
    return -1;
}

/// The folders that viewers made; what a link leads to is none.
QVector<CFolder> findFolders(const QString &root)
{
    static const QRegularExpression ownName(QStringLiteral("^\\d{8}_\\d{6}_\\w{6}$"));
    const QDir::Filters filters = QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks;
    QVector<CFolder> folders;
    if (root.isEmpty())
        return folders;
    const QStringList names = QDir(root).entryList(filters, QDir::Name);
    for (const QString &name : names) {
        if (!ownName.match(name).hasMatch())
            continue;
        const QString path = root + QLatin1Char('/') + name;
        const int lock = lockEndedFolder(path, LOCK_SH);
        folders.append({path, lock < 0});
        if (lock >= 0)
            close(lock);
    }
    return folders;
}

void removeIfEmpty(const QString &folder)
{
    const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    QDir directory(folder);
    if (directory.entryList(all) != QStringList(LOCK_NAME))
        return;
    directory.remove(LOCK_NAME);
    QDir().rmdir(folder);
}

/// Regular files with the plug-in's names, the newest one first.
QVector<CLogFile> findLogs(const QVector<CFolder> &folders)
{
    static const QRegularExpression logName(
        QStringLiteral("^NuvexFirmwareUpdaterGUI_(\\d{8})_(\\d{6})\\.log$"));
    QVector<CLogFile> logs;
    for (const CFolder &folder : folders) {
        const QStringList names
            = QDir(folder.path).entryList(QDir::Files | QDir::NoSymLinks, QDir::Name);
        for (const QString &name : names) {
            const QRegularExpressionMatch match = logName.match(name);
            // Not in the local time zone, which lacks an hour of the year where there is summer
            // time.
            const QDateTime time(QDate::fromString(match.captured(1), QStringLiteral("yyyyMMdd")),
                                 QTime::fromString(match.captured(2), QStringLiteral("HHmmss")),
                                 Qt::UTC);
            if (time.isValid())
                logs.append({folder.path + QLatin1Char('/') + name, time, folder.inUse});
        }
    }
    std::stable_sort(logs.begin(), logs.end(),
                     [](const auto &a, const auto &b) { return a.time > b.time; });
    return logs;
}

} // namespace

CLogFolder::CLogFolder()
    : m_outsideEnvironment(QProcessEnvironment::systemEnvironment())
    , m_root(Files::getStateFolder(QStringLiteral("logs")))
{
    // A variable that exists is changed in its place; only a new one moves the environment.
    if (qEnvironmentVariableIsEmpty(VARIABLE))
        qputenv(VARIABLE, DEFAULT_TEMPORARY_FOLDER);
}

CLogFolder::~CLogFolder()
{
    const QLatin1String name(VARIABLE);
    if (m_outsideEnvironment.contains(name))
        qputenv(VARIABLE, QFile::encodeName(m_outsideEnvironment.value(name)));
    else
        qunsetenv(VARIABLE);
    if (m_lock < 0)
        return;
    removeIfEmpty(m_ownFolder);
    close(m_lock);
}

bool CLogFolder::open()
{
    if (m_root.isEmpty()) {
        m_fault = tr("Logs of firmware updates are not kept: there is no home folder.");
    } else {
        const QString reason = makeOwnFolder();
        if (!reason.isEmpty())
            m_fault = tr("Logs of firmware updates are not kept, the folder \"%1\" cannot be used: "
                         "%2.")
                          .arg(QDir::toNativeSeparators(m_root), reason);
    }
    qputenv(VARIABLE, m_fault.isEmpty() ? QFile::encodeName(m_ownFolder) : QByteArray(NOWHERE));
    if (m_fault.isEmpty())
        removeOldLogs();
    return m_fault.isEmpty();
}

QString CLogFolder::makeOwnFolder()
{
    const int error = Files::makePrivateFolder(m_root);
    if (error != 0)
        return qt_error_string(error);
    const QString fault = Files::findPathFault(m_root).getLocalized();
    if (!fault.isEmpty())
        return fault;
    const QString time = QDateTime::currentDateTime().toString(TIME_FORMAT);
    QByteArray name
        = QFile::encodeName(m_root + QLatin1Char('/') + time + QLatin1String("_XXXXXX"));
    if (!mkdtemp(name.data()))
        return qt_error_string(errno);
    m_ownFolder = QFile::decodeName(name);
    const int lockError = lockOwnFolder();
    if (lockError == 0)
        return {};
    if (m_lock >= 0)
        close(m_lock);
    m_lock = -1;
    QFile::remove(m_ownFolder + QLatin1Char('/') + NEW_LOCK_NAME);
    QDir().rmdir(m_ownFolder);
    return qt_error_string(lockError);
}

int CLogFolder::lockOwnFolder()
{
    const QString path = m_ownFolder + QLatin1Char('/');
    const QByteArray newName = QFile::encodeName(path + NEW_LOCK_NAME);
    m_lock = ::open(newName.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (m_lock < 0)
        return errno;
    // Where the file system has no locks, nobody can remove the folder either.
    flock(m_lock, LOCK_EX | LOCK_NB);
    const QByteArray trial(TRIAL_SIZE, '\0');
    for (int position = 0; position < trial.size();) {
        const auto count = write(m_lock, trial.constData() + position, trial.size() - position);
        if (count < 0)
            return errno;
        position += static_cast<int>(count);
    }
    if (fsync(m_lock) != 0 || ftruncate(m_lock, 0) != 0)
        return errno;
    // Under its name the lock is held from the first moment.
    return rename(newName.constData(), QFile::encodeName(path + LOCK_NAME).constData()) == 0
        ? 0
        : errno;
}

void CLogFolder::removeOldLogs() const
{
    const QVector<CFolder> folders = findFolders(m_root);
    QHash<QString, QStringList> tooMany; // by folder
    const QVector<CLogFile> oldLogs = findLogs(folders).mid(MAXIMUM_COUNT);
    for (const CLogFile &log : oldLogs)
        tooMany[QFileInfo(log.path).path()].append(log.path);
    for (const CFolder &folder : folders) {
        const int lock = folder.inUse ? -1 : lockEndedFolder(folder.path, LOCK_EX);
        if (lock < 0)
            continue;
        const QStringList paths = tooMany.value(folder.path);
        for (const QString &path : paths)
            QFile::remove(path);
        removeIfEmpty(folder.path);
        close(lock);
    }
}

const QString &CLogFolder::getFault() const
{
    return m_fault;
}

const QString &CLogFolder::getRoot() const
{
    return m_root;
}

QString CLogFolder::findOwnLog() const
{
    return m_ownFolder.isEmpty() ? QString() : findLogs({{m_ownFolder, true}}).value(0).path;
}

QVector<CLogFile> CLogFolder::getLogs() const
{
    return findLogs(findFolders(m_root));
}

const QProcessEnvironment &CLogFolder::getOutsideEnvironment() const
{
    return m_outsideEnvironment;
}

} // namespace Viewer::AppCore
