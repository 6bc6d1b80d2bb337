#include "updatejournal.h"

#include "logging.h"
#include "viewer/files/statefolder.h"
#include "viewer/json/jsonfault.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace Viewer::Update {

using namespace std::chrono_literals;

namespace {

/// More than the longest record takes.
constexpr int MAXIMUM_SIZE = 512 * 1024; // bytes
/// More cameras than anybody updates at a time.
constexpr int MAXIMUM_COUNT = 10000;
constexpr int NAME_LENGTH = 16;
constexpr auto PERCENT_INTERVAL = 1s;
constexpr int PERCENT_WIDTH = 3;
/// Who only looks holds a lock for less than a millisecond.
constexpr int LOCK_ATTEMPTS = 20;
constexpr auto LOCK_PAUSE = 5ms;

/// Safe for every id, which may hold anything and be of any length.
QString getPath(const QString &folder, const QString &cameraId)
{
    const QByteArray digest
        = QCryptographicHash::hash(cameraId.toUtf8(), QCryptographicHash::Sha256).toHex();
    return folder + QLatin1Char('/') + QString::fromLatin1(digest.left(NAME_LENGTH))
        + QLatin1String(".json");
}

int openFile(const QString &path, int flags)
{
    // Neither a link nor a pipe that blocks, whoever has put it there.
    return ::open(QFile::encodeName(path).constData(), flags | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC,
                  S_IRUSR | S_IWUSR);
}

/// Writing locks the new file before it gets the name of the old one: who opens the name finds a
/// locked file at any time. Only the one opened a moment before is then a file without a name.
enum class ELock {
    Taken,
    Foreign, ///< somebody else holds it
    Replaced, ///< the file is not at its path any more
    Impossible, ///< this is no file that can be locked
};

ELock lockFile(int file, int operation)
{
    struct stat info = {};
    if (fstat(file, &info) != 0 || !S_ISREG(info.st_mode))
        return ELock::Impossible;
    if (flock(file, operation | LOCK_NB) != 0)
        return errno == EWOULDBLOCK ? ELock::Foreign : ELock::Impossible;
    if (fstat(file, &info) != 0)
        return ELock::Impossible;
    return info.st_nlink == 0 ? ELock::Replaced : ELock::Taken;
}

int writeAll(int file, const QByteArray &text)
{
    for (int position = 0; position < text.size();) {
        const auto count = write(file, text.constData() + position, text.size() - position);
        if (count < 0 && errno != EINTR)
            return errno;
        position += static_cast<int>(std::max<ssize_t>(count, 0));
    }
    return fsync(file) == 0 ? 0 : errno;
}

/// A new name is on the disk once its folder is.
int syncFolder(const QString &folder)
{
    const int file = openFile(folder, O_RDONLY | O_DIRECTORY);
    if (file < 0)
        return errno;
    const int error = fsync(file) == 0 ? 0 : errno;
    close(file);
    return error;
}

QString getNewPath(const QString &path)
{
    return path + QLatin1String(".new");
}

void removeFiles(const QString &path)
{
    QFile::remove(getNewPath(path));
    QFile::remove(path);
}

QByteArray formatPercent(int percent)
{
    return QByteArray::number(percent).rightJustified(PERCENT_WIDTH, ' ');
}

/// The record, with room to write another percentage into it, and the place of that.
QByteArray format(const CUpdateRecord &record, int &percentPosition)
{
    // Within texts there is a backslash before each quotation mark.
    static const QByteArray name("\"percent\":");
    QByteArray text = toJson(record);
    percentPosition = text.indexOf(name) + name.size();
    const int oldWidth = QByteArray::number(record.percent).size();
    return text.replace(percentPosition, oldWidth, formatPercent(record.percent));
}

enum class ERead { Read, Damaged, Gone };

bool parse(const QByteArray &text, CUpdateRecord &record)
{
    try {
        Json::CJsonScanner scanner(text);
        record = readUpdateRecord(scanner);
        scanner.expectEnd();
        return text.size() <= MAXIMUM_SIZE;
    } catch (const Json::CJsonFault &) {
        return false;
    }
}

ERead readEntry(const QString &path, CJournalEntry &entry)
{
    for (;;) {
        QFile file;
        const int descriptor = openFile(path, O_RDONLY);
        if (descriptor < 0)
            return errno == ENOENT ? ERead::Gone : ERead::Damaged;
        if (!file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered,
                       QFileDevice::AutoCloseHandle)) {
            close(descriptor);
            return ERead::Damaged;
        }
        const ELock lock = lockFile(descriptor, LOCK_SH);
        if (lock == ELock::Replaced)
            continue;
        if (lock == ELock::Impossible)
            return ERead::Damaged;
        entry.isRunning = lock == ELock::Foreign;
        // Under another name nobody would find it again.
        return parse(file.read(MAXIMUM_SIZE + 1), entry.record)
                && getPath(QFileInfo(path).path(), entry.record.cameraId) == path
            ? ERead::Read
            : ERead::Damaged;
    }
}

} // namespace

CUpdateJournal::CUpdateJournal(const QString &folder, const CUpdateRecord &record)
    : m_record(record)
{
    if (folder.isEmpty())
        return;
    m_path = getPath(folder, record.cameraId);
    if (!lock(folder))
        return;
    readLeftBehind();
    save();
}

CUpdateJournal::~CUpdateJournal()
{
    if (m_isFinished && m_file >= 0) {
        if (m_leftBehind && !getReplaced()) {
            m_record = *m_leftBehind;
            save();
        } else {
            removeFiles(m_path);
        }
    }
    if (m_file >= 0)
        close(m_file);
}

