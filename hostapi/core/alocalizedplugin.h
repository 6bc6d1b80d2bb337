#pragma once

#include "iplugin.h"

#include <QTranslator>

namespace Core::Plugin {

/// A plug-in that carries its translation catalogues as resources named
/// ":/translation/<name>_<language>.qm".
class HOSTAPI_EXPORT ALocalizedPlugin : public IPlugin
{
    Q_OBJECT

public:
    /// @p catalogueName is the `<name>` of the catalogues.
    explicit ALocalizedPlugin(const QString &catalogueName, QObject *parent = nullptr);

    /// Removes the catalogue from the application.
    ~ALocalizedPlugin() override;

    /// Loads the catalogue for @p language and installs it in the application, in place of the one
    /// installed before. Only the language counts, not the territory: "ko_KR" and "ko-KR" load the
    /// catalogue "ko". A language without a catalogue gets the English one.
    void setLanguage(const QString &language) override;

private:
    const QString m_catalogueName;
    QTranslator m_translator;
};

} // namespace Core::Plugin
