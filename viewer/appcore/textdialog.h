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

    /// A sentence above the text; empty: none.
    void setHint(const QString &hint);

    [[nodiscard]] QString getText() const;

private:
    void copyAll();

    QLabel *const m_hintLabel;
    QPlainTextEdit *const m_textEdit;
};

} // namespace Viewer::AppCore
