#include "treeviewdetailsdelegate.h"

#include "model/firmwareupdateentity.h"

namespace Plugin::FirmwareUpdater::Internal::View {

using Entity::CFirmwareUpdateEntity;

CTreeViewDetailsDelegate::CTreeViewDetailsDelegate(QObject *parent)
    : CAbstractLabelDelegate(parent)
{
}

CTreeViewDetailsDelegate::CCellContent
CTreeViewDetailsDelegate::getContent(const CFirmwareUpdateEntity &entity, int column) const
{
    Q_UNUSED(column)
    CCellContent content;
    content.reservedWidth = 30;
    switch (entity.getData(CFirmwareUpdateEntity::UpdateDetails).toInt()) {
    case 0:
        content.text = tr("Upgrade");
        break;
    case 1:
        content.text = tr("Downgrade");
        break;
    case 2:
        content.text = tr("Reinstall");
        break;
    default:
        content.text = tr("Unknown");
        break;
    }
    return content;
}

} // namespace Plugin::FirmwareUpdater::Internal::View
