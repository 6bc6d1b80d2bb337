#include "iplugininitializer.h"

namespace Core::Plugin {

IPluginInitializer::IPluginInitializer(QObject *parent)
    : QObject(parent)
{
}

IPluginInitializer::~IPluginInitializer() = default;

} // namespace Core::Plugin
