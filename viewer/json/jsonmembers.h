#pragma once

#include "jsonscanner.h"

#include <QPair>
#include <QStringList>
#include <QVector>

namespace Viewer::Json {

/// The fields of an object.
struct CJsonFields
{
    QStringList required;
    QStringList optional;
};

/// Reads the members of one object: known ones only, each at most once, and the required ones at
/// least once. Every operation throws CJsonFault.
class CJsonMembers
{
public:
    /// Enters the object that @p scanner reads next. Both arguments stay the caller's, and outlive
    /// this object.
    CJsonMembers(CJsonScanner &scanner, const CJsonFields &fields);

    /// Positions on the next member's value, or leaves the object and returns false.
    [[nodiscard]] bool next(QString &name);

    /// For an object whose fields are known only after its last member: the same checks with the
    /// exact @p fields.
    void check(const CJsonFields &fields) const;

    /// After the last member: reports @p problem at the value of @p name, which is there.
    [[noreturn]] void failAt(const QString &name, const Text::CErrorText &problem) const;

private:
    [[nodiscard]] bool has(const QString &name) const;
    void checkRequired(const CJsonFields &fields) const;

    CJsonScanner &m_scanner;
    const CJsonFields &m_fields;
    int m_begin = 0;
    QVector<QPair<QString, int>> m_positions; ///< of the values; no more than there are fields
};

} // namespace Viewer::Json
