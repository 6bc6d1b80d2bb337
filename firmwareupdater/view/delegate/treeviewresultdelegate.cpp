#include "treeviewresultdelegate.h"

#include "model/firmwareupdateentity.h"

namespace Plugin::FirmwareUpdater::Internal::View {

using Entity::CFirmwareUpdateEntity;

CTreeViewResultDelegate::CTreeViewResultDelegate(QObject *parent)
    : CAbstractLabelDelegate(parent)
{
}

CTreeViewResultDelegate::CCellContent
CTreeViewResultDelegate::getContent(const CFirmwareUpdateEntity &entity, int column) const
{
    Q_UNUSED(column)
    CCellContent content;
    content.reservedWidth = 37;
    content.hasIconPlace = true;
    switch (entity.getData(CFirmwareUpdateEntity::UpdateResult).toInt()) {
    case 0:
        content.text = tr("OK");
        content.iconName = QStringLiteral("update_ok_icon_12x8_en");
        break;
    case 1:
        // Elided as a whole, tags included: in a narrow column fewer letters fit than of the
        // others.
        content.text = QStringLiteral("<b>") + tr("Failed") + QStringLiteral("</b>");
        content.isMarkup = true;
        content.iconName = QStringLiteral("update_failed_icon_12x11_en");
        break;
    case 2:
        content.text = tr("Skipped");
        content.iconName = QStringLiteral("update_skipped_icon_12x3_en");
        break;
    default:
        break;
    }
    return content;
}

} // namespace Plugin::FirmwareUpdater::Internal::View
