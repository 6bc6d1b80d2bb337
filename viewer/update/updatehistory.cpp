#include "updatehistory.h"

#include "logging.h"
#include "viewer/files/fileend.h"
#include "viewer/files/statefolder.h"
#include "viewer/json/jsonfault.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace Viewer::Update {

using Text::CErrorText;

/// The names of a record's fields alone are longer. A file that is full of line ends is not worth
/// millions of faults.
static constexpr int MINIMUM_LINE_SIZE = 100;

namespace {

class CDescriptor
{
public:
    explicit CDescriptor(int number)
        : m_number(number)
    {
    }
    ~CDescriptor()
    {
        if (m_number >= 0)
            close(m_number);
    }
    CDescriptor(const CDescriptor &) = delete;
    CDescriptor &operator=(const CDescriptor &) = delete;

    [[nodiscard]] int get() const { return m_number; }

private:
    const int m_number;
};

CErrorText getSystemError()
{
    return CErrorText(qt_error_string(errno));
}

/// Who wrote the last line may have died in the middle of it.
bool lacksLineEnd(int file, off_t size)
{
    char last = '\n';
    return size > 0 && pread(file, &last, 1, size - 1) == 1 && last != '\n';
}

/// Nothing if the line is damaged.
std::optional<CUpdateRecord> parse(const QByteArray &line)
{
    if (line.size() < MINIMUM_LINE_SIZE)
        return std::nullopt;
    try {
        Json::CJsonScanner scanner(line);
        CUpdateRecord record = readUpdateRecord(scanner);
        scanner.expectEnd();
        return record;
    } catch (const Json::CJsonFault &) {
        return std::nullopt;
    }
}

} // namespace

QString CUpdateHistory::getPath(const QString &folder)
{
    return folder.isEmpty() ? QString() : folder + QLatin1String("/history.jsonl");
}

QString CUpdateHistory::getDefaultPath()
{
    const QString folder = Files::getStateFolder(QStringLiteral("updates"));
    return getPath(folder);
}

void CUpdateHistory::add(const QString &folder, const CUpdateRecord &record)
{
    if (folder.isEmpty())
        return;
    const CErrorText fault = CUpdateHistory(getPath(folder)).append(record);
    if (!fault.isEmpty())
        qCWarning(updateLog).noquote() << fault.getEnglish();
}

CUpdateHistory::CUpdateHistory(const QString &path)
    : m_path(path)
{
}

CErrorText CUpdateHistory::append(const CUpdateRecord &record) const
{
    if (m_path.isEmpty())
        return CErrorText::tr("The history of updates is not kept: there is no home folder.");
    const CErrorText fault = write(toJson(record) + '\n');
    if (fault.isEmpty())
        return {};
    return CErrorText::tr("The history of updates \"%1\" cannot be written: %2.")
        .arg(QDir::toNativeSeparators(m_path), fault);
}

/// Why @p line is not there, as a clause; empty: it is.
CErrorText CUpdateHistory::write(const QByteArray &line) const
{
    const int error = Files::makePrivateFolder(QFileInfo(m_path).path());
    if (error != 0)
        return CErrorText(qt_error_string(error));
    const CDescriptor file(::open(QFile::encodeName(m_path).constData(),
                                  O_RDWR | O_APPEND | O_CREAT | O_NONBLOCK | O_CLOEXEC,
                                  S_IRUSR | S_IWUSR));
    struct stat info = {};
    if (file.get() < 0 || fstat(file.get(), &info) != 0)
        return getSystemError();
    if (!S_ISREG(info.st_mode))
        return CErrorText::tr("it is not a regular file");
    // Without a lock another process may end its line in the meantime: an empty line is no damage.
    const QByteArray text = lacksLineEnd(file.get(), info.st_size) ? '\n' + line : line;
    // All at once, so that the lines of several processes do not get into each other.
    const ssize_t written = ::write(file.get(), text.constData(), static_cast<size_t>(text.size()));
    if (written < 0)
        return getSystemError();
    if (written < text.size())
        return CErrorText::tr("there is room for %1 of its %2 bytes")
            .arg(QString::number(written), QString::number(text.size()));
    return fsync(file.get()) == 0 ? CErrorText() : getSystemError();
}

CUpdateHistory::CContent CUpdateHistory::read() const
{
    CContent content;
    if (m_path.isEmpty()
        || (access(QFile::encodeName(m_path).constData(), F_OK) != 0 && errno == ENOENT))
        return content;
    const Files::CFileEnd end = Files::CFileEnd::read(m_path, MAXIMUM_SIZE);
    if (!end.error.isEmpty()) {
        content.error = tr("The history of updates \"%1\" cannot be shown: %2")
                            .arg(QDir::toNativeSeparators(m_path), end.error);
        return content;
    }
    int lineEnd = end.text.size();
    while (lineEnd > 0 && content.records.size() < MAXIMUM_COUNT) {
        const int begin = end.text.lastIndexOf('\n', lineEnd - 1) + 1;
        const QByteArray line = end.text.mid(begin, lineEnd - begin);
        lineEnd = begin - 1;
        if (line.isEmpty())
            continue;
        if (std::optional<CUpdateRecord> record = parse(line))
            content.records.append(*record);
        else
            ++content.damagedCount;
    }
    return content;
}

} // namespace Viewer::Update
