#pragma once

#include "core/iplugin.h"

#ifndef TEST_PLUGIN_IID
#define TEST_PLUGIN_IID NUVEX_VIEWER_PLUGIN_IID
#endif

/// Notes each call of the host in the application's property "calls" and fails where its build
/// says.
class CTestPlugin : public Core::Plugin::IPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID TEST_PLUGIN_IID FILE "testplugin.json")
    Q_INTERFACES(Core::Plugin::IPlugin)

public:
    enum EBehaviour {
        Good,
        RefusesInitialize,
        ThrowsInInitialize,
        RefusesPostInitialize,
    };

    CTestPlugin();
    ~CTestPlugin() override;

    bool initialize(QPointer<Core::Plugin::IPluginInitializer> initializer) override;
    bool postInitialize() override;
    bool unInitialize(QPointer<Core::Plugin::IPluginInitializer> initializer) override;
    void aboutToUninitialize() override;
    void setLanguage(const QString &language) override;

private:
    QSharedPointer<Core::Service::IService> m_service;
};
