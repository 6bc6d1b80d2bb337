#include "der.h"

namespace Viewer::Signature {

static constexpr quint8 LONG_TAG = 0x1F;
static constexpr int LONG_LENGTH = 0x80;

/// Moves @p place behind the length that stands there; nothing: it is none, not the shortest
/// possible, or of more than four bytes.
static std::optional<quint32> readLength(const QByteArray &bytes, int &place)
{
    const auto next = [&] { return static_cast<quint8>(bytes.at(place++)); };
    if (place >= bytes.size())
        return std::nullopt;
    const quint8 first = next();
    if (first < LONG_LENGTH)
        return first;
    const int count = first - LONG_LENGTH;
    if (count < 1 || count > 4 || count > bytes.size() - place)
        return std::nullopt;
    quint32 length = 0;
    for (int i = 0; i < count; ++i)
        length = length << 8 | next();
    const bool isShortest = length >= LONG_LENGTH && (count == 1 || length >> 8 * (count - 1) != 0);
    return isShortest ? std::make_optional(length) : std::nullopt;
}

std::optional<QVector<CDerElement>> readDer(const QByteArray &bytes, int maximum)
{
    QVector<CDerElement> elements;
    int place = 0;
    while (place < bytes.size() && elements.size() <= maximum) {
        const int begin = place;
        CDerElement element;
        element.tag = static_cast<quint8>(bytes.at(place++));
        const std::optional<quint32> length = readLength(bytes, place);
        if ((element.tag & LONG_TAG) == LONG_TAG || !length
            || *length > static_cast<quint32>(bytes.size() - place))
            return std::nullopt;
        const int size = static_cast<int>(*length);
        element.content = bytes.mid(place, size);
        place += size;
        element.bytes = bytes.mid(begin, place - begin);
        elements.append(element);
    }
    return elements;
}

QByteArray makeDer(CDerElement::ETag tag, const QByteArray &content)
{
    QByteArray length;
    for (int rest = content.size(); rest > 0; rest >>= 8)
        length.prepend(static_cast<char>(rest & 0xFF));
    if (content.size() >= LONG_LENGTH)
        length.prepend(static_cast<char>(LONG_LENGTH | length.size()));
    else if (length.isEmpty())
        length.append('\0');
    return QByteArray(1, static_cast<char>(tag)) + length + content;
}

} // namespace Viewer::Signature
