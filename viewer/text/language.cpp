#include "language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QStringList>

namespace Viewer::Text {

static const QLatin1String LANGUAGE_KEY("language");

QList<CLanguageEntry> CLanguage::getEntries()
{
    static const QList<CLanguageEntry> ENTRIES{
#include "languagetable.inc"
    };
    return ENTRIES;
}

bool CLanguage::isKnown(const QString &code)
{
    return !code.isEmpty() && getEntry(code).code == code;
}

QString CLanguage::getCodeList()
{
    QStringList codes;
    for (const CLanguageEntry &entry : getEntries())
        codes.append(entry.code);
    return codes.join(QStringLiteral(", "));
}

CLanguageEntry CLanguage::getEntry(const QString &code)
{
    for (const CLanguageEntry &entry : getEntries()) {
        if (entry.code == code)
            return entry;
    }
    return {};
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
    return QSettings().value(LANGUAGE_KEY).toString();
}

void CLanguage::remember(const QString &code)
{
    QSettings().setValue(LANGUAGE_KEY, code);
}

CLanguage::CLanguage(const QString &code)
{
    const QString qtFolder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    const QList<QPair<QString, QString>> catalogues
        = {{QStringLiteral("qtbase_%1").arg(getEntry(code).qtCode), qtFolder},
           {QStringLiteral("viewer_%1").arg(code), QStringLiteral(":/viewer/translations")}};
    for (const auto &[name, folder] : catalogues) {
        auto translator = std::make_unique<QTranslator>();
        if (translator->load(name, folder) && QCoreApplication::installTranslator(translator.get()))
            m_translators.push_back(std::move(translator));
    }
}

CLanguage::~CLanguage() = default;

} // namespace Viewer::Text
