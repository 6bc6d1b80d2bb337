#pragma once

#include "ifirmwareupdaterservice.h"

#include "camerapool/ibaseinfo.h"
#include "core/alocalizedplugin.h"

#include <QPointer>
#include <QSharedPointer>

class QAction;

namespace Plugin::FirmwareUpdater {

/// The object that the host loads: publishes the updater service and keeps the two menu entries
/// that start the wizard in line with the cameras that are there.
class CFirmwareUpdaterPlugin : public Core::Plugin::ALocalizedPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID NUVEX_VIEWER_PLUGIN_IID FILE "firmwareupdater.json")
    Q_INTERFACES(Core::Plugin::IPlugin)

public:
    explicit CFirmwareUpdaterPlugin(QObject *parent = nullptr);
    ~CFirmwareUpdaterPlugin() override;

    bool initialize(QPointer<Core::Plugin::IPluginInitializer> initializer) override;
    bool postInitialize() override;
    bool unInitialize(QPointer<Core::Plugin::IPluginInitializer> initializer) override;

    /// Makes known to Qt what travels from the worker thread to the GUI thread.
    static void registerMetaTypes();

    /// The context entry is shown for a camera that can be updated. Only a camera is remembered:
    /// when the selection goes, the next start still ticks the last one.
    void onSelectionChanged(QSharedPointer<Plugin::CameraPool::IBaseInfo> info);

    /// The tools entry is enabled while there is a camera.
    void onEnumerationChanged();

private:
    void createMenuEntries();

    QPointer<Core::Plugin::IPluginInitializer> m_initializer;
    QAction *m_toolsAction = nullptr; ///< null without a menu service
    QAction *m_contextAction = nullptr; ///< null without a menu service
    QSharedPointer<IFirmwareUpdaterService> m_service;
};

} // namespace Plugin::FirmwareUpdater
