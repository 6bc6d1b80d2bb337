#pragma once

#include "core/alocalizedplugin.h"

#include <QPointer>

class QAction;
class QMessageBox;

namespace Sample {

/// Puts an entry into the Tools menu that tells how many cameras there are.
class CCameraCountPlugin : public Core::Plugin::ALocalizedPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID NUVEX_VIEWER_PLUGIN_IID FILE "cameracount.json")
    Q_INTERFACES(Core::Plugin::IPlugin)

public:
    CCameraCountPlugin();
    ~CCameraCountPlugin() override;

    bool initialize(QPointer<Core::Plugin::IPluginInitializer> initializer) override;
    bool postInitialize() override;
    bool unInitialize(QPointer<Core::Plugin::IPluginInitializer> initializer) override;

private:
    void showCount();

    QPointer<Core::Plugin::IPluginInitializer> m_initializer;
    QAction *m_action = nullptr; ///< null before postInitialize() and after unInitialize()
    QPointer<QMessageBox> m_box; ///< the main window's child; null while it is closed
};

} // namespace Sample
