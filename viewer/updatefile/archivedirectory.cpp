#include "archivedirectory.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <optional>

namespace Viewer::UpdateFile {

namespace {

// Records of the ZIP format. All numbers are little-endian.
const QByteArray END = QByteArrayLiteral("PK\x05\x06");
const QByteArray END64 = QByteArrayLiteral("PK\x06\x06");
const QByteArray LOCATOR64 = QByteArrayLiteral("PK\x06\x07");
const QByteArray ENTRY = QByteArrayLiteral("PK\x01\x02");
constexpr int END_SIZE = 22;
constexpr int END64_SIZE = 56;
constexpr int LOCATOR64_SIZE = 20;
constexpr int ENTRY_SIZE = 46;
constexpr int COMMENT_SIZE = 0xFFFF;

/// What looks like an end record, in the real one's comment too. A comment full of them would take
/// long to look at.
constexpr int MAXIMUM_ENDS = 16;

template <typename Number>
Number readNumber(const QByteArray &bytes, int offset)
{
    return qFromLittleEndian<Number>(bytes.constData() + offset);
}

/// Nothing when the file does not reach so far.
std::optional<QByteArray> readAt(QIODevice &file, quint64 offset, int size)
{
    if (offset > static_cast<quint64>(file.size()) || !file.seek(static_cast<qint64>(offset)))
        return std::nullopt;
    const QByteArray bytes = file.read(size);
    return bytes.size() == size ? std::make_optional(bytes) : std::nullopt;
}

struct CEnd
{
    quint64 entryCount = 0;
    quint64 directoryOffset = 0;
    bool isDamaged = false;
};

/// The end record at @p place of @p tail, which are the last bytes of the file.
CEnd readEnd(QIODevice &file, const QByteArray &tail, int place)
{
    CEnd end;
    end.entryCount = readNumber<quint16>(tail, place + 10);
    end.directoryOffset = readNumber<quint32>(tail, place + 16);
    const int locator = place - LOCATOR64_SIZE;
    if (locator < 0 || tail.mid(locator, LOCATOR64.size()) != LOCATOR64)
        return end;
    const auto end64 = readAt(file, readNumber<quint64>(tail, locator + 8), END64_SIZE);
    if (!end64) {
        end.isDamaged = true;
    } else if (end64->startsWith(END64)) {
        end.entryCount = std::max(end.entryCount, readNumber<quint64>(*end64, 32));
        end.directoryOffset = readNumber<quint64>(*end64, 48);
    }
    return end;
}

QVector<QByteArray> readNames(QIODevice &file, const CEnd &end, bool &isDamaged)
{
    QVector<QByteArray> names;
    quint64 offset = end.directoryOffset;
    for (quint64 i = 0; i < end.entryCount; ++i) {
        const auto entry = readAt(file, offset, ENTRY_SIZE);
        isDamaged = isDamaged || !entry;
        if (!entry || !entry->startsWith(ENTRY))
            break;
        const auto nameLength = readNumber<quint16>(*entry, 28);
        const auto name = readAt(file, offset + ENTRY_SIZE, nameLength);
        if (!name)
            break;
        names.append(*name);
        offset += ENTRY_SIZE + nameLength + readNumber<quint16>(*entry, 30)
            + readNumber<quint16>(*entry, 32);
    }
    return names;
}

} // namespace

CArchiveDirectory readArchiveDirectory(QIODevice &file, int maximumEntries)
{
    CArchiveDirectory directory;
    const qint64 tailSize = std::min<qint64>(file.size(), LOCATOR64_SIZE + END_SIZE + COMMENT_SIZE);
    const auto tail
        = readAt(file, static_cast<quint64>(file.size() - tailSize), static_cast<int>(tailSize));
    if (!tail)
        return directory;
    // A comment at the end may hold what looks like an end record: none of them may be dangerous.
    int count = 0;
    for (int place = tail->indexOf(END); place >= 0 && place + END_SIZE <= tail->size();
         place = tail->indexOf(END, place + 1)) {
        if (++count > MAXIMUM_ENDS) {
            directory.isDamaged = true;
            return directory;
        }
        const CEnd end = readEnd(file, *tail, place);
        directory.entryCount = std::max(directory.entryCount, end.entryCount);
        directory.isDamaged = directory.isDamaged || end.isDamaged;
        if (end.entryCount <= static_cast<quint64>(maximumEntries))
            directory.names += readNames(file, end, directory.isDamaged);
    }
    return directory;
}

} // namespace Viewer::UpdateFile
