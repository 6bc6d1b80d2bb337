#pragma once

#include <QString>

namespace Viewer::NuvexUpdate {

/// A sentence for the user, and a name for it that is the same in every language and version.
struct CMessage
{
    QString key; ///< words in small letters, joined by hyphens; empty: there is no message
    QString text;
};

} // namespace Viewer::NuvexUpdate
