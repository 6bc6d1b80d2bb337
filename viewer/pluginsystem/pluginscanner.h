#pragma once

#include "pluginspec.h"

#include <QCoreApplication>
#include <QList>
#include <QStringList>

class QFileInfo;

namespace Viewer::PluginSystem {

/// Finds the viewer's plug-ins in folders, without running any of their code.
class CPluginScanner
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::PluginSystem::CPluginScanner)

public:
    /// One entry for each library in @p directories that is a plug-in of the viewer or claims to
    /// be one, in the order of the folders and of the file names. Libraries of another kind, also
    /// Qt's own plug-ins, are passed over. A file that two folders lead to counts once. A library
    /// that other users could have written, or put there, has failed and is not even read.
    [[nodiscard]] static QList<CPluginSpec> scan(const QStringList &directories);

private:
    [[nodiscard]] static QString findFault(const QString &directory, const QFileInfo &library);
};

} // namespace Viewer::PluginSystem
