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
    const int place = findOrAddGroup(groupId);
    QList<QAction *> &actions = m_groups[place].actions;
    if (actions.contains(action))
        return;
    actions.append(action);
    // Ahead of the next group's separator; there is none behind the last group.
    QAction *const next = m_groups.value(place + 1).separator;
    m_menu->insertAction(next, action);
    connect(action, &QAction::changed, this, &CActionContainer::updateVisibility);
    connect(action, &QObject::destroyed, this, &CActionContainer::onActionDestroyed);
    updateVisibility();
}

int CActionContainer::findOrAddGroup(const Core::CId &groupId)
{
    for (int place = 0; place < m_groups.size(); ++place) {
        if (m_groups.at(place).id == groupId)
            return place;
    }
    CGroup group;
    group.id = groupId;
    group.separator = m_menu ? m_menu->addSeparator() : nullptr;
    m_groups.append(group);
    return m_groups.size() - 1;
}

void CActionContainer::onActionDestroyed(QObject *action)
{
    // Compared as what is left of it: it is no QAction any more.
    const auto isGone = [action](const QObject *candidate) { return candidate == action; };
    for (CGroup &group : m_groups) {
        QList<QAction *> &actions = group.actions;
        actions.erase(std::remove_if(actions.begin(), actions.end(), isGone), actions.end());
    }
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
