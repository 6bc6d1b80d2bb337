#pragma once

#include "abstractlabeldelegate.h"

namespace Plugin::FirmwareUpdater::Internal::View {

/// Shows how far the update of the camera is, in words and with an icon.
class CTreeViewStatusDelegate : public CAbstractLabelDelegate
{
    Q_OBJECT

public:
    explicit CTreeViewStatusDelegate(QObject *parent = nullptr);

protected:
    [[nodiscard]] CCellContent getContent(const Entity::CFirmwareUpdateEntity &entity,
                                          int column) const override;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
