#pragma once

#include <QCoreApplication>
#include <QString>

namespace Viewer::PluginSystem {

/// Knows whether a file or folder is safe from other users of the computer: what they can write
/// must neither run as code of this process nor be taken for this user's own.
class CPathTrust
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::PluginSystem::CPathTrust)

public:
    /// Says who besides root and the user of this process could write @p path, which is followed if
    /// it is a link, as a clause without a full stop; empty: nobody. A group that consists of the
    /// owner alone counts as the owner.
    [[nodiscard]] static QString findFault(const QString &path);
};

} // namespace Viewer::PluginSystem
