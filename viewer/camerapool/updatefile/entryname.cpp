#include "entryname.h"

#include "updatefilelimits.h"
#include "viewer/json/messagetext.h"

#include <QStringList>

namespace Viewer::CameraPool::UpdateFile {

QString getManifestName()
{
    return QStringLiteral("update.json");
}

QString findEntryNameFault(const QString &name)
{
    if (name.isEmpty())
        return QStringLiteral("is empty");
    if (name.size() > Limits::ENTRY_NAME_LENGTH)
        return QStringLiteral("is longer than %1 characters").arg(Limits::ENTRY_NAME_LENGTH);
    if (Json::hasUnprintable(name))
        return QStringLiteral("has a control character");
    if (name.contains(QLatin1Char('\\')))
        return QStringLiteral("has a backslash; use forward slashes");
    if (name.contains(QLatin1Char(':')))
        return QStringLiteral("has a colon; drive letters are not allowed");
    if (name.startsWith(QLatin1Char('/')))
        return QStringLiteral("is an absolute path; use one inside the archive");

    const QStringList parts = name.split(QLatin1Char('/'));
    for (const QString &part : parts) {
        if (part.isEmpty() || part == QLatin1String(".") || part == QLatin1String(".."))
            return QStringLiteral("has an empty part or one of dots only; use a plain path");
    }
    return QString();
}

} // namespace Viewer::CameraPool::UpdateFile
