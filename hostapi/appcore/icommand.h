#pragma once

#include "core/cid.h"
#include "hostapi_global.h"

#include <QObject>

class QAction;

namespace Plugin::AppCore {

/// A host command: what the host shows in menus in place of a plug-in's action. It mirrors the
/// action's text, icon, enabled and visible state, and triggering it triggers the action. GUI
/// thread.
class HOSTAPI_EXPORT ICommand : public QObject
{
    Q_OBJECT

public:
    explicit ICommand(QObject *parent = nullptr);
    ~ICommand() override;

    /// The id under which the command was registered.
    [[nodiscard]] virtual Core::CId getId() const = 0;

    /// The host's own action, owned by the command. Null when there is no action to stand for: the
    /// plug-in's has been deleted, or there never was one.
    [[nodiscard]] virtual QAction *getAction() const = 0;
};

} // namespace Plugin::AppCore
