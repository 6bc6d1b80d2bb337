#include "pathtrust.h"

#include <QFile>

#include <cerrno>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace Viewer::Files {

using Text::CErrorText;

static QString getUserName(uid_t user)
{
    const passwd *const entry = getpwuid(user);
    return entry ? QString::fromLocal8Bit(entry->pw_name) : QString::number(user);
}

// Debian and others give each user a group of the same name, and then let the group write whatever
// the user may write.
static bool isPrivateGroup(gid_t group, uid_t owner)
{
    const QString ownerName = getUserName(owner);
    const struct group *const entry = getgrgid(group);
    if (!entry || (group != 0 && QString::fromLocal8Bit(entry->gr_name) != ownerName))
        return false;
    for (char **member = entry->gr_mem; *member; ++member) {
        const QString name = QString::fromLocal8Bit(*member);
        if (name != ownerName && name != QLatin1String("root"))
            return false;
    }
    return true;
}

CErrorText findPathFault(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat info = {};
    if (stat(name.constData(), &info) != 0)
        return CErrorText(qt_error_string(errno));
    if (info.st_uid != 0 && info.st_uid != geteuid())
        return CErrorText::tr("it belongs to the user %1").arg(getUserName(info.st_uid));
    // With an access control list the group's bits are the most that anybody on the list may do.
    const bool isListed = getxattr(name.constData(), "system.posix_acl_access", nullptr, 0) > 0;
    const bool isSafeForGroup
        = !(info.st_mode & S_IWGRP) || (!isListed && isPrivateGroup(info.st_gid, info.st_uid));
    if ((info.st_mode & S_IWOTH) || !isSafeForGroup)
        return CErrorText::tr("users other than its owner can write to it");
    return {};
}

} // namespace Viewer::Files
