#pragma once

#include <QAbstractTextDocumentLayout>
#include <QStringList>
#include <QTextDocument>
#include <QUrl>

namespace TestSupport {

/// Notes what Qt asks for while it reads and lays out a rich text, and gives nothing.
class CWatchedDocument : public QTextDocument
{
public:
    explicit CWatchedDocument(const QString &html)
    {
        setHtml(html);
        setTextWidth(400);
        static_cast<void>(documentLayout()->documentSize());
    }

    /// Whether nothing was asked for, and no picture stands in the text.
    [[nodiscard]] bool isWordsAlone() const
    {
        return m_requests.isEmpty() && !toPlainText().contains(QChar::ObjectReplacementCharacter);
    }

protected:
    QVariant loadResource(int type, const QUrl &name) override
    {
        Q_UNUSED(type)
        m_requests.append(name.toString());
        return {};
    }

private:
    QStringList m_requests;
};

} // namespace TestSupport
