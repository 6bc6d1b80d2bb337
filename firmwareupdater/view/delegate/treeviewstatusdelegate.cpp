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
    CCellContent content;
    content.reservedWidth = 37;
    content.hasIconPlace = true;
    switch (entity.getData(CFirmwareUpdateEntity::UpdateStatus).toInt()) {
    case 0:
        content.text = tr("Waiting");
        break;
    case 1:
        content.text = tr("Updating");
        content.isBold = true;
        content.iconName = QStringLiteral("refresh_black_icon_14x12_en");
        break;
    case 2:
        content.text = tr("Complete");
        content.iconName = QStringLiteral("update_ok_icon_12x8_en");
        break;
    default:
        break;
    }
    return content;
}

} // namespace Plugin::FirmwareUpdater::Internal::View
