#include "jsonscanner.h"

#include "jsonfault.h"
#include "viewer/text/visibletext.h"

#include <QRegularExpression>

#include <cmath>
#include <optional>

namespace Viewer::Json {

using Text::CErrorText;

/// Characters of a wrong number that a sentence shows.
static constexpr int FOUND_LENGTH = 40;
/// Characters of a name that a sentence shows.
static constexpr int NAME_LENGTH = 60;

static bool isNumber(const QByteArray &text)
{
    static const QRegularExpression GRAMMAR(
        QStringLiteral("^-?(0|[1-9][0-9]*)(\\.[0-9]+)?([eE][+-]?[0-9]+)?\\z"));
    return GRAMMAR.match(QString::fromLatin1(text)).hasMatch();
}

static bool hasLoneSurrogate(const QString &text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (!text.at(i).isSurrogate())
            continue;
        if (text.at(i).isLowSurrogate() || i + 1 == text.size() || !text.at(i + 1).isLowSurrogate())
            return true;
        ++i;
    }
    return false;
}

/// Nothing when @p bytes are no UTF-8.
static std::optional<QString> decodeUtf8(const QByteArray &bytes)
{
    // Qt drops a byte order mark at the beginning; one of the text's own is a character like any
    // other.
    const QString text = QString::fromUtf8("\xEF\xBB\xBF" + bytes);
    // Bytes that are no UTF-8 have become replacement characters.
    return text.toUtf8() == bytes ? std::make_optional(text) : std::nullopt;
}

CJsonScanner::CJsonScanner(const QByteArray &text)
    : m_text(text)
{
    // Editors of some platforms put a byte order mark in front.
    if (m_text.startsWith("\xEF\xBB\xBF"))
        m_offset = 3;
}

void CJsonScanner::beginObject()
{
    begin('{', false);
}

bool CJsonScanner::nextMember(QString &name)
{
    if (!nextItem('}'))
        return false;
    m_levels.last().name.clear();
    m_valueOffset = m_offset;
    if (!isAt('"'))
        failExpected(CErrorText::tr("the name of a field in double quotes"));
    name = readString();
    skipSpace();
    if (!isAt(':'))
        failAt(m_offset,
               CErrorText::tr("expected a colon after \"%1\", found %2")
                   .arg(Text::toSingleLine(name.left(NAME_LENGTH)), getFound()));
    ++m_offset;
    skipSpace();
    m_levels.last().name = name;
    m_valueOffset = m_offset;
    return true;
}

void CJsonScanner::beginArray()
{
    begin('[', true);
}

bool CJsonScanner::nextElement()
{
    if (!nextItem(']'))
        return false;
    m_valueOffset = m_offset;
    return true;
}

QString CJsonScanner::readText()
{
    m_valueOffset = m_offset;
    if (!isAt('"'))
        failExpected(CErrorText::tr("a text in double quotes"));
    return readString();
}

QString CJsonScanner::readText(const CTextRule &rule)
{
    const QString text = readText();
    if (!rule.mayBeEmpty && text.trimmed().isEmpty())
        fail(CErrorText::tr("the text must not be empty"));
    if (text.size() > rule.maximumLength)
        fail(CErrorText::tr("the text has %1 characters; at most %2 are allowed")
                 .arg(QString::number(text.size()), QString::number(rule.maximumLength)));
    if (Text::hasUnprintable(text, rule.hasSeveralLines))
        fail(rule.hasSeveralLines
                 ? CErrorText::tr("the text must not contain control characters")
                 : CErrorText::tr("the text must not contain line breaks or control characters"));
    if (!rule.mayHaveSpaceAround && text != text.trimmed())
        fail(CErrorText::tr("the text must not begin or end with white space"));
    return text;
}

