#include "iactioncontainer.h"
#include "icommand.h"
#include "iinfo.h"
#include "imenuservice.h"
#include "iwindowservice.h"

// The destructors are the interfaces' key functions: defined here, they give this library the one
// copy of their type information.
namespace Plugin::AppCore {

IInfo::IInfo(QObject *parent)
    : QObject(parent)
{
}

IInfo::~IInfo() = default;

ICommand::ICommand(QObject *parent)
    : QObject(parent)
{
}

ICommand::~ICommand() = default;

IActionContainer::IActionContainer(QObject *parent)
    : QObject(parent)
{
}

IActionContainer::~IActionContainer() = default;

IMenuService::IMenuService(QObject *parent)
    : IService(parent)
{
}

IMenuService::~IMenuService() = default;

IWindowService::IWindowService(QObject *parent)
    : IService(parent)
{
}

IWindowService::~IWindowService() = default;

} // namespace Plugin::AppCore
