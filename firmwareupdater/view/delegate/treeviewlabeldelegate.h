#pragma once

#include "abstractlabeldelegate.h"

namespace Plugin::FirmwareUpdater::Internal::View {

/// Shows a column's value as it is, in bold while the camera is being updated, and gives the rows
/// their height.
class CTreeViewLabelDelegate : public CAbstractLabelDelegate
{
    Q_OBJECT

public:
    explicit CTreeViewLabelDelegate(QObject *parent = nullptr);

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    [[nodiscard]] CCellContent getContent(const Entity::CFirmwareUpdateEntity &entity,
                                          int column) const override;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
