#include "rowcheckbox.h"

namespace Plugin::FirmwareUpdater::Internal::View {

CRowCheckBox::CRowCheckBox(QWidget *parent)
    : QCheckBox(parent)
{
}

bool CRowCheckBox::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

} // namespace Plugin::FirmwareUpdater::Internal::View
