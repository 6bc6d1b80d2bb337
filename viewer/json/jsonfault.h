#pragma once

#include "viewer/text/errortext.h"

#include <QString>

namespace Viewer::Json {

/// What is wrong with a JSON text, and where. Thrown; the reader of a text makes a sentence of it
/// that names the file.
struct CJsonFault
{
    int line = 0; ///< from 1
    int column = 0; ///< from 1, in characters
    QString field; ///< its whole path, as in layers[0].id; empty at the top level
    Text::CErrorText problem; ///< end of a sentence, on one line
};

} // namespace Viewer::Json
