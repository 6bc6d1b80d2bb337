#include "textdialog.h"

#include "viewer/files/fileend.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QDir>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace Viewer::AppCore {

CTextDialog::CTextDialog(const QString &title, const QString &text, QWidget *parent)
    : QDialog(parent)
    , m_hintLabel(new QLabel(this))
    , m_textEdit(new QPlainTextEdit(text, this))
{
    setObjectName(QStringLiteral("textDialog"));
    setWindowTitle(title);
    resize(720, 420);

    m_hintLabel->setWordWrap(true);
    m_hintLabel->hide();
    m_textEdit->setObjectName(QStringLiteral("textEdit"));
    m_textEdit->setAccessibleName(title);
    m_textEdit->setReadOnly(true);
    m_textEdit->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_textEdit->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_textEdit->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));

    auto *const buttonBox = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton *const copyButton
        = buttonBox->addButton(tr("&Copy all"), QDialogButtonBox::ActionRole);
    copyButton->setObjectName(QStringLiteral("copyButton"));
    connect(copyButton, &QPushButton::clicked, this, &CTextDialog::copyAll);
    connect(buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_hintLabel);
    layout->addWidget(m_textEdit);
    layout->addWidget(buttonBox);
}

CTextDialog::~CTextDialog() = default;

void CTextDialog::showFile(const QString &path, QWidget *parent)
{
    const Files::CFileEnd end = Files::CFileEnd::read(path, MAXIMUM_FILE_SIZE);
    auto *const dialog
        = new CTextDialog(QDir::toNativeSeparators(path),
                          end.error.isEmpty() ? QString::fromUtf8(end.text) : end.error, parent);
    if (end.isPartial)
        dialog->setHint(tr("The file is too large to be shown in full: this is its end."));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
}

void CTextDialog::setHint(const QString &hint)
{
    m_hintLabel->setText(hint);
    m_hintLabel->setVisible(!hint.isEmpty());
}

QString CTextDialog::getText() const
{
    return m_textEdit->toPlainText();
}

void CTextDialog::copyAll()
{
    QGuiApplication::clipboard()->setText(m_textEdit->toPlainText());
}

} // namespace Viewer::AppCore
