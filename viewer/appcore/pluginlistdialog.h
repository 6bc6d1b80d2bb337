#pragma once

#include "viewer/pluginsystem/pluginspec.h"

#include <QDialog>

class QLabel;
class QTreeWidget;

namespace Viewer::AppCore {

/// Lists the viewer's parts and plug-ins, with the reason for each one that is not available.
class CPluginListDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CPluginListDialog(const QList<PluginSystem::CPluginSpec> &specs,
                               QWidget *parent = nullptr);
    ~CPluginListDialog() override;

private:
    void addEntry(const PluginSystem::CPluginSpec &spec);
    void onCurrentChanged();

    QTreeWidget *const m_tree;
    QLabel *const m_detailsLabel;
};

} // namespace Viewer::AppCore
