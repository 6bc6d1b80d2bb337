#pragma once

#include "pluginspec.h"

#include <QCoreApplication>
#include <QList>
#include <QStringList>

namespace Viewer::PluginSystem {

/// Finds the viewer's plug-ins in folders, without running any of their code.
class CPluginScanner
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::PluginSystem::CPluginScanner)

public:
    /// One entry for each library in @p directories that is a plug-in of the viewer or claims to
    /// be one, in the order of the folders and of the file names. Libraries of another kind, also
    /// Qt's own plug-ins, are passed over. A file that two folders lead to counts once.
    [[nodiscard]] static QList<CPluginSpec> scan(const QStringList &directories);
};

} // namespace Viewer::PluginSystem
