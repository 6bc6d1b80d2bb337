#include "visibletext.h"

namespace Viewer::Text {

namespace {

bool isPrintable(uint codePoint)
{
    switch (QChar::category(codePoint)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}

/// The code point at @p position, and behind it the position of the next one.
uint takeCodePoint(const QString &text, int &position)
{
    const QChar first = text.at(position++);
    if (first.isHighSurrogate() && position < text.size() && text.at(position).isLowSurrogate())
        return QChar::surrogateToUcs4(first, text.at(position++));
    return first.unicode();
}

} // namespace

QString toSingleLine(const QString &text)
{
    QString line;
    line.reserve(text.size());
    for (int position = 0; position < text.size();) {
        const int begin = position;
        if (isPrintable(takeCodePoint(text, position)))
            line.append(text.constData() + begin, position - begin);
        else
            line += QLatin1Char('?');
    }
    return line;
}

QString shorten(const QString &text, int length)
{
    QString shown = text;
    if (shown.size() > length)
        shown = shown.left(length) + QStringLiteral("...");
    return toSingleLine(shown);
}

bool hasUnprintable(const QString &text, bool lineBreaksAllowed)
{
    for (int position = 0; position < text.size();) {
        const uint codePoint = takeCodePoint(text, position);
        const bool isAllowedBreak = lineBreaksAllowed && (codePoint == '\n' || codePoint == '\t');
        if (!isAllowedBreak && !isPrintable(codePoint))
            return true;
    }
    return false;
}

} // namespace Viewer::Text
