#pragma once

#include "abstractlabeldelegate.h"

namespace Plugin::FirmwareUpdater::Internal::View {

/// Shows the outcome of the camera's update, in words and with an icon.
class CTreeViewResultDelegate : public CAbstractLabelDelegate
{
    Q_OBJECT

public:
    explicit CTreeViewResultDelegate(QObject *parent = nullptr);

protected:
    [[nodiscard]] CCellContent getContent(const Entity::CFirmwareUpdateEntity &entity,
                                          int column) const override;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
