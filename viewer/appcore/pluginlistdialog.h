#pragma once

#include "listdialog.h"

#include "viewer/pluginsystem/pluginspec.h"

namespace Viewer::AppCore {

/// Lists the viewer's parts and plug-ins, with the reason for each one that is not available.
class CPluginListDialog : public CListDialog
{
    Q_OBJECT

public:
    explicit CPluginListDialog(const QList<PluginSystem::CPluginSpec> &specs,
                               QWidget *parent = nullptr);
    ~CPluginListDialog() override;

private:
    void addEntry(const PluginSystem::CPluginSpec &spec);
};

} // namespace Viewer::AppCore
