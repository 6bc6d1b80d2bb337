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
    using EFirmwareUpdateResult = CFirmwareUpdateEntity::EFirmwareUpdateResult;
    CCellContent content;
    content.reservedWidth = 37;
    content.hasIconPlace = true;
    switch (static_cast<EFirmwareUpdateResult>(
        entity.getData(CFirmwareUpdateEntity::UpdateResult).toInt())) {
    case EFirmwareUpdateResult::OK:
        content.text = tr("OK");
        content.iconName = QStringLiteral("update_ok_icon_12x8_en");
        break;
    case EFirmwareUpdateResult::Failed:
        // Elided as a whole, tags included: in a narrow column fewer letters fit than of the
        // others.
        content.text = QStringLiteral("<b>") + tr("Failed") + QStringLiteral("</b>");
        content.isMarkup = true;
        content.iconName = QStringLiteral("update_failed_icon_12x11_en");
        break;
    case EFirmwareUpdateResult::Skipped:
        content.text = tr("Skipped");
        content.iconName = QStringLiteral("update_skipped_icon_12x3_en");
        break;
    default:
        break;
    }
    return content;
}

} // namespace Plugin::FirmwareUpdater::Internal::View
