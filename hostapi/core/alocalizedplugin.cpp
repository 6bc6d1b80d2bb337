#include "alocalizedplugin.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace Core::Plugin {

ALocalizedPlugin::ALocalizedPlugin(const QString &catalogueName, QObject *parent)
    : IPlugin(parent)
    , m_catalogueName(catalogueName)
{
}

ALocalizedPlugin::~ALocalizedPlugin()
{
    QCoreApplication::removeTranslator(&m_translator);
}

void ALocalizedPlugin::setLanguage(const QString &language)
{
    QCoreApplication::removeTranslator(&m_translator);

    const QString code
        = language.section(QRegularExpression(QStringLiteral("[_-]")), 0, 0).toLower();
    const QString pattern = QStringLiteral(":/translation/%1_%2.qm");
    if (m_translator.load(pattern.arg(m_catalogueName, code))
        || m_translator.load(pattern.arg(m_catalogueName, QStringLiteral("en"))))
        QCoreApplication::installTranslator(&m_translator);
}

} // namespace Core::Plugin
