#pragma once

#include "viewer/text/errortext.h"

#include <QByteArray>
#include <QJsonObject>

namespace Viewer::CameraPool::UpdateFile {

/// A JSON text's top-level object, or why there is none.
struct CJsonResult
{
    QJsonObject object;
    Text::CErrorText fault; ///< end of a sentence that begins with the text's name; empty: no fault
};

/// Reads a JSON text whose top level is an object. Faults are: no JSON, with line and column; lists
/// and objects nested deeper than @p maximumNesting; a name that stands twice in one object, which
/// would otherwise silently win over the first. A pure function.
[[nodiscard]] CJsonResult parseJsonObject(const QByteArray &text, int maximumNesting);

} // namespace Viewer::CameraPool::UpdateFile
