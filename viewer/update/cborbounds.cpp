#include "cborbounds.h"

#include <QCborStreamReader>

namespace Viewer::Update {

/// More than any message has.
static constexpr int MAXIMUM_DEPTH = 8;
static constexpr quint64 MAXIMUM_ENTRIES = 1000; // of one map or list

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

} // namespace Viewer::Update
