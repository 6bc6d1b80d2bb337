#include "jsontext.h"

#include "messagetext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>
#include <QVector>

namespace Viewer::CameraPool::UpdateFile {

namespace {

bool isSpace(char byte)
{
    return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

/// Offset of what the parser stumbled over. For most errors it reports a place behind that, as it
/// has taken it and the white space that follows it.
int findFaultOffset(const QByteArray &text, const QJsonParseError &error)
{
    switch (error.error) {
    case QJsonParseError::UnterminatedObject:
    case QJsonParseError::UnterminatedArray:
    case QJsonParseError::MissingNameSeparator:
    case QJsonParseError::MissingValueSeparator:
    case QJsonParseError::MissingObject:
    case QJsonParseError::IllegalValue:
        break;
    default:
        return error.offset;
    }
    int offset = error.offset;
    while (offset > 0 && isSpace(text.at(offset - 1)))
        --offset;
    return qMax(0, offset - 1);
}

/// Line and column of the byte at @p offset, from 1; columns count characters.
QString describePlace(const QByteArray &text, int offset)
{
    const QByteArray before = text.left(offset);
    const int lineBegin = before.lastIndexOf('\n') + 1;
    const int column = QString::fromUtf8(before.mid(lineBegin)).toUcs4().size() + 1;
    return QStringLiteral("line %1, column %2").arg(before.count('\n') + 1).arg(column);
}

/// In English whatever language Qt's own catalogues are loaded for, as the sentence is logged.
QString describeError(QJsonParseError::ParseError error)
{
    switch (error) {
    case QJsonParseError::UnterminatedObject:
        return QStringLiteral("a name in quotation marks, a comma or a closing brace is missing");
    case QJsonParseError::MissingNameSeparator:
        return QStringLiteral("a colon is missing after a name");
    case QJsonParseError::UnterminatedArray:
        return QStringLiteral("a comma or a closing bracket is missing");
    case QJsonParseError::MissingValueSeparator:
        return QStringLiteral("a comma is missing");
    case QJsonParseError::IllegalValue:
    case QJsonParseError::TerminationByNumber:
    case QJsonParseError::IllegalNumber:
        return QStringLiteral("this is not a value");
    case QJsonParseError::IllegalEscapeSequence:
        return QStringLiteral("this escape sequence does not exist");
    case QJsonParseError::IllegalUTF8String:
        return QStringLiteral("this text is not UTF-8");
    case QJsonParseError::UnterminatedString:
        return QStringLiteral("a closing quotation mark is missing");
    case QJsonParseError::MissingObject:
        return QStringLiteral("a name in quotation marks or a value is missing");
    case QJsonParseError::GarbageAtEnd:
        return QStringLiteral("something follows the closing brace");
    default:
        return QStringLiteral("it cannot be understood");
    }
}

/// Position behind the string whose opening quotation mark is at @p position.
int skipString(const QByteArray &text, int position)
{
    for (++position; position < text.size(); ++position) {
        if (text.at(position) == '\\')
            ++position;
        else if (text.at(position) == '"')
            return position + 1;
    }
    return text.size();
}

/// Offset of the bracket that opens a level too many, or -1. Any bytes will do.
int findTooDeepNesting(const QByteArray &text, int maximumNesting)
{
    int depth = 0;
    for (int position = 0; position < text.size();) {
        const char byte = text.at(position);
        if (byte == '"') {
            position = skipString(text, position);
            continue;
        }
        if ((byte == '{' || byte == '[') && ++depth > maximumNesting)
            return position;
        if (byte == '}' || byte == ']')
            --depth;
        ++position;
    }
    return -1;
}

/// The text that a JSON string, quotation marks included, stands for.
QString decodeString(const QByteArray &string)
{
    return QJsonDocument::fromJson('[' + string + ']').array().at(0).toString();
}

struct CRepeatedName
{
    int offset = -1; ///< -1: no name is repeated
    QString name;
};

/// Wants text that is known to be JSON: a string is a name exactly when a colon follows it.
CRepeatedName findRepeatedName(const QByteArray &text)
{
    QVector<QSet<QString>> names; // of each object and list that is open
    for (int position = 0; position < text.size();) {
        const char byte = text.at(position);
        if (byte == '{' || byte == '[')
            names.append(QSet<QString>());
        else if (byte == '}' || byte == ']')
            names.removeLast();
        if (byte != '"') {
            ++position;
            continue;
        }
        const int begin = position;
        position = skipString(text, begin);
        const QByteArray string = text.mid(begin, position - begin);
        while (position < text.size() && isSpace(text.at(position)))
            ++position;
        if (position == text.size() || text.at(position) != ':')
            continue;
        const QString name = decodeString(string);
        if (names.last().contains(name))
            return {begin, name};
        names.last().insert(name);
    }
    return {};
}

CJsonResult fault(const QString &sentence)
{
    return {QJsonObject(), sentence};
}

} // namespace

CJsonResult parseJsonObject(const QByteArray &text, int maximumNesting)
{
    if (text.trimmed().isEmpty())
        return fault(QStringLiteral("is empty"));
    const int tooDeep = findTooDeepNesting(text, maximumNesting);
    if (tooDeep >= 0)
        return fault(QStringLiteral("is nested more than %1 levels deep at %2")
                         .arg(QString::number(maximumNesting), describePlace(text, tooDeep)));

    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError)
        return fault(QStringLiteral("is not JSON at %1: %2")
                         .arg(describePlace(text, findFaultOffset(text, error)),
                              describeError(error.error)));
    if (!document.isObject())
        return fault(QStringLiteral("has to be an object in braces at its top level"));

    const CRepeatedName repeated = findRepeatedName(text);
    if (repeated.offset >= 0)
        return fault(QStringLiteral("has the name %1 twice in one object, again at %2")
                         .arg(quote(repeated.name), describePlace(text, repeated.offset)));
    return {document.object(), QString()};
}

} // namespace Viewer::CameraPool::UpdateFile
