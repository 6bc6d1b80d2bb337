#pragma once

#include "abstractlabeldelegate.h"

namespace Plugin::FirmwareUpdater::Internal::View {

/// Names the direction of the planned update.
class CTreeViewDetailsDelegate : public CAbstractLabelDelegate
{
    Q_OBJECT

public:
    explicit CTreeViewDetailsDelegate(QObject *parent = nullptr);

protected:
    [[nodiscard]] CCellContent getContent(const Entity::CFirmwareUpdateEntity &entity,
                                          int column) const override;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
