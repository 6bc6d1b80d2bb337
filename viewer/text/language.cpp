#include "language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>

#include <algorithm>

namespace Viewer::Text {

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
    for (const QString &code : {override, getRemembered()}) {
        if (isKnown(code))
            return code;
    }
    return getSystem();
}

QString CLanguage::getSystem()
{
    const QString code = QLocale::system().name().left(2);
    return isKnown(code) ? code : QStringLiteral("en");
}

QString CLanguage::getRemembered()
{
    return QSettings().value(LanguageKey).toString();
}

void CLanguage::remember(const QString &code)
{
    QSettings().setValue(LanguageKey, code);
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

} // namespace Viewer::Text
