#pragma once

#include <QString>

namespace Viewer::Text {

/// What went wrong, in two languages: English, as logs and the contract of update jobs have it, and
/// the user's, for showing it.
class CErrorText
{
public:
    CErrorText() = default;

    /// A text that is the same in both: a name, or what a library says.
    explicit CErrorText(const QString &text);

    /// A text that came from another process in both languages.
    [[nodiscard]] static CErrorText fromBoth(const QString &english, const QString &localized);

    /// @p source is English; its translation comes from the application's catalogues. Any thread.
    [[nodiscard]] static CErrorText tr(const char *source);

    /// Fills the placeholders of both texts, all at once like `QString::arg` with several texts.
    /// Each argument is a `QString` or a `CErrorText`.
    template <typename... Texts>
    [[nodiscard]] CErrorText arg(const Texts &...texts) const
    {
        return {m_english.arg(CErrorText(texts).m_english...),
                m_localized.arg(CErrorText(texts).m_localized...)};
    }

    /// The same on one line, without spaces around it and without final full stops.
    [[nodiscard]] CErrorText toClause() const;

    [[nodiscard]] bool isEmpty() const;
    [[nodiscard]] QString getEnglish() const;
    [[nodiscard]] QString getLocalized() const;

private:
    CErrorText(const QString &english, const QString &localized);

    QString m_english;
    QString m_localized;
};

} // namespace Viewer::Text
