#include "actioncontainer.h"

#include "appcore/icommand.h"

#include <QAction>
#include <QMenu>

#include <algorithm>

namespace Viewer::AppCore {

static bool showsSomething(const QList<QAction *> &actions)
{
    return std::any_of(actions.cbegin(), actions.cend(),
                       [](const QAction *action) { return action->isVisible(); });
}

CActionContainer::CActionContainer(QMenu *menu, const QList<Core::CId> &groupIds)
    : m_menu(menu)
{
    for (const Core::CId &groupId : groupIds)
        findOrAddGroup(groupId);
    updateVisibility();
}

CActionContainer::~CActionContainer() = default;

void CActionContainer::addAction(QSharedPointer<Plugin::AppCore::ICommand> command,
                                 const Core::CId &groupId)
{
    if (!command || !command->getAction())
        return;
    m_commands.append(command);
    addOwnAction(command->getAction(), groupId);
}

void CActionContainer::addOwnAction(QAction *action, const Core::CId &groupId)
{
    if (!m_menu)
        return;
    CGroup &group = findOrAddGroup(groupId);
    if (group.actions.contains(action))
        return;
    const int place = static_cast<int>(&group - &m_groups.first());
    // Ahead of the next group's separator; there is none behind the last group.
    QAction *const next = m_groups.value(place + 1).separator;
    group.actions.append(action);
    m_menu->insertAction(next, action);
    connect(action, &QAction::changed, this, &CActionContainer::updateVisibility);
    connect(action, &QObject::destroyed, this, &CActionContainer::onActionDestroyed);
    updateVisibility();
}

QMenu *CActionContainer::getMenu() const
{
    return m_menu;
}

bool CActionContainer::hasVisibleEntries() const
{
    return std::any_of(m_groups.cbegin(), m_groups.cend(),
                       [](const CGroup &group) { return showsSomething(group.actions); });
}

CActionContainer::CGroup &CActionContainer::findOrAddGroup(const Core::CId &groupId)
{
    const auto match
        = std::find_if(m_groups.begin(), m_groups.end(),
                       [&groupId](const CGroup &group) { return group.id == groupId; });
    if (match != m_groups.end())
        return *match;
    CGroup group;
    group.id = groupId;
    group.separator = m_menu ? m_menu->addSeparator() : nullptr;
    m_groups.append(group);
    return m_groups.last();
}

void CActionContainer::onActionDestroyed(QObject *action)
{
    for (CGroup &group : m_groups)
        group.actions.removeAll(static_cast<QAction *>(action));
    m_commands.erase(std::remove_if(m_commands.begin(), m_commands.end(),
                                    [](const auto &command) { return !command->getAction(); }),
                     m_commands.end());
    updateVisibility();
}

void CActionContainer::updateVisibility()
{
    if (!m_menu)
        return;
    bool shownAbove = false;
    for (const CGroup &group : qAsConst(m_groups)) {
        const bool shown = showsSomething(group.actions);
        group.separator->setVisible(shown && shownAbove);
        shownAbove = shownAbove || shown;
    }
    m_menu->menuAction()->setVisible(shownAbove);
}

} // namespace Viewer::AppCore
