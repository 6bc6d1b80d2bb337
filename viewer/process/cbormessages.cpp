#include "cbormessages.h"

#include <QCborStreamReader>
#include <QCborValue>

namespace Viewer::Process {

/// More than any message has.
static constexpr int MAXIMUM_DEPTH = 8;

/// Leaves @p reader behind the item, or with an error where it is cut off.
static bool isItemBounded(QCborStreamReader &reader, int depth)
{
    // Nobody sends tags, nor texts in parts, whose sizes nothing limits.
    if (reader.isTag())
        return false;
    if (reader.isString() || reader.isByteArray()) {
        if (!reader.isLengthKnown() || reader.currentStringChunkSize() > MAXIMUM_MESSAGE)
            return false;
        reader.next();
        return true;
    }
    if (!reader.isContainer()) {
        reader.next();
        return true;
    }
    if (depth == MAXIMUM_DEPTH || (reader.isLengthKnown() && reader.length() > MAXIMUM_ENTRIES))
        return false;
    reader.enterContainer();
    while (reader.lastError() == QCborError::NoError && reader.hasNext()) {
        if (!isItemBounded(reader, depth + 1))
            return false;
    }
    if (reader.lastError() == QCborError::NoError)
        reader.leaveContainer();
    return true;
}

bool isBounded(const QByteArray &bytes)
{
    QCborStreamReader reader(bytes);
    return isItemBounded(reader, 0)
        && (reader.lastError() != QCborError::EndOfFile || bytes.size() <= MAXIMUM_MESSAGE);
}

std::optional<QCborMap> takeMessage(QByteArray &bytes, bool &isBroken)
{
    isBroken = !isBounded(bytes);
    if (isBroken || bytes.isEmpty())
        return std::nullopt;
    QCborStreamReader reader(bytes);
    const QCborValue value = QCborValue::fromCbor(reader);
    if (reader.lastError() == QCborError::EndOfFile)
        return std::nullopt;
    isBroken = reader.lastError() != QCborError::NoError || !value.isMap();
    if (isBroken)
        return std::nullopt;
    bytes.remove(0, static_cast<int>(reader.currentOffset()));
    return value.toMap();
}

} // namespace Viewer::Process
