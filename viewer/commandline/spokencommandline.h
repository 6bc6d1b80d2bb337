#pragma once

#include "optionreader.h"
#include "viewer/text/language.h"

#include <QCoreApplication>
#include <QString>

#include <memory>

namespace Viewer::CommandLine {

/// The application's command line, read in the language that it asks for. The language is known
/// only when the command line has been read, and what reading it says is to be in that language: it
/// is read once more where it asks for another one than the remembered or the desktop's.
///
/// @p Reader has `parse()`, for one time, and `getLanguage()`.
template <typename Reader>
class CSpokenCommandLine
{
public:
    /// Installs the language until destruction. Needs the application object.
    CSpokenCommandLine()
    {
        const QString usual = Text::CLanguage::choose({});
        read(usual);
        const QString asked = Text::CLanguage::choose(m_reader->getLanguage());
        if (asked != usual)
            read(asked);
    }

    [[nodiscard]] COptionReader::EResult getResult() const { return m_result; }
    [[nodiscard]] Reader &getReader() const { return *m_reader; }

    /// The code of the language.
    [[nodiscard]] const QString &getLanguage() const { return m_code; }

private:
    void read(const QString &code)
    {
        m_code = code;
        m_language.reset();
        m_language = std::make_unique<Text::CLanguage>(code);
        m_reader = std::make_unique<Reader>();
        m_result = m_reader->parse(QCoreApplication::arguments());
    }

    QString m_code;
    std::unique_ptr<Text::CLanguage> m_language;
    std::unique_ptr<Reader> m_reader;
    COptionReader::EResult m_result = COptionReader::EResult::Error;
};

} // namespace Viewer::CommandLine
