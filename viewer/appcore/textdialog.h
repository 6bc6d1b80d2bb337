#pragma once

#include <QDialog>

class QLabel;
class QPlainTextEdit;

namespace Viewer::AppCore {

/// Shows a text to read and to copy.
class CTextDialog : public QDialog
{
    Q_OBJECT

public:
    CTextDialog(const QString &title, const QString &text, QWidget *parent = nullptr);
    ~CTextDialog() override;

    /// Longest part of a file that is shown, in bytes; of a longer one the end.
    static constexpr qint64 MAXIMUM_FILE_SIZE = 4 * 1024 * 1024;

    /// Shows the file @p path, or why it cannot be read, beside the modal dialog @p parent: not
    /// modal itself, and a child of that one, so that it is not blocked by it.
    static void showFile(const QString &path, QWidget *parent);

    /// A sentence above the text; empty: none.
    void setHint(const QString &hint);

    [[nodiscard]] QString getText() const;

private:
    void copyAll();

    QLabel *const m_hintLabel;
    QPlainTextEdit *const m_textEdit;
};

} // namespace Viewer::AppCore
