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
    virtual bool unInitialize(QPointer<Core::Plugin::IPluginInitializer> initializer) = 0;

    /// Announces the end before any plug-in is un-initialized. Does nothing by default.
    virtual void aboutToUninitialize();

    /// Chooses the language of the texts, by a language code such as "en" or "ko_KR". Called before
    /// initialize(), because some texts are fixed from there on.
    virtual void setLanguage(const QString &language) = 0;
};

} // namespace Core::Plugin

Q_DECLARE_INTERFACE(Core::Plugin::IPlugin, NUVEX_VIEWER_PLUGIN_IID)
