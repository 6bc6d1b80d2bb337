#pragma once

#include "appcore/imenuservice.h"

#include <QHash>

#include <memory>
#include <vector>

class QMenu;

namespace Viewer::AppCore {

class CActionContainer;

/// The names of the viewer's menus, groups and contexts.
namespace Ids {
constexpr const char *TOOLS_MENU = "NuvexViewer.Menu.Tools";
constexpr const char *CAMERA_SELECTOR_CONTEXT_MENU = "NuvexViewer.CameraSelectorContextMenu";
constexpr const char *TOOLS_GROUP = "NuvexViewer.Group.Tools.Tools";
constexpr const char *SELECTOR_ACQUISITION_GROUP
    = "NuvexViewer.Group.CameraSelectorContextMenu.Acquisition";
constexpr const char *SELECTOR_MISC_GROUP = "NuvexViewer.Group.CameraSelectorContextMenu.Misc";
constexpr const char *GLOBAL_CONTEXT = "AppCore.Global.Context";
} // namespace Ids

/// Keeps the viewer's menus and the commands that plug-ins add to them.
class CMenuService : public Plugin::AppCore::IMenuService
{
    Q_OBJECT

public:
    explicit CMenuService(QObject *parent = nullptr);
    ~CMenuService() override;

    /// Publishes @p menu, which is borrowed, as @p menuId with its groups from top to bottom.
    QSharedPointer<CActionContainer> addMenu(const Core::CId &menuId, QMenu *menu,
                                             const QList<Core::CId> &groupIds);

    /// The menu entry of the command @p commandId; null when there is none.
    [[nodiscard]] QAction *findAction(const Core::CId &commandId) const;

    QSharedPointer<Plugin::AppCore::IActionContainer>
    getActionContainer(const Core::CId &menuId) override;
    QSharedPointer<Plugin::AppCore::ICommand>
    registerAction(QAction *action, const Core::CId &commandId,
                   const QList<Core::CId> &contexts) override;

private:
    std::vector<std::unique_ptr<QMenu>> m_hiddenMenus; ///< behind containers nobody has published
    QHash<Core::CId, QSharedPointer<CActionContainer>> m_containers;
    QHash<Core::CId, QSharedPointer<Plugin::AppCore::ICommand>> m_commands;
};

} // namespace Viewer::AppCore
