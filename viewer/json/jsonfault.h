#pragma once

#include "viewer/text/errortext.h"

#include <QString>

namespace Viewer::Json {

/// What is wrong with a JSON text, and where. Thrown; the reader of a text puts the name of its
/// file in front.
struct CJsonFault
{
    int line = 0; ///< from 1
    int column = 0; ///< from 1, in characters
    QString field; ///< its whole path, as in layers[0].id; empty at the top level
    Text::CErrorText problem; ///< end of a sentence, on one line

    /// "line 3, column 5, field "layers[0].id": " and the problem.
    [[nodiscard]] Text::CErrorText describe() const;
};

} // namespace Viewer::Json
