#include "csv.h"

#include <algorithm>

namespace Viewer::Text {

static QString toCell(QString text)
{
    if (!text.isEmpty() && QLatin1String("=+-@\t\r").contains(text.at(0)))
        text.prepend(QLatin1Char('\''));
    const bool needsQuotes = std::any_of(text.cbegin(), text.cend(), [](QChar character) {
        return QLatin1String("\",\r\n").contains(character);
    });
    if (!needsQuotes)
        return text;
    text.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QByteArray toCsv(const QVector<QStringList> &rows)
{
    QByteArray text("\xEF\xBB\xBF");
    for (const QStringList &row : rows) {
        QStringList cells;
        for (const QString &cell : row)
            cells.append(toCell(cell));
        text += cells.join(QLatin1Char(',')).toUtf8() + "\r\n";
    }
    return text;
}

} // namespace Viewer::Text
