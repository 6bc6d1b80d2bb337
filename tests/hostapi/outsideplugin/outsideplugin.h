#pragma once

#include "core/alocalizedplugin.h"

/// Uses every interface that the contract has.
class COutsidePlugin : public Core::Plugin::ALocalizedPlugin
{
    Q_OBJECT
    Q_INTERFACES(Core::Plugin::IPlugin)

public:
    COutsidePlugin();

    bool initialize(QPointer<Core::Plugin::IPluginInitializer> initializer) override;
    bool postInitialize() override;
    bool unInitialize(QPointer<Core::Plugin::IPluginInitializer> initializer) override;

private:
    QPointer<Core::Plugin::IPluginInitializer> m_initializer;
};
