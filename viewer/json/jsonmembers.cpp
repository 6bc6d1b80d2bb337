#include "jsonmembers.h"

#include <algorithm>

namespace Viewer::Json {

using Text::CErrorText;

static CErrorText describeUnknown(const CJsonFields &fields)
{
    return CErrorText::tr("unknown field; known here are %1")
        .arg((fields.required + fields.optional).join(QStringLiteral(", ")));
}

static bool isKnown(const CJsonFields &fields, const QString &name)
{
    return fields.required.contains(name) || fields.optional.contains(name);
}

CJsonMembers::CJsonMembers(CJsonScanner &scanner, const CJsonFields &fields)
    : m_scanner(scanner)
    , m_fields(fields)
{
    m_scanner.beginObject();
    m_begin = m_scanner.getPosition();
}

bool CJsonMembers::next(QString &name)
{
    if (!m_scanner.nextMember(name)) {
        checkRequired(m_fields);
        return false;
    }
    if (!isKnown(m_fields, name))
        m_scanner.fail(describeUnknown(m_fields));
    if (has(name))
        m_scanner.fail(CErrorText::tr("the field is given twice"));
    m_positions.append({name, m_scanner.getPosition()});
    return true;
}

void CJsonMembers::check(const CJsonFields &fields) const
{
    for (const auto &[name, position] : m_positions) {
        if (!isKnown(fields, name))
            m_scanner.failAt(position, describeUnknown(fields), name);
    }
    checkRequired(fields);
}

void CJsonMembers::failAt(const QString &name, const CErrorText &problem) const
{
    const auto member = std::find_if(m_positions.cbegin(), m_positions.cend(),
                                     [&name](const auto &other) { return other.first == name; });
    m_scanner.failAt(member->second, problem, name);
}

bool CJsonMembers::has(const QString &name) const
{
    return std::any_of(m_positions.cbegin(), m_positions.cend(),
                       [&name](const auto &other) { return other.first == name; });
}

void CJsonMembers::checkRequired(const CJsonFields &fields) const
{
    for (const QString &name : fields.required) {
        if (!has(name))
            m_scanner.failAt(m_begin, CErrorText::tr("the field \"%1\" is missing").arg(name));
    }
}

} // namespace Viewer::Json
