#pragma once

#include "hostapi_global.h"

#include <QByteArray>
#include <QHashFunctions>
#include <QMetaType>
#include <QString>

namespace Core {

/// Identifier of a menu, a group, a command or a context: a dotted text such as
/// "NuvexViewer.Menu.Tools". Two identifiers are equal when their texts are equal, letter case
/// included.
class HOSTAPI_EXPORT CId
{
public:
    /// The empty identifier, which names nothing.
    CId() = default;

    /// Copies the zero-terminated UTF-8 text @p id; null gives the empty identifier. Not explicit,
    /// so that a literal can stand wherever an identifier is wanted.
    CId(const char *id); // NOLINT(google-explicit-constructor)

    [[nodiscard]] bool isEmpty() const;
    [[nodiscard]] QString toString() const;

    friend bool operator==(const CId &left, const CId &right)
    {
        return left.m_text == right.m_text;
    }
    friend bool operator!=(const CId &left, const CId &right)
    {
        return left.m_text != right.m_text;
    }
    friend bool operator<(const CId &left, const CId &right) { return left.m_text < right.m_text; }
    friend uint qHash(const CId &id, uint seed = 0) { return qHash(id.m_text, seed); }

private:
    QByteArray m_text;
};

} // namespace Core

Q_DECLARE_METATYPE(Core::CId)
