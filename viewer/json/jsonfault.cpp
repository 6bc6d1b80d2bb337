#include "jsonfault.h"

namespace Viewer::Json {

using Text::CErrorText;

CErrorText CJsonFault::describe() const
{
    const QString lineText = QString::number(line);
    const QString columnText = QString::number(column);
    if (field.isEmpty())
        return CErrorText::tr("line %1, column %2: %3").arg(lineText, columnText, problem);
    return CErrorText::tr("line %1, column %2, field \"%3\": %4")
        .arg(lineText, columnText, field, problem);
}

} // namespace Viewer::Json
