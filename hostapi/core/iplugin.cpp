#include "iplugin.h"

namespace Core::Plugin {

IPlugin::IPlugin(QObject *parent)
    : QObject(parent)
{
}

IPlugin::~IPlugin() = default;

void IPlugin::aboutToUninitialize()
{
}

} // namespace Core::Plugin
