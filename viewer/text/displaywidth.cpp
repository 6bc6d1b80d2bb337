#include "displaywidth.h"

#include <QVector>

#include <cwchar>

namespace Viewer::Text {

/// The C library knows the widths in the locale of the terminal; what it does not know there, such
/// a terminal cannot show either.
static int getDisplayWidth(char32_t letter)
{
    if (letter >= ' ' && letter <= '~')
        return 1;
    const int width = wcwidth(static_cast<wchar_t>(letter));
    return width < 0 ? 1 : width;
}

int getDisplayWidth(const QString &text)
{
    int width = 0;
    for (const uint letter : text.toUcs4())
        width += getDisplayWidth(static_cast<char32_t>(letter));
    return width;
}

QString cutToWidth(const QString &text, int width)
{
    QString cut;
    int used = 0;
    for (const uint letter : text.toUcs4()) {
        used += getDisplayWidth(static_cast<char32_t>(letter));
        if (used > width)
            break;
        cut += QString::fromUcs4(&letter, 1);
    }
    return cut;
}

} // namespace Viewer::Text
