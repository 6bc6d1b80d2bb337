#pragma once

#include "appcore/iactioncontainer.h"

#include <QList>
#include <QPointer>
#include <QVector>

class QAction;
class QMenu;

namespace Viewer::AppCore {

/// One menu of the viewer, with its entries in groups. A separator stands between two groups only
/// while both show something, and the menu's own entry in the menu bar only while the menu does.
class CActionContainer : public Plugin::AppCore::IActionContainer
{
    Q_OBJECT

public:
    /// @p menu is borrowed and may die first. @p groupIds are its groups, top to bottom.
    CActionContainer(QMenu *menu, const QList<Core::CId> &groupIds);
    ~CActionContainer() override;

    void addAction(QSharedPointer<Plugin::AppCore::ICommand> command,
                   const Core::CId &groupId) override;

    /// Places an action of the viewer's own, which stays the caller's.
    void addOwnAction(QAction *action, const Core::CId &groupId);

private:
    struct CGroup
    {
        Core::CId id;
        QAction *separator = nullptr; ///< above the group; the menu's child
        QList<QAction *> actions;
    };

    int findOrAddGroup(const Core::CId &groupId);
    void onActionDestroyed(QObject *action);
    void updateVisibility();

    const QPointer<QMenu> m_menu;
    QVector<CGroup> m_groups;
    QList<QSharedPointer<Plugin::AppCore::ICommand>> m_commands;
};

} // namespace Viewer::AppCore
