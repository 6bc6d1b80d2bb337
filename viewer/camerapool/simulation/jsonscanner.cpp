#include "jsonscanner.h"

#include "core/baseexception.h"

#include <QTextCodec>

namespace Viewer::CameraPool::Simulation {

static bool isControlCharacter(QChar character)
{
    return character.category() == QChar::Other_Control
        || character.category() == QChar::Separator_Line
        || character.category() == QChar::Separator_Paragraph;
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

CJsonScanner::CJsonScanner(const QByteArray &text, const QString &description)
    : m_text(text)
    , m_description(description)
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
        fail(QStringLiteral("expected the name of a field in double quotes, found %1")
                 .arg(getFound()));
    name = readString();
    skipSpace();
    if (!isAt(':'))
        failAt(m_offset,
               QStringLiteral("expected a colon after \"%1\", found %2").arg(name, getFound()));
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

QString CJsonScanner::readText(int maximumLength)
{
    m_valueOffset = m_offset;
    if (!isAt('"'))
        fail(QStringLiteral("expected a text in double quotes, found %1").arg(getFound()));
    const QString text = readString();
    if (text.trimmed().isEmpty())
        fail(QStringLiteral("the text must not be empty"));
    if (text.size() > maximumLength)
        fail(QStringLiteral("the text has %1 characters, at most %2 are allowed")
                 .arg(text.size())
                 .arg(maximumLength));
    for (const QChar character : text) {
        if (isControlCharacter(character))
            fail(QStringLiteral("the text must not contain line breaks or control characters"));
    }
    return text;
}

qint64 CJsonScanner::readInteger(qint64 minimum, qint64 maximum)
{
    m_valueOffset = m_offset;
    const QString expected
        = QStringLiteral("expected a whole number from %1 to %2").arg(minimum).arg(maximum);
    int end = m_offset;
    while (end < m_text.size() && QByteArray("+-.0123456789eE").contains(m_text.at(end)))
        ++end;
    if (end == m_offset)
        fail(QStringLiteral("%1, found %2").arg(expected, getFound()));
    const QByteArray digits = m_text.mid(m_offset, end - m_offset);
    bool readable = false;
    const qint64 value = digits.toLongLong(&readable);
    // The strict form: no plus sign, no leading zeros.
    if (!readable || QByteArray::number(value) != digits || value < minimum || value > maximum)
        fail(QStringLiteral("%1, found %2").arg(expected, QString::fromLatin1(digits.left(40))));
    m_offset = end;
    return value;
}

bool CJsonScanner::readBoolean()
{
    m_valueOffset = m_offset;
    if (m_text.mid(m_offset, 4) == "true") {
        m_offset += 4;
        return true;
    }
    if (m_text.mid(m_offset, 5) == "false") {
        m_offset += 5;
        return false;
    }
    fail(QStringLiteral("expected true or false, found %1").arg(getFound()));
}

void CJsonScanner::expectEnd()
{
    skipSpace();
    if (m_offset < m_text.size())
        failAt(m_offset, QStringLiteral("expected the end of the text, found %1").arg(getFound()));
}

int CJsonScanner::getPosition() const
{
    return m_valueOffset;
}

int CJsonScanner::getLine(int position) const
{
    return m_text.left(position).count('\n') + 1;
}

void CJsonScanner::fail(const QString &problem) const
{
    failAt(m_valueOffset, problem);
}

void CJsonScanner::failAt(int position, const QString &problem) const
{
    const int lineStart = m_text.lastIndexOf('\n', position - m_text.size() - 1) + 1;
    const int column = QString::fromUtf8(m_text.mid(lineStart, position - lineStart)).size() + 1;
    const QString field = getField();
    const QString place = field.isEmpty() ? QString() : QStringLiteral(", field \"%1\"").arg(field);
    throw Core::Exception::BaseException(QStringLiteral("%1, line %2, column %3%4: %5")
                                             .arg(m_description, QString::number(getLine(position)),
                                                  QString::number(column), place, problem));
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
        fail(QStringLiteral("expected %1, found %2")
                 .arg(isArray ? QStringLiteral("a list that begins with \"[\"")
                              : QStringLiteral("an object that begins with \"{\""),
                      getFound()));
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
                   QStringLiteral("expected a comma or \"%1\", found %2")
                       .arg(QLatin1Char(closing))
                       .arg(getFound()));
        ++m_offset;
        skipSpace();
    }
    ++level.count;
    return true;
}

QString CJsonScanner::readString()
{
    const int start = m_offset++;
    QByteArray plain; // what stands between two escapes, in UTF-8
    QString text;
    const auto flush = [&plain, &text, start, this] {
        QTextCodec::ConverterState state;
        text += QTextCodec::codecForMib(106)->toUnicode(plain.constData(), plain.size(), &state);
        if (state.invalidChars > 0 || state.remainingChars > 0)
            failAt(start, QStringLiteral("the text is not valid UTF-8"));
        plain.clear();
    };
    while (true) {
        if (m_offset >= m_text.size())
            failAt(start, QStringLiteral("the text has no closing double quote"));
        const char character = m_text.at(m_offset++);
        if (character == '"')
            break;
        if (static_cast<uchar>(character) < 0x20)
            failAt(m_offset - 1, QStringLiteral("the text contains a control character"));
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
            failAt(m_offset - 2, QStringLiteral("unknown escape sequence in a text"));
        }
    }
    flush();
    if (hasLoneSurrogate(text))
        failAt(start, QStringLiteral("the text contains half a surrogate pair"));
    return text;
}

ushort CJsonScanner::readHexadecimal()
{
    const QByteArray digits = m_text.mid(m_offset, 4);
    bool readable = digits.size() == 4;
    for (const char digit : digits)
        readable = readable && QByteArray("0123456789abcdefABCDEF").contains(digit);
    if (!readable)
        failAt(m_offset - 2, QStringLiteral("expected four hexadecimal digits after \"\\u\""));
    m_offset += 4;
    return digits.toUShort(nullptr, 16);
}

bool CJsonScanner::isAt(char character) const
{
    return m_offset < m_text.size() && m_text.at(m_offset) == character;
}

QString CJsonScanner::getFound() const
{
    if (m_offset >= m_text.size())
        return QStringLiteral("the end of the text");
    int end = m_offset;
    while (end < m_text.size() && end - m_offset < 20
           && !QByteArray(" \t\r\n,:{}[]\"").contains(m_text.at(end)))
        ++end;
    if (end == m_offset)
        ++end;
    const QByteArray found = m_text.mid(m_offset, end - m_offset);
    for (const char character : found) {
        if (character < 0x20 || character > 0x7e)
            return QStringLiteral("an unexpected character");
    }
    return found == "\"" ? QStringLiteral("a double quote")
                         : QStringLiteral("\"%1\"").arg(QString::fromLatin1(found));
}

QString CJsonScanner::getField() const
{
    QString field;
    for (const CLevel &level : m_levels) {
        if (level.isArray) {
            if (level.count > 0)
                field += QStringLiteral("[%1]").arg(level.count - 1);
        } else if (!level.name.isEmpty()) {
            if (!field.isEmpty())
                field += QLatin1Char('.');
            field += level.name.left(60);
        }
    }
    // The name of an unknown field comes from the file and may contain anything.
    return field.simplified();
}

} // namespace Viewer::CameraPool::Simulation
