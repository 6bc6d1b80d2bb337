#pragma once

#include "core/cid.h"
#include "core/iservice.h"
#include "iactioncontainer.h"
#include "icommand.h"

#include <QList>
#include <QSharedPointer>

class QAction;

namespace Plugin::AppCore {

/// Gives plug-ins their places in the host's menus. GUI thread.
class HOSTAPI_EXPORT IMenuService : public Core::Service::IService
{
    Q_OBJECT

public:
    explicit IMenuService(QObject *parent = nullptr);
    ~IMenuService() override;

    /// The menu or context menu named @p menuId. Never null: an unknown id gives a menu that is
    /// usable but shown nowhere.
    virtual QSharedPointer<Plugin::AppCore::IActionContainer>
    getActionContainer(const Core::CId &menuId) = 0;

    /// Wraps @p action, which stays the caller's, as the host command @p commandId, active in
    /// @p contexts. The command outlives neither the host nor the action: a deleted action takes
    /// its menu entries with it.
    ///
    /// Never null. A null action gives a command without an action, which no menu shows. While
    /// @p commandId stands for one action it goes on doing so: the command of a second one works in
    /// menus, but is not what the host finds under the id. The id of a deleted action is free
    /// again.
    virtual QSharedPointer<Plugin::AppCore::ICommand>
    registerAction(QAction *action, const Core::CId &commandId, const QList<Core::CId> &contexts)
        = 0;
};

} // namespace Plugin::AppCore
