#pragma once

#include "appcore/icommand.h"

#include <QAction>
#include <QPointer>

#include <memory>

namespace Viewer::AppCore {

/// What the viewer shows in its menus for a plug-in's action.
class CCommand : public Plugin::AppCore::ICommand
{
    Q_OBJECT

public:
    /// Mirrors @p action, which may be deleted before the command. With @p active false the
    /// command stays disabled: none of its contexts exists.
    CCommand(QAction *action, const Core::CId &id, bool active);
    ~CCommand() override;

    [[nodiscard]] Core::CId getId() const override;

    /// Null once the mirrored action is gone.
    [[nodiscard]] QAction *getAction() const override;

private:
    void onSourceChanged();
    void onTriggered();

    const Core::CId m_id;
    const bool m_active;
    const QPointer<QAction> m_source;
    std::unique_ptr<QAction> m_action;
};

} // namespace Viewer::AppCore
