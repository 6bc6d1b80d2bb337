#pragma once

#include <QByteArray>
#include <QHash>
#include <QTranslator>

#include <mutex>

namespace Viewer::Text {
class CErrorText;
}

namespace Viewer::Update {

/// Finds the user's language for errors that travel in English.
///
/// A job reports its error as one English text, complete with the camera's name and figures, so no
/// catalogue has it. Once this is installed in the application, who looks the text up, in whatever
/// context, gets what the job has remembered for it.
class CErrorTranslator : public QTranslator
{
    Q_OBJECT

public:
    explicit CErrorTranslator(QObject *parent = nullptr);
    ~CErrorTranslator() override;

    /// Any thread.
    void remember(const Text::CErrorText &text);

    [[nodiscard]] QString translate(const char *context, const char *sourceText,
                                    const char *disambiguation, int n) const override;
    [[nodiscard]] bool isEmpty() const override;

private:
    mutable std::mutex m_mutex;
    QHash<QByteArray, QString> m_texts; ///< by their English
};

} // namespace Viewer::Update
