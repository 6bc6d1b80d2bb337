#include "menuservice.h"

#include "actioncontainer.h"
#include "command.h"

#include <QMenu>

namespace Viewer::AppCore {

CMenuService::CMenuService(QObject *parent)
    : Plugin::AppCore::IMenuService(parent)
{
}

CMenuService::~CMenuService() = default;

QSharedPointer<CActionContainer> CMenuService::addMenu(const Core::CId &menuId, QMenu *menu,
                                                       const QList<Core::CId> &groupIds)
{
    const auto container = QSharedPointer<CActionContainer>::create(menu, groupIds);
    m_containers.insert(menuId, container);
    return container;
}

QAction *CMenuService::findAction(const Core::CId &commandId) const
{
    const auto command = m_commands.value(commandId);
    return command ? command->getAction() : nullptr;
}

QSharedPointer<Plugin::AppCore::IActionContainer>
CMenuService::getActionContainer(const Core::CId &menuId)
{
    if (!m_containers.contains(menuId)) {
        m_hiddenMenus.push_back(std::make_unique<QMenu>());
        addMenu(menuId, m_hiddenMenus.back().get(), {});
    }
    return m_containers.value(menuId);
}

QSharedPointer<Plugin::AppCore::ICommand>
CMenuService::registerAction(QAction *action, const Core::CId &commandId,
                             const QList<Core::CId> &contexts)
{
    // The viewer knows one context only, the one that is always active.
    const bool active = contexts.contains(Core::CId(Ids::GLOBAL_CONTEXT));
    const QSharedPointer<Plugin::AppCore::ICommand> command
        = QSharedPointer<CCommand>::create(action, commandId, active);
    // Who looks for an id finds the same entry whatever comes later, also another plug-in of a
    // careless author.
    if (findAction(commandId))
        qWarning("The command id \"%s\" is taken.", qUtf8Printable(commandId.toString()));
    else
        m_commands.insert(commandId, command);
    return command;
}

} // namespace Viewer::AppCore
