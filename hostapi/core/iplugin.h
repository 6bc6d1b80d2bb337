#pragma once

#include "hostapi_global.h"
#include "iplugininitializer.h"

#include <QObject>
#include <QPointer>

/// Interface id of viewer plug-ins. The number rises with every change of the contract, so that a
/// host refuses a library built against another one before it runs any of its code.
#define NUVEX_VIEWER_PLUGIN_IID "NuvexViewer.Core.Plugin.IPlugin/6.2"

namespace Core::Plugin {

/// The object that a plug-in library exports. All operations are called on the GUI thread, in this
/// order: construction, setLanguage(), initialize() of all plug-ins, postInitialize() of all
/// plug-ins, then, when the host ends, aboutToUninitialize(), unInitialize() and destruction.
///
/// The host destroys the object, before the initializer. From then on nothing of the plug-in is
/// installed in the application: no event filter, no translator, no factory. What it has put into
/// the host's windows, such as dialogs, lives as long as those. The host may therefore destroy its
/// main window before the plug-in or after it, and unload the library in between: a plug-in that
/// puts anything into windows is linked with `-z nodelete`, which keeps its code in the process.
class HOSTAPI_EXPORT IPlugin : public QObject
{
    Q_OBJECT

public:
    explicit IPlugin(QObject *parent = nullptr);
    ~IPlugin() override;

    /// Publishes the plug-in's own services. @p initializer outlives the plug-in. False: the
    /// plug-in cannot run and the host drops it.
    virtual bool initialize(QPointer<Core::Plugin::IPluginInitializer> initializer) = 0;

    /// Uses the services of others: every plug-in has been initialized and every host service is
    /// published. False as for initialize().
    virtual bool postInitialize() = 0;

    /// Withdraws the plug-in's services; the registry is still complete but for those withdrawn.
    /// Harmless for a plug-in that has not been initialized.
    virtual bool unInitialize(QPointer<Core::Plugin::IPluginInitializer> initializer) = 0;

    /// Announces the end before any plug-in is un-initialized. Does nothing by default.
    virtual void aboutToUninitialize();

    /// Chooses the language of the texts, by a language code such as "en" or "ko_KR". Called before
    /// initialize(), because some texts are fixed from there on.
    virtual void setLanguage(const QString &language) = 0;
};

} // namespace Core::Plugin

Q_DECLARE_INTERFACE(Core::Plugin::IPlugin, NUVEX_VIEWER_PLUGIN_IID)
