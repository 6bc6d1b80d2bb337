#pragma once

#include "core/cid.h"
#include "hostapi_global.h"

#include <QObject>
#include <QSharedPointer>

namespace Plugin::AppCore {

class ICommand;

/// A menu, or a context menu, of the host. Its entries stand in named groups. GUI thread.
class HOSTAPI_EXPORT IActionContainer : public QObject
{
    Q_OBJECT

public:
    explicit IActionContainer(QObject *parent = nullptr);
    ~IActionContainer() override;

    /// Places @p command behind the entries that its group already has. An unknown group is added
    /// at the end of the menu. A null command, and one without an action, is ignored.
    virtual void addAction(QSharedPointer<Plugin::AppCore::ICommand> command,
                           const Core::CId &groupId)
        = 0;
};

} // namespace Plugin::AppCore
