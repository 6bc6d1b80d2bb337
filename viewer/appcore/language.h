#pragma once

#include <QList>
#include <QString>
#include <QTranslator>

#include <memory>
#include <vector>

namespace Viewer::AppCore {

/// One language that the viewer can speak.
struct CLanguageEntry
{
    QString code; ///< two letters
    QString nativeName; ///< as its speakers write it
};

/// The viewer's language: which there are, which is chosen, and its catalogues.
class CLanguage
{
public:
    /// The languages in the order of the menu.
    [[nodiscard]] static QList<CLanguageEntry> getEntries();
    [[nodiscard]] static bool isKnown(const QString &code);

    /// The language of this start: @p override if it is not empty, else the remembered one, else
    /// the desktop's, else English.
    [[nodiscard]] static QString choose(const QString &override);

    /// The remembered language; empty as long as the user has not chosen one.
    [[nodiscard]] static QString getRemembered();

    /// Takes effect at the next start.
    static void remember(const QString &code);

    /// Where the desktop does not say which font its programs use, gives the application one that
    /// suits the wizard's pages and the language @p code.
    static void chooseFont(const QString &code);

    /// Installs the viewer's and Qt's own texts in the language @p code until destruction. Needs
    /// the application object.
    explicit CLanguage(const QString &code);
    ~CLanguage();

private:
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

} // namespace Viewer::AppCore
