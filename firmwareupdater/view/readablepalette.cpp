#include "readablepalette.h"

#include "constants.h"

namespace Plugin::FirmwareUpdater::Internal::View {

void setReadableText(QPalette &palette, QPalette::ColorRole role)
{
    palette.setColor(QPalette::Active, role, Constants::TEXT_COLOR);
    palette.setColor(QPalette::Inactive, role, Constants::TEXT_COLOR);
    palette.setColor(QPalette::Disabled, role, Constants::DISABLED_TEXT_COLOR);
}

void setReadableTexts(QPalette &palette)
{
    setReadableText(palette, QPalette::WindowText);
    setReadableText(palette, QPalette::Text);
    palette.setColor(QPalette::Link, Constants::LINK_COLOR);
    palette.setColor(QPalette::LinkVisited, Constants::LINK_COLOR);
}

} // namespace Plugin::FirmwareUpdater::Internal::View
