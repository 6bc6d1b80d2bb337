#pragma once

namespace Viewer::Json {

/// What a text in a file has to be like.
struct CTextRule
{
    int maximumLength = 0; ///< in UTF-16 units
    bool mayBeEmpty = false;
    bool hasSeveralLines = false; ///< line feeds and tabulators are allowed
    bool mayHaveSpaceAround = false;
};

} // namespace Viewer::Json
