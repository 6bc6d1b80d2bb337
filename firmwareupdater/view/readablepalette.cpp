#include "readablepalette.h"

#include "constants.h"

#include <QLabel>
#include <QTextDocument>
#include <QTextFormat>
#include <QVector>

#include <algorithm>

namespace Plugin::FirmwareUpdater::Internal::View {

void setReadableText(QPalette &palette, QPalette::ColorRole role)
{
    palette.setColor(QPalette::Active, role, Constants::TEXT_COLOR);
    palette.setColor(QPalette::Inactive, role, Constants::TEXT_COLOR);
    palette.setColor(QPalette::Disabled, role, Constants::DISABLED_TEXT_COLOR);
}

void setReadableColors(QPalette &palette)
{
    setReadableText(palette, QPalette::WindowText);
    setReadableText(palette, QPalette::Text);
    setReadableText(palette, QPalette::ButtonText);
    palette.setColor(QPalette::Link, Constants::LINK_COLOR);
    palette.setColor(QPalette::LinkVisited, Constants::LINK_COLOR);

    const QColor &button = Constants::LIGHT_GREY_COLOR;
    palette.setColor(QPalette::Button, button);
    palette.setColor(QPalette::Light, Constants::WHITE_COLOR);
    palette.setColor(QPalette::Midlight, button.darker(118));
    palette.setColor(QPalette::Mid, button.darker(130));
    palette.setColor(QPalette::Dark, button.darker(150));
    palette.setColor(QPalette::Shadow, button.darker(200));
}

static bool hasLinks(const QLabel &label)
{
    // Fills the document.
    label.sizeHint();
    const auto *const document = label.findChild<QTextDocument *>();
    const QVector<QTextFormat> formats = document ? document->allFormats() : QVector<QTextFormat>();
    return std::any_of(formats.cbegin(), formats.cend(), [](const QTextFormat &format) {
        return format.hasProperty(QTextFormat::AnchorHref);
    });
}

void showTextWithLinks(QLabel *label, const QString &text)
{
    label->setText(text);
    // Rich text takes the colour of its links from the application's palette, not from the label's.
    // The label fills its document only when it is asked for its size or painted.
    if (auto *document = label->findChild<QTextDocument *>()) {
        document->setDefaultStyleSheet(
            QStringLiteral("a { color: %1 }").arg(Constants::LINK_COLOR.name()));
    }
    label->setFocusPolicy(hasLinks(*label) ? Qt::StrongFocus : Qt::ClickFocus);
}

} // namespace Plugin::FirmwareUpdater::Internal::View