qint64 CJsonScanner::readInteger(qint64 minimum, qint64 maximum)
{
    m_valueOffset = m_offset;
    const auto describeWanted = [minimum, maximum] {
        return CErrorText::tr("a whole number from %1 to %2")
            .arg(QString::number(minimum), QString::number(maximum));
    };
    const QByteArray digits = takeNumber();
    if (digits.isEmpty())
        failExpected(describeWanted());
    // A whole number may also be written as 5.0 or 5e3, as some programs do. Those that a double
    // does not hold exactly are far outside all ranges.
    bool readable = isNumber(digits);
    const double value = readable ? digits.toDouble(&readable) : 0;
    if (!readable || value != std::floor(value) || value < static_cast<double>(minimum)
        || value > static_cast<double>(maximum))
        fail(CErrorText::tr("expected %1, found %2")
                 .arg(describeWanted(), QString::fromLatin1(digits.left(FOUND_LENGTH))));
    return static_cast<qint64>(value);
}

bool CJsonScanner::readBoolean()
{
    m_valueOffset = m_offset;
    if (takeWord("true"))
        return true;
    if (takeWord("false"))
        return false;
    failExpected(CErrorText::tr("true or false"));
}

void CJsonScanner::skipValue()
{
    skipSpace();
    m_valueOffset = m_offset;
    const char first = m_offset < m_text.size() ? m_text.at(m_offset) : '\0';
    QString name;
    switch (first) {
    case '{':
        beginObject();
        while (nextMember(name))
            skipValue();
        return;
    case '[':
        beginArray();
        while (nextElement())
            skipValue();
        return;
    case '"':
        readString();
        return;
    case 't':
    case 'f':
        static_cast<void>(readBoolean());
        return;
    case 'n':
        if (!takeWord("null"))
            failExpected(CErrorText::tr("null"));
        return;
    default:
        skipNumber();
    }
}

void CJsonScanner::expectEnd()
{
    skipSpace();
    if (m_offset < m_text.size())
        failAt(m_offset, CErrorText::tr("expected the end of the text, found %1").arg(getFound()));
}

int CJsonScanner::getPosition() const
{
    return m_valueOffset;
}

int CJsonScanner::getLine(int position) const
{
    return m_text.left(position).count('\n') + 1;
}

void CJsonScanner::fail(const CErrorText &problem) const
{
    failAt(m_valueOffset, problem);
}

void CJsonScanner::failAt(int position, const CErrorText &problem, const QString &member) const
{
    const QByteArray before = m_text.left(position);
    const QString line = QString::fromUtf8(before.mid(before.lastIndexOf('\n') + 1));
    const int column = line.toUcs4().size() + 1;
    throw CJsonFault{getLine(position), column, getField(member), problem};
}

void CJsonScanner::failExpected(const CErrorText &expected) const
{
    fail(CErrorText::tr("expected %1, found %2").arg(expected, getFound()));
}

void CJsonScanner::skipSpace()
{
    while (m_offset < m_text.size()) {
        const char character = m_text.at(m_offset);
        if (character != ' ' && character != '\t' && character != '\n' && character != '\r')
            return;
        ++m_offset;
    }
}

void CJsonScanner::begin(char bracket, bool isArray)
{
    skipSpace();
    m_valueOffset = m_offset;
    if (!isAt(bracket))
        failExpected(isArray ? CErrorText::tr("a list that begins with \"[\"")
                             : CErrorText::tr("an object that begins with \"{\""));
    // Keeps the recursion of skipValue() short, too.
    if (m_levels.size() == MAXIMUM_NESTING)
        fail(CErrorText::tr("lists and objects stand in each other more than %1 deep")
                 .arg(QString::number(MAXIMUM_NESTING)));
    ++m_offset;
    CLevel level;
    level.isArray = isArray;
    m_levels.append(level);
}

bool CJsonScanner::nextItem(char closing)
{
    skipSpace();
    CLevel &level = m_levels.last();
    if (isAt(closing)) {
        m_valueOffset = m_offset++;
        m_levels.removeLast();
        return false;
    }
    if (level.count > 0) {
        if (!isAt(','))
            failAt(m_offset,
                   CErrorText::tr("expected a comma or \"%1\", found %2")
                       .arg(QString(QLatin1Char(closing)), getFound()));
        ++m_offset;
        skipSpace();
    }
    ++level.count;
    return true;
}

bool CJsonScanner::takeWord(const char *word)
{
    const int length = static_cast<int>(qstrlen(word));
    const bool isThere = m_text.mid(m_offset, length) == word;
    if (isThere)
        m_offset += length;
    return isThere;
}

