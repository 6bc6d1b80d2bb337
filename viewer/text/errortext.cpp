#include "errortext.h"

#include "visibletext.h"

#include <QCoreApplication>

namespace Viewer::Text {

static QString withoutFullStops(const QString &text)
{
    QString clause = toSingleLine(text.simplified());
    while (clause.endsWith(QLatin1Char('.')) || clause.endsWith(QChar(0x3002)))
        clause.chop(1);
    return clause;
}

CErrorText::CErrorText(const QString &text)
    : CErrorText(text, text)
{
}

CErrorText::CErrorText(const QString &english, const QString &localized)
    : m_english(english)
    , m_localized(localized)
{
}

CErrorText CErrorText::fromBoth(const QString &english, const QString &localized)
{
    return {english, localized};
}

CErrorText CErrorText::tr(const char *source)
{
    return {QString::fromUtf8(source),
            QCoreApplication::translate("Viewer::Text::CErrorText", source)};
}

CErrorText CErrorText::toClause() const
{
    return {withoutFullStops(m_english), withoutFullStops(m_localized)};
}

bool CErrorText::isEmpty() const
{
    return m_english.isEmpty();
}

QString CErrorText::getEnglish() const
{
    return m_english;
}

QString CErrorText::getLocalized() const
{
    return m_localized;
}

} // namespace Viewer::Text
