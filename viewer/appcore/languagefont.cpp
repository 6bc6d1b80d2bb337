#include "languagefont.h"

#include "viewer/text/language.h"

#include <QApplication>
#include <QFont>
#include <QStringList>

namespace Viewer::AppCore {

// A desktop's word about fonts counts. Where nobody says anything, Qt asks for any sans serif font
// and mostly gets a wide one, DejaVu Sans or Noto Sans; the titles of narrow columns do not fit in
// it. A font with the widths of Helvetica is asked for first there. Where it is not installed, the
// old family still stands behind it.
void chooseLanguageFont(const QString &code)
{
    QFont font = QApplication::font();
    if (font.family() != QLatin1String("Sans Serif") && font.family() != QLatin1String("Sans"))
        return;
    QStringList families(QStringLiteral("Liberation Sans"));
    // In front, so that letters and digits come from the same font: two fonts in one row share
    // neither a base line nor a height. Unicode has one code for characters that China and Japan
    // write differently; which form is meant depends on the language.
    const QString family = Text::CLanguage::getEntry(code).fontFamily;
    if (!family.isEmpty())
        families.prepend(family);
    font.setFamilies(families);
    QApplication::setFont(font);
}

} // namespace Viewer::AppCore
