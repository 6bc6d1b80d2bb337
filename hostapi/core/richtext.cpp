#include "richtext.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include <optional>

namespace Core::Text {

namespace {

/// Elements left open at the same time. Qt's parser and layout descend into them, so that a few
/// thousand end the stack.
constexpr int MAXIMUM_DEPTH = 64;

/// A table is laid out several times within each cell that it stands in.
constexpr int MAXIMUM_TABLE_DEPTH = 3;

using Names = QSet<QString>;

Names toSet(const char *names)
{
    const QStringList list = QString::fromLatin1(names).split(QLatin1Char(' '));
    return Names(list.cbegin(), list.cend());
}

bool isKnownElement(const QString &name)
{
    static const Names ELEMENTS = toSet(
        "a address b big blockquote body br caption center cite code dd del dfn div dl dt em font "
        "h1 h2 h3 h4 h5 h6 head hr html i ins kbd li nobr ol p pre qt s samp small span strong sub "
        "sup table tbody td tfoot th thead title tr tt u ul var");
    return ELEMENTS.contains(name);
}

/// Elements whose contents are no text to read.
bool isElementWithoutText(const QString &name)
{
    return name == QLatin1String("style") || name == QLatin1String("script");
}

bool isPlainAttribute(const QString &name)
{
    static const Names ATTRIBUTES
        = toSet("align bgcolor bordercolor class color dir face id lang name title type valign");
    return ATTRIBUTES.contains(name);
}

bool isNumberAttribute(const QString &name)
{
    static const Names ATTRIBUTES = toSet("border cellpadding cellspacing height size start value "
                                          "width");
    return ATTRIBUTES.contains(name);
}

bool isSpan(const QString &name)
{
    return name == QLatin1String("colspan") || name == QLatin1String("rowspan");
}

/// Large numbers would make Qt lay out, and allocate, tables and letters of any size.
bool isSmallNumber(const QString &value)
{
    static const QRegularExpression NUMBER(
        QStringLiteral("^\\s*[+-]?[0-9]{1,3}\\s*(%|px|pt|em)?\\s*$"));
    return NUMBER.match(value).hasMatch();
}

bool isHarmlessStyle(const QString &value)
{
    // An address can be hidden behind escapes; colours are the only long numbers that a style has.
    static const QRegularExpression DANGEROUS(QStringLiteral("url|[\\\\&@]"),
                                              QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression COLOR(QStringLiteral("#[0-9a-fA-F]{3,8}\\b"));
    static const QRegularExpression LARGE_NUMBER(QStringLiteral("[0-9]{4}|[0-9][eE][0-9]"));
    return !DANGEROUS.match(value).hasMatch()
        && !LARGE_NUMBER.match(QString(value).remove(COLOR)).hasMatch();
}

bool isHarmless(const QString &element, const QString &attribute, const QString &value)
{
    if (attribute == QLatin1String("style"))
        return isHarmlessStyle(value);
    if (attribute == QLatin1String("href"))
        return element == QLatin1String("a") && isWebLink(value);
    if (isSpan(attribute))
        return value.size() == 1 && value.at(0).isDigit();
    return isPlainAttribute(attribute) || (isNumberAttribute(attribute) && isSmallNumber(value));
}

/// The elements that stand open at a place of a text, as far as they decide what may stand in them.
///
/// Parts of tables are let in only where they belong: of others Qt makes tables within tables, and
/// of a row of them a pile.
class COpenElements
{
public:
    /// False when @p element may not begin here. What it ends by its beginning is left.
    bool enter(const QString &element)
    {
        if (isFlat(element))
            return true;
        const auto parents = getTableParts().constFind(element);
        if (parents == getTableParts().constEnd() ? !isInText() : !leaveTo(*parents))
            return false;
        if (m_open.size() >= MAXIMUM_DEPTH
            || (element == m_table && m_open.count(m_table) >= MAXIMUM_TABLE_DEPTH))
            return false;
        m_open.append(element);
        return true;
    }

    /// False when no such element is open; what stands open in it ends with it.
    bool leave(const QString &element)
    {
        if (isFlat(element))
            return true;
        const int place = m_open.lastIndexOf(element);
        if (place < 0 || (element != m_table && place < m_open.lastIndexOf(m_table)))
            return false;
        keep(place);
        return true;
    }

private:
    static bool isFlat(const QString &element)
    {
        static const Names FLAT = toSet("br dd dt hr li p");
        return FLAT.contains(element);
    }

    /// The parts of a table, each with what it stands in.
    static const QHash<QString, Names> &getTableParts()
    {
        static const QHash<QString, Names> PARTS{
            {QStringLiteral("tbody"), toSet("table")},
            {QStringLiteral("tfoot"), toSet("table")},
            {QStringLiteral("thead"), toSet("table")},
            {QStringLiteral("tr"), toSet("table tbody tfoot thead")},
            {QStringLiteral("td"), toSet("tr")},
            {QStringLiteral("th"), toSet("tr")},
        };
        return PARTS;
    }

    /// Whether the place is outside of all tables or within a cell.
    [[nodiscard]] bool isInText() const
    {
        for (auto open = m_open.crbegin(); open != m_open.crend(); ++open) {
            if (*open == QLatin1String("td") || *open == QLatin1String("th"))
                return true;
            if (*open == m_table || getTableParts().contains(*open))
                return false;
        }
        return true;
    }

    /// Leaves everything within the innermost of @p parents that belongs to the same table.
    bool leaveTo(const Names &parents)
    {
        for (int place = m_open.size() - 1; place >= 0; --place) {
            if (parents.contains(m_open.at(place))) {
                keep(place + 1);
                return true;
            }
            if (m_open.at(place) == m_table)
                return false;
        }
        return false;
    }

    void keep(int count) { m_open.erase(m_open.begin() + count, m_open.end()); }

    const QString m_table = QStringLiteral("table");
    QStringList m_open; ///< the outermost first
};

/// Goes through a text as Qt's own parser does, but takes only what is spelt without tricks for
/// markup: that one finds elements also behind blanks, in quotes and written in entities.
class CFilter
{
public:
    explicit CFilter(const QString &text)
        : m_text(text)
    {
    }

    QString run()
    {
        while (m_position < m_text.size()) {
            const int begin = m_text.indexOf(QLatin1Char('<'), m_position);
            m_result += m_text.mid(m_position, begin < 0 ? -1 : begin - m_position);
            if (begin < 0)
                break;
            m_position = begin;
            takeMarkup();
        }
        return m_result;
    }

private:
    void takeMarkup()
    {
        static const QRegularExpression COMMENT(
            QStringLiteral("\\G(?:<!--.*?(-->|$)|<[!?][^>]*(>|$))"),
            QRegularExpression::DotMatchesEverythingOption);
        static const QRegularExpression TAG(
            QStringLiteral("\\G<(/?)([a-zA-Z][a-zA-Z0-9]*)"
                           "((?:\\s+[a-zA-Z][a-zA-Z0-9_-]*"
                           "(?:\\s*=\\s*(?:\"[^\"<]*\"|'[^'<]*'|[^\\s\"'<>=&]+))?)*+)"
                           "\\s*/?>"));

        const QRegularExpressionMatch comment = matchHere(COMMENT);
        if (comment.hasMatch()) {
            m_position = comment.capturedEnd();
            return;
        }
        const QRegularExpressionMatch tag = matchHere(TAG);
        if (!tag.hasMatch()) {
            m_result += QLatin1String("&lt;");
            ++m_position;
            return;
        }
        m_position = tag.capturedEnd();
        takeTag(tag);
    }

    [[nodiscard]] QRegularExpressionMatch matchHere(const QRegularExpression &expression) const
    {
        // The expressions begin with \G, as Qt 5 and Qt 6 name the option for it differently.
        return expression.match(m_text, m_position);
    }

    void takeTag(const QRegularExpressionMatch &tag)
    {
        const QString element = tag.captured(2).toLower();
        const bool isEnd = !tag.captured(1).isEmpty();
        if (!isEnd && isElementWithoutText(element))
            skipTo(QStringLiteral("</%1").arg(element));
        if (!isKnownElement(element) || !(isEnd ? m_open.leave(element) : m_open.enter(element)))
            return;
        const std::optional<QString> fewerAttributes = removeAttributes(element, tag.captured(3));
        m_result += fewerAttributes
            ? QStringLiteral("<%1%2%3>").arg(tag.captured(1), tag.captured(2), *fewerAttributes)
            : tag.captured();
    }

    void skipTo(const QString &end)
    {
        const int place = m_text.indexOf(end, m_position, Qt::CaseInsensitive);
        m_position = place < 0 ? m_text.size() : place;
    }

    /// @p attributes without those that are not harmless; nothing when all are.
    static std::optional<QString> removeAttributes(const QString &element,
                                                   const QString &attributes)
    {
        static const QRegularExpression ATTRIBUTE(
            QStringLiteral("\\s+([a-zA-Z][a-zA-Z0-9_-]*)"
                           "(?:\\s*=\\s*(?:\"([^\"]*)\"|'([^']*)'|([^\\s\"']+)))?"));
        QString kept;
        bool isComplete = true;
        for (auto it = ATTRIBUTE.globalMatch(attributes); it.hasNext();) {
            const QRegularExpressionMatch attribute = it.next();
            const QString value
                = attribute.captured(2) + attribute.captured(3) + attribute.captured(4);
            if (isHarmless(element, attribute.captured(1).toLower(), value))
                kept += attribute.captured();
            else
                isComplete = false;
        }
        return isComplete ? std::nullopt : std::make_optional(kept);
    }

    const QString m_text;
    QString m_result;
    int m_position = 0;
    COpenElements m_open;
};

} // namespace

QString toSafeRichText(const QString &text)
{
    return CFilter(text).run();
}

QString toToolTip(const QString &text)
{
    return text.isEmpty()
        ? QString()
        : QStringLiteral("<qt>%1</qt>")
              .arg(text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>")));
}

bool isWebLink(const QString &target)
{
    static const QRegularExpression WEB_LINK(
        QStringLiteral("^(https?://|mailto:)[^\\s\"<>\\\\\\x00-\\x1f]+$"),
        QRegularExpression::CaseInsensitiveOption);
    return WEB_LINK.match(target).hasMatch();
}

} // namespace Core::Text
