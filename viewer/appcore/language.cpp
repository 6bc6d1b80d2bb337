#include "language.h"

#include <QApplication>
#include <QFont>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>

#include <algorithm>

namespace Viewer::AppCore {

static const QLatin1String LanguageKey("language");

QList<CLanguageEntry> CLanguage::getEntries()
{
    return {{QStringLiteral("en"), QStringLiteral("English")},
            {QStringLiteral("ko"), QStringLiteral("한국어")},
            {QStringLiteral("ja"), QStringLiteral("日本語")},
            {QStringLiteral("zh"), QStringLiteral("中文")}};
}

bool CLanguage::isKnown(const QString &code)
{
    const QList<CLanguageEntry> entries = getEntries();
    return std::any_of(entries.cbegin(), entries.cend(),
                       [&code](const CLanguageEntry &entry) { return entry.code == code; });
}

QString CLanguage::choose(const QString &override)
{
    const QString system = QLocale::system().name().left(2);
    for (const QString &code : {override, getRemembered(), system}) {
        if (isKnown(code))
            return code;
    }
    return QStringLiteral("en");
}

QString CLanguage::getRemembered()
{
    return QSettings().value(LanguageKey).toString();
}

void CLanguage::remember(const QString &code)
{
    QSettings().setValue(LanguageKey, code);
}

// A desktop's word about fonts counts. Where nobody says anything, Qt asks for any sans serif font
// and mostly gets a wide one, DejaVu Sans or Noto Sans; the titles of narrow columns do not fit in
// it. A font with the widths of Helvetica is asked for first there. Where it is not installed, the
// old family still stands behind it.
void CLanguage::chooseFont(const QString &code)
{
    QFont font = QApplication::font();
    if (font.family() != QLatin1String("Sans Serif") && font.family() != QLatin1String("Sans"))
        return;
    QStringList families(QStringLiteral("Liberation Sans"));
    // In front, so that letters and digits come from the same font: two fonts in one row share
    // neither a base line nor a height. Unicode has one code for characters that China and Japan
    // write differently; which form is meant depends on the language.
    if (code == QLatin1String("ja"))
        families.prepend(QStringLiteral("Noto Sans CJK JP"));
    else if (code == QLatin1String("ko"))
        families.prepend(QStringLiteral("Noto Sans CJK KR"));
    else if (code == QLatin1String("zh"))
        families.prepend(QStringLiteral("Noto Sans CJK SC"));
    font.setFamilies(families);
    QApplication::setFont(font);
}

CLanguage::CLanguage(const QString &code)
{
    // Qt names its Chinese catalogue by territory.
    const QString qtCode = code == QLatin1String("zh") ? QStringLiteral("zh_CN") : code;
    const QString qtFolder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    const QList<QPair<QString, QString>> catalogues
        = {{QStringLiteral("qtbase_%1").arg(qtCode), qtFolder},
           {QStringLiteral("viewer_%1").arg(code), QStringLiteral(":/viewer/translations")}};
    for (const auto &[name, folder] : catalogues) {
        auto translator = std::make_unique<QTranslator>();
        if (translator->load(name, folder) && QCoreApplication::installTranslator(translator.get()))
            m_translators.push_back(std::move(translator));
    }
}

CLanguage::~CLanguage() = default;

} // namespace Viewer::AppCore