void CUpdateJournal::readLeftBehind()
{
    QFile file;
    if (!file.open(m_file, QIODevice::ReadOnly | QIODevice::Unbuffered))
        return;
    CUpdateRecord record;
    if (!parse(file.read(MAXIMUM_SIZE + 1), record) || record.cameraId != m_record.cameraId
        || record.outcome != EUpdateOutcome::Running || !record.hasWritten)
        return;
    m_leftBehind = record;
    // What it has changed is still so should this process end before its own first write.
    m_record.hasWritten = true;
}

bool CUpdateJournal::isForeign() const
{
    return m_isForeign;
}

void CUpdateJournal::beginStep(const QString &name)
{
    ++m_record.step;
    m_record.stepName = name;
    m_record.percent = 0;
    save();
}

void CUpdateJournal::beginWriting()
{
    if (m_record.hasWritten)
        return;
    m_record.hasWritten = true;
    save();
}

std::optional<CUpdateRecord> CUpdateJournal::getReplaced() const
{
    return m_record.hasWritten || m_record.outcome == EUpdateOutcome::Updated ? m_leftBehind
                                                                              : std::nullopt;
}

void CUpdateJournal::setPercent(int percent)
{
    m_record.percent = percent;
    const auto now = std::chrono::steady_clock::now();
    if (m_percentPosition < 0 || now - m_percentTime < PERCENT_INTERVAL)
        return;
    m_percentTime = now;
    // Into the file that is there: a new one that is not on the disk yet could, after a power cut,
    // be an empty one.
    const QByteArray digits = formatPercent(percent);
    if (pwrite(m_file, digits.constData(), static_cast<std::size_t>(digits.size()),
               m_percentPosition)
        != digits.size())
        warn(errno);
}

CUpdateRecord CUpdateJournal::finish(EUpdateOutcome outcome, bool hasWritten, const QString &error,
                                     const QString &reportedVersion)
{
    m_record.outcome = outcome;
    m_record.hasWritten = hasWritten;
    m_record.error = error;
    m_record.reportedVersion = reportedVersion;
    m_record.end = QDateTime::currentDateTimeUtc();
    save();
    m_isFinished = true;
    return m_record;
}

bool CUpdateJournal::lock(const QString &folder)
{
    if (const int error = Files::makePrivateFolder(folder)) {
        warn(error);
        return false;
    }
    for (int attempt = 1;;) {
        m_file = openFile(m_path, O_RDWR | O_CREAT);
        if (m_file < 0) {
            warn(errno);
            return false;
        }
        const ELock lock = lockFile(m_file, LOCK_EX);
        if (lock == ELock::Taken)
            return true;
        close(m_file);
        m_file = -1;
        if (lock == ELock::Impossible) {
            warn(ENOLCK);
            return false;
        }
        if (lock == ELock::Replaced)
            continue;
        m_isForeign = attempt == LOCK_ATTEMPTS;
        if (m_isForeign)
            return false;
        ++attempt;
        std::this_thread::sleep_for(LOCK_PAUSE);
    }
}

void CUpdateJournal::save()
{
    if (m_file < 0)
        return;
    m_percentPosition = -1;
    int percentPosition = -1;
    if (const int error = replace(format(m_record, percentPosition)))
        warn(error);
    else
        m_percentPosition = percentPosition;
}

/// An error number, or 0.
int CUpdateJournal::replace(const QByteArray &text)
{
    const QString newPath = getNewPath(m_path);
    QFile::remove(newPath); // of an update that ended while it was written
    const int file = openFile(newPath, O_RDWR | O_CREAT | O_EXCL);
    if (file < 0)
        return errno;
    int error = flock(file, LOCK_EX | LOCK_NB) == 0 ? writeAll(file, text) : errno;
    if (error == 0
        && rename(QFile::encodeName(newPath).constData(), QFile::encodeName(m_path).constData())
            != 0)
        error = errno;
    if (error != 0) {
        close(file);
        QFile::remove(newPath);
        return error;
    }
    close(m_file);
    m_file = file;
    return syncFolder(QFileInfo(m_path).path());
}

void CUpdateJournal::warn(int error)
{
    if (m_hasWarned)
        return;
    m_hasWarned = true;
    qCWarning(updateLog).noquote().nospace()
        << m_record.cameraName << ": the journal of its update, " << m_path
        << ", cannot be written: " << qt_error_string(error)
        << "; should the update be interrupted, the next start may not tell";
}

CJournals readJournals(const QString &folder)
{
    static const QRegularExpression ownName(
        QStringLiteral("^[0-9a-f]{%1}\\.json$").arg(NAME_LENGTH));
    CJournals journals;
    if (folder.isEmpty())
        return journals;
    QDirIterator files(folder, QDir::Files | QDir::NoSymLinks);
    while (files.hasNext() && journals.entries.size() < MAXIMUM_COUNT) {
        const QString path = files.next();
        if (!ownName.match(files.fileName()).hasMatch())
            continue;
        CJournalEntry entry;
        const ERead result = readEntry(path, entry);
        if (result == ERead::Read)
            journals.entries.append(entry);
        else if (result == ERead::Damaged)
            ++journals.damagedCount;
    }
    std::stable_sort(journals.entries.begin(), journals.entries.end(),
                     [](const auto &a, const auto &b) { return a.record.begin < b.record.begin; });
    return journals;
}

void removeJournal(const QString &folder, const QString &cameraId)
{
    const QString path = getPath(folder, cameraId);
    const int file = openFile(path, O_RDWR);
    if (file < 0)
        return;
    if (lockFile(file, LOCK_EX) == ELock::Taken)
        removeFiles(path);
    close(file);
}

} // namespace Viewer::Update
