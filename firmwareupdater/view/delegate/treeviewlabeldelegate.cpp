#include "treeviewlabeldelegate.h"

#include "model/firmwareupdateentity.h"
#include "view/treerow.h"

namespace Plugin::FirmwareUpdater::Internal::View {

using Entity::CFirmwareUpdateEntity;

CTreeViewLabelDelegate::CTreeViewLabelDelegate(QObject *parent)
    : CAbstractLabelDelegate(parent)
{
}

QSize CTreeViewLabelDelegate::sizeHint(const QStyleOptionViewItem &option,
                                       const QModelIndex &index) const
{
    return CTreeRow(index).getSizeHint(QStyledItemDelegate::sizeHint(option, index));
}

CTreeViewLabelDelegate::CCellContent
CTreeViewLabelDelegate::getContent(const CFirmwareUpdateEntity &entity, int column) const
{
    CCellContent content;
    content.text = entity.getData(column).toString();
    content.isBold
        = entity.getUpdateStatus() == CFirmwareUpdateEntity::EFirmwareUpdateStatus::Updating;
    content.reservedWidth = 15;
    return content;
}

} // namespace Plugin::FirmwareUpdater::Internal::View
