#include "updateselectiondialog.h"

#include "model/firmwareupdatetreemodel.h"
#include "readablepalette.h"
#include "ui_updateselectiondialog.h"
#include "view/accessible/accessibletreeview.h"

#include "core/richtext.h"

#include <QDesktopServices>
#include <QDir>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextDocument>
#include <QUrl>

namespace Plugin::FirmwareUpdater::Internal::View {

/// Of text with markup what is harmless stays; of any other the lines and signs are kept.
static QString toRichText(const QString &text)
{
    if (Qt::mightBeRichText(text))
        return Core::Text::toSafeRichText(text);
    return text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

/// An address that no browser opens, like that of a file: shown, but never followed.
static bool isForeignAddress(const QString &text)
{
    static const QRegularExpression scheme(
        QStringLiteral("^\\s*[A-Za-z][A-Za-z0-9+.-]*:\\S+\\s*$"));
    return scheme.match(text).hasMatch() && !Core::Text::isWebLink(text.trimmed());
}

/// Makes large texts small enough for @p widget, whose size is fixed: they would be cut off.
static void fitFont(QWidget *widget, const QString &text)
{
    const QSize space = widget->maximumSize() - QSize(8, 2);
    const auto isTooLarge = [&](const QFont &font) {
        const QFontMetrics metrics(font);
        return metrics.height() > space.height() || metrics.horizontalAdvance(text) > space.width();
    };
    QFont font = widget->font();
    for (int size = QFontInfo(font).pixelSize(); size > 8 && isTooLarge(font); --size)
        font.setPixelSize(size - 1);
    widget->setFont(font);
}

CUpdateSelectionDialog::CUpdateSelectionDialog(QWidget *parent)
    : CUpdateDialogBase(parent)
    , m_ui(std::make_unique<Ui::UpdateSelectionDialogUi>())
{
    CAccessibleTreeView::installFactory();
    m_ui->setupUi(this);
    // On a wide page the button stays beside the field.
    m_ui->contentVerticalLayout->setAlignment(m_ui->fileSelectionHorizontalLayout, Qt::AlignLeft);
    setIcon(m_ui->errorIconLabel, EIcon::Error);
    setIcon(m_ui->infoIconLabel, EIcon::Info);
    initializeFrame(m_ui->stepTitleLabel, m_ui->contentVerticalLayout, m_ui->buttonBox);
    // The background that a style sheet does not name comes from the application's palette. The
    // field's menu keeps the looks of the application.
    m_ui->updateFileLineEdit->setStyleSheet(
        QStringLiteral("QLineEdit { %1 background-color: white; }")
            .arg(m_ui->updateFileLineEdit->styleSheet()));
    m_ui->updateFileLineEdit->setText(QDir::toNativeSeparators(QDir::homePath()));
    m_nextButton = addBackAndNextButtons(tr("Back"), tr("Next"));

    fitFont(m_ui->updateFileLineEdit, {});
    fitFont(m_ui->browseButton, m_ui->browseButton->text());

    connect(m_ui->browseButton, &QPushButton::clicked, this,
            &CUpdateSelectionDialog::browseClicked);
    connect(m_ui->updateFileLineEdit, &QLineEdit::textEdited, this,
            &CUpdateSelectionDialog::pathChanged);
    // Only of links that the label does not open by itself.
    connect(m_ui->updateNotesTextLabel, &QLabel::linkActivated, this,
            &CUpdateSelectionDialog::openNotes);
    // The keyboard goes to the details only when they can be scrolled.
    m_ui->scrollArea->setFocusPolicy(Qt::NoFocus);
    connect(m_ui->scrollArea->verticalScrollBar(), &QScrollBar::rangeChanged, this,
            [this](int minimum, int maximum) {
                m_ui->scrollArea->setFocusPolicy(maximum > minimum ? Qt::StrongFocus : Qt::NoFocus);
            });
}

CUpdateSelectionDialog::~CUpdateSelectionDialog() = default;

void CUpdateSelectionDialog::setKorvaneSupportUrl(const QString &url)
{
    showTextWithLinks(
        m_ui->infoTextLabel,
        tr("To update the firmware of your cameras, you need a firmware update file from "
           "<a href=\"%1\">Korvane Support</a>.")
            .arg(url.toHtmlEscaped()));
}

void CUpdateSelectionDialog::updateFileSelection(const QString &path)
{
    if (m_ui->updateFileLineEdit->text() != path)
        m_ui->updateFileLineEdit->setText(path);
}

void CUpdateSelectionDialog::updateCompatibility(bool compatible, bool noFile)
{
    const bool isError = !compatible && !noFile;
    m_ui->errorIconLabel->setVisible(isError);
    m_ui->errorTextLabel->setVisible(isError);
    if (m_nextButton)
        m_nextButton->setEnabled(compatible && !noFile);
}

void CUpdateSelectionDialog::updateFirmwareUpdateInfo(
    QVector<QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>> infos, bool noFile)
{
    if (infos.isEmpty()) {
        m_ui->updateDescriptionTextLabel->setText(noFile ? tr("No file selected")
                                                         : tr("No details available"));
        showVersion({});
        showReleaseNotes({});
        return;
    }
    // Description and version come from a file, so the form shows them as plain text: markup in
    // them stays visible.
    const auto &info = infos.first();
    const QString description = info->getDescription();
    m_ui->updateDescriptionTextLabel->setText(description.isEmpty() ? tr("No details available")
                                                                    : description);
    showVersion(info->getVersion());
    showReleaseNotes(info->getReleaseNotes());
}

void CUpdateSelectionDialog::setVisible(bool visible)
{
    // The file may have changed since the dialog was last shown.
    if (visible)
        emit pathChanged(m_ui->updateFileLineEdit->text());
    CUpdateDialogBase::setVisible(visible);
    // Qt tells the first control of a page that Tab has led to it, and a field then selects its
    // text. Here a folder waits for the name of a file behind it.
    m_ui->updateFileLineEdit->deselect();
}

void CUpdateSelectionDialog::dialogButtonClicked(QAbstractButton *pButton)
{
    switch (getButton(pButton)) {
    case EButton::Back:
        emit backClicked();
        break;
    case EButton::Next:
        emit nextClicked();
        break;
    case EButton::Close:
        emit closeClicked();
        break;
    default:
        break;
    }
}

void CUpdateSelectionDialog::showVersion(const QString &version)
{
    m_ui->updateVersionTextLabel->setText(version);
    m_ui->updateVersionLabel->setVisible(!version.isEmpty());
    m_ui->updateVersionTextLabel->setVisible(!version.isEmpty());
}

void CUpdateSelectionDialog::showReleaseNotes(const QString &notes)
{
    m_notes = notes;
    CLinkLabel *const label = m_ui->updateNotesTextLabel;
    // Notes that mention an address anywhere are taken for one as a whole; quotes and ampersands
    // are escaped, so that the link leads to exactly this text.
    const bool isLink
        = notes.contains(QLatin1String("http"), Qt::CaseInsensitive) && !isForeignAddress(notes);
    const bool isAddress = Core::Text::isWebLink(notes);
    // What is no address must not go to the desktop, which would take it for the name of a file.
    label->setOpenExternalLinks(!isLink || isAddress);
    label->setTarget(isLink ? notes : QString());
    showTextWithLinks(label,
                      isLink ? QStringLiteral("<a href=\"%1\">%2</a>")
                                   .arg(notes.toHtmlEscaped(), tr("Firmware Release Notes"))
                             : toRichText(notes));
    m_ui->updateNotesLabel->setVisible(!notes.isEmpty());
    label->setVisible(!notes.isEmpty());
}

void CUpdateSelectionDialog::openNotes()
{
    static const QRegularExpression address(QStringLiteral("https?://[^\\s\"'<>()]+"),
                                            QRegularExpression::CaseInsensitiveOption);
    const QString target = address.match(m_notes).captured();
    if (Core::Text::isWebLink(target))
        QDesktopServices::openUrl(QUrl(target));
}

} // namespace Plugin::FirmwareUpdater::Internal::View
