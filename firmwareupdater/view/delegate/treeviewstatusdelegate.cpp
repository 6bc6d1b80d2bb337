#include "treeviewstatusdelegate.h"

#include "model/firmwareupdateentity.h"

namespace Plugin::FirmwareUpdater::Internal::View {

using Entity::CFirmwareUpdateEntity;

CTreeViewStatusDelegate::CTreeViewStatusDelegate(QObject *parent)
    : CAbstractLabelDelegate(parent)
{
}

CTreeViewStatusDelegate::CCellContent
CTreeViewStatusDelegate::getContent(const CFirmwareUpdateEntity &entity, int column) const
{
    Q_UNUSED(column)
    using EFirmwareUpdateStatus = CFirmwareUpdateEntity::EFirmwareUpdateStatus;
    CCellContent content;
    content.reservedWidth = 37;
    content.hasIconPlace = true;
    switch (static_cast<EFirmwareUpdateStatus>(
        entity.getData(CFirmwareUpdateEntity::UpdateStatus).toInt())) {
    case EFirmwareUpdateStatus::Waiting:
        content.text = tr("Waiting");
        break;
    case EFirmwareUpdateStatus::Updating:
        content.text = tr("Updating");
        content.isBold = true;
        content.iconName = QStringLiteral("refresh_black_icon_14x12_en");
        break;
    case EFirmwareUpdateStatus::Complete:
        content.text = tr("Complete");
        content.iconName = QStringLiteral("update_ok_icon_12x8_en");
        break;
    default:
        break;
    }
    return content;
}

} // namespace Plugin::FirmwareUpdater::Internal::View
