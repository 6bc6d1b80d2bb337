#include "cid.h"

namespace Core {

CId::CId(const char *id)
    : m_text(id)
{
}

bool CId::isEmpty() const
{
    return m_text.isEmpty();
}

QString CId::toString() const
{
    return QString::fromUtf8(m_text);
}

} // namespace Core
