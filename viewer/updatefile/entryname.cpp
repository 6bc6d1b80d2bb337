#include "entryname.h"

#include "updatefilelimits.h"
#include "viewer/text/visibletext.h"

#include <QStringList>

namespace Viewer::UpdateFile {

using Text::CErrorText;

QString getManifestName()
{
    return QStringLiteral("update.json");
}

QString getSignatureName()
{
    return getManifestName() + QLatin1String(".p7s");
}

CErrorText findEntryNameFault(const QString &name)
{
    if (name.isEmpty())
        return CErrorText::tr("is empty");
    if (name.size() > Limits::ENTRY_NAME_LENGTH)
        return CErrorText::tr("is longer than %1 characters")
            .arg(QString::number(Limits::ENTRY_NAME_LENGTH));
    if (Text::hasUnprintable(name))
        return CErrorText::tr("has a control character");
    if (name.contains(QLatin1Char('\\')))
        return CErrorText::tr("has a backslash; use forward slashes");
    if (name.contains(QLatin1Char(':')))
        return CErrorText::tr("has a colon; drive letters are not allowed");
    if (name.startsWith(QLatin1Char('/')))
        return CErrorText::tr("is an absolute path; use one inside the archive");

    const QStringList parts = name.split(QLatin1Char('/'));
    for (const QString &part : parts) {
        if (part.isEmpty() || part == QLatin1String(".") || part == QLatin1String(".."))
            return CErrorText::tr("has an empty part or one of dots only; use a plain path");
    }
    return {};
}

} // namespace Viewer::UpdateFile