void CJsonScanner::skipNumber()
{
    m_valueOffset = m_offset;
    const QByteArray digits = takeNumber();
    if (digits.isEmpty())
        failExpected(CErrorText::tr("a value"));
    if (!isNumber(digits))
        fail(CErrorText::tr("expected a number, found %1")
                 .arg(QString::fromLatin1(digits.left(FOUND_LENGTH))));
}

/// All characters that a number can be made of.
QByteArray CJsonScanner::takeNumber()
{
    const int begin = m_offset;
    while (m_offset < m_text.size() && QByteArray("+-.0123456789eE").contains(m_text.at(m_offset)))
        ++m_offset;
    return m_text.mid(begin, m_offset - begin);
}

QString CJsonScanner::readString()
{
    const int start = m_offset++;
    QByteArray plain; // what stands between two escapes, in UTF-8
    QString text;
    const auto flush = [&plain, &text, start, this] {
        const std::optional<QString> decoded = decodeUtf8(plain);
        if (!decoded)
            failAt(start, CErrorText::tr("the text is not valid UTF-8"));
        text += *decoded;
        plain.clear();
    };
    while (true) {
        if (m_offset >= m_text.size())
            failAt(start, CErrorText::tr("the text has no closing double quote"));
        const char character = m_text.at(m_offset++);
        if (character == '"')
            break;
        if (static_cast<uchar>(character) < 0x20)
            failAt(m_offset - 1, CErrorText::tr("the text contains a control character"));
        if (character != '\\') {
            plain += character;
            continue;
        }
        const char escape = m_offset < m_text.size() ? m_text.at(m_offset++) : '\0';
        switch (escape) {
        case '"':
        case '\\':
        case '/':
            plain += escape;
            break;
        case 'b':
            plain += '\b';
            break;
        case 'f':
            plain += '\f';
            break;
        case 'n':
            plain += '\n';
            break;
        case 'r':
            plain += '\r';
            break;
        case 't':
            plain += '\t';
            break;
        case 'u':
            flush();
            text += QChar(readHexadecimal());
            break;
        default:
            failAt(m_offset - 2, CErrorText::tr("unknown escape sequence in a text"));
        }
    }
    flush();
    if (hasLoneSurrogate(text))
        failAt(start, CErrorText::tr("the text contains half a surrogate pair"));
    return text;
}

ushort CJsonScanner::readHexadecimal()
{
    const QByteArray digits = m_text.mid(m_offset, 4);
    bool readable = digits.size() == 4;
    for (const char digit : digits)
        readable = readable && QByteArray("0123456789abcdefABCDEF").contains(digit);
    if (!readable)
        failAt(m_offset - 2, CErrorText::tr("expected four hexadecimal digits after \"\\u\""));
    m_offset += 4;
    return digits.toUShort(nullptr, 16);
}

bool CJsonScanner::isAt(char character) const
{
    return m_offset < m_text.size() && m_text.at(m_offset) == character;
}

CErrorText CJsonScanner::getFound() const
{
    if (m_offset >= m_text.size())
        return CErrorText::tr("the end of the text");
    int end = m_offset;
    while (end < m_text.size() && end - m_offset < 20
           && !QByteArray(" \t\r\n,:{}[]\"").contains(m_text.at(end)))
        ++end;
    if (end == m_offset)
        ++end;
    const QByteArray found = m_text.mid(m_offset, end - m_offset);
    for (const char character : found) {
        if (character < 0x20 || character > 0x7e)
            return CErrorText::tr("an unexpected character");
    }
    return found == "\"" ? CErrorText::tr("a double quote")
                         : CErrorText::tr("\"%1\"").arg(QString::fromLatin1(found));
}

QString CJsonScanner::getField(const QString &member) const
{
    QString field;
    const auto append = [&field](const QString &name) {
        if (!field.isEmpty())
            field += QLatin1Char('.');
        field += Text::toSingleLine(name.left(NAME_LENGTH));
    };
    for (const CLevel &level : m_levels) {
        if (level.isArray) {
            if (level.count > 0)
                field += QStringLiteral("[%1]").arg(level.count - 1);
        } else if (!level.name.isEmpty()) {
            append(level.name);
        }
    }
    if (!member.isEmpty())
        append(member);
    return field;
}

} // namespace Viewer::Json
