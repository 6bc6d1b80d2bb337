#include "treeviewdetailsdelegate.h"

#include "model/firmwareupdateentity.h"

namespace Plugin::FirmwareUpdater::Internal::View {

using Entity::CFirmwareUpdateEntity;
using Plugin::CameraPool::EFirmwareUpdateDirection;

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
    switch (static_cast<EFirmwareUpdateDirection>(
        entity.getData(CFirmwareUpdateEntity::UpdateDetails).toInt())) {
    case EFirmwareUpdateDirection::Upgrade:
        content.text = tr("Upgrade");
        break;
    case EFirmwareUpdateDirection::Downgrade:
        content.text = tr("Downgrade");
        break;
    case EFirmwareUpdateDirection::Reinstall:
        content.text = tr("Reinstall");
        break;
    default:
        content.text = tr("Unknown");
        break;
    }
    return content;
}

} // namespace Plugin::FirmwareUpdater::Internal::View
