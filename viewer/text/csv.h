#pragma once

#include <QByteArray>
#include <QStringList>
#include <QVector>

namespace Viewer::Text {

/// @p rows as a file for spreadsheets: cells between commas, lines that end with CR and LF, as
/// RFC 4180 has it; UTF-8 behind a byte order mark, without which some take it for the code page of
/// the system. A cell that a spreadsheet would calculate gets an apostrophe in front.
[[nodiscard]] QByteArray toCsv(const QVector<QStringList> &rows);

} // namespace Viewer::Text
