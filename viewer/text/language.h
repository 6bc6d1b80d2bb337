#pragma once

#include <QList>
#include <QString>
#include <QTranslator>

#include <memory>
#include <vector>

namespace Viewer::Text {

/// One language that the programs can speak.
struct CLanguageEntry
{
    QString code; ///< two letters
    QString nativeName; ///< as its speakers write it
    QString qtCode; ///< that of Qt's own catalogues, which name some by territory
    QString fontFamily; ///< to ask for where no desktop names a font; empty: any
};

/// The language of the programs: which there are, which is chosen, and its catalogues.
class CLanguage
{
public:
    /// The languages in the order of the menu.
    [[nodiscard]] static QList<CLanguageEntry> getEntries();
    [[nodiscard]] static bool isKnown(const QString &code);

    /// The codes of getEntries(), for a sentence.
    [[nodiscard]] static QString getCodeList();

    /// An unknown code has an empty entry.
    [[nodiscard]] static CLanguageEntry getEntry(const QString &code);

    /// The language of this start: @p override if it is known, else the remembered one, else
    /// getSystem().
    [[nodiscard]] static QString choose(const QString &override);

    /// The language of the desktop or the shell; English where it is none of ours.
    [[nodiscard]] static QString getSystem();

    /// The remembered language; empty as long as the user has not chosen one.
    [[nodiscard]] static QString getRemembered();

    /// Takes effect at the next start.
    static void remember(const QString &code);

    /// Installs the viewer's and Qt's own texts in the language @p code until destruction. Needs
    /// the application object.
    explicit CLanguage(const QString &code);
    ~CLanguage();

private:
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

} // namespace Viewer::Text
