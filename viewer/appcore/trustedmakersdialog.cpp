#include "trustedmakersdialog.h"

#include "modaldialogwatcher.h"

#include "viewer/files/replacefile.h"
#include "viewer/files/statefolder.h"
#include "viewer/signature/signaturelimits.h"
#include "viewer/signature/truststore.h"

#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QTreeWidget>

namespace Viewer::AppCore {

using Signature::CCertificate;

static constexpr int PATH_ROLE = Qt::UserRole + 1;

CTrustedMakersDialog::CTrustedMakersDialog(const QStringList &trustFolders,
                                           const QString &ownFolder, QWidget *parent)
    : CListDialog(tr("Trusted makers"), {tr("Maker"), tr("Valid until"), tr("Trusted by")}, parent)
    , m_trustFolders(trustFolders)
    , m_ownFolder(ownFolder)
    , m_addButton(addButton(tr("&Add..."), "addButton"))
    , m_removeButton(addButton(tr("&Remove..."), "removeButton"))
{
    setObjectName(QStringLiteral("trustedMakersDialog"));
    resize(660, 460);
    getTree()->setObjectName(QStringLiteral("makerTree"));
    getTree()->header()->setStretchLastSection(false);
    getTree()->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_addButton->setEnabled(!m_ownFolder.isEmpty());
    connect(m_addButton, &QPushButton::clicked, this, &CTrustedMakersDialog::chooseFile);
    connect(m_removeButton, &QPushButton::clicked, this, &CTrustedMakersDialog::askToRemove);
    connect(getTree(), &QTreeWidget::currentItemChanged, this,
            &CTrustedMakersDialog::onCurrentChanged);
    refresh();
}

CTrustedMakersDialog::~CTrustedMakersDialog() = default;

void CTrustedMakersDialog::refresh()
{
    getTree()->clear();
    const Signature::CTrustStore store(m_trustFolders);
    for (const Signature::CTrustStore::CMaker &maker : store.getMakers())
        addEntry(maker.filePath, maker.certificate);
    QStringList faults;
    for (const Text::CErrorText &fault : store.getFaults())
        faults.append(fault.getLocalized());
    setHint(faults.join(QLatin1Char('\n')));
    if (store.getMakers().isEmpty())
        setDetails(tr("Nobody is trusted yet. Add the certificates of the makers whose update "
                      "files you use."));
    onCurrentChanged();
}

static QString describe(const CCertificate &certificate)
{
    const QLocale locale;
    const auto toText = [&locale](const QDateTime &time) {
        return locale.toString(time.toLocalTime(), QLocale::ShortFormat);
    };
    return CTrustedMakersDialog::tr("Maker: %1\n"
                                    "Issued by: %2\n"
                                    "Valid: %3 to %4\n"
                                    "SHA-256 fingerprint:\n%5")
        .arg(certificate.getSubject(), certificate.getIssuer(), toText(certificate.getValidFrom()),
             toText(certificate.getValidTo()), certificate.getFingerprint());
}

void CTrustedMakersDialog::addEntry(const QString &filePath, const CCertificate &certificate)
{
    const bool isOwn = QFileInfo(filePath).path() == m_ownFolder;
    const QString end
        = QLocale().toString(certificate.getValidTo().toLocalTime().date(), QLocale::ShortFormat);
    QTreeWidgetItem *const item
        = addRow({certificate.getSubject(), end, isOwn ? tr("You") : tr("This computer")},
                 describe(certificate) + QLatin1Char('\n') + QDir::toNativeSeparators(filePath));
    item->setData(0, PATH_ROLE, filePath);
    if (certificate.getValidTo() < QDateTime::currentDateTimeUtc())
        item->setIcon(0, style()->standardIcon(QStyle::SP_MessageBoxWarning));
    // addRow() has told of the current row before it had its path.
    onCurrentChanged();
}

QString CTrustedMakersDialog::getCurrentPath() const
{
    const QTreeWidgetItem *const item = getTree()->currentItem();
    return item ? item->data(0, PATH_ROLE).toString() : QString();
}

void CTrustedMakersDialog::onCurrentChanged()
{
    const QString path = getCurrentPath();
    m_removeButton->setEnabled(!path.isEmpty() && QFileInfo(path).path() == m_ownFolder);
}

void CTrustedMakersDialog::chooseFile()
{
    auto *const dialog
        = new QFileDialog(this, tr("Add a trusted maker"),
                          QStandardPaths::writableLocation(QStandardPaths::DownloadLocation));
    dialog->setObjectName(QStringLiteral("certificateDialog"));
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters({tr("Certificates in PEM") + QStringLiteral(" (*.pem *.crt *.cer)"),
                            tr("All files") + QStringLiteral(" (*)")});
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    CModalDialogWatcher::markAsOwn(dialog);
    connect(dialog, &QFileDialog::fileSelected, this, &CTrustedMakersDialog::askToAdd);
    dialog->open();
}

void CTrustedMakersDialog::askToAdd(const QString &filePath)
{
    QFile file(filePath);
    QVector<CCertificate> certificates;
    if (QFileInfo(filePath).isFile() && file.open(QIODevice::ReadOnly))
        certificates = CCertificate::fromPem(file.read(Signature::Limits::FILE_SIZE));
    if (certificates.size() != 1) {
        setHint(tr("The file \"%1\" cannot be read, or has not exactly one certificate in PEM.")
                    .arg(QDir::toNativeSeparators(filePath)));
        return;
    }
    const CCertificate certificate = certificates.constFirst();
    ask(tr("Trust the update files of this maker? Compare the fingerprint with the one that the "
           "maker has told you in another way."),
        describe(certificate), [this, certificate] { add(certificate); });
}

void CTrustedMakersDialog::add(const CCertificate &certificate)
{
    const QString name = certificate.getFingerprint().remove(QLatin1Char(':')).toLower();
    const QString path = QStringLiteral("%1/%2.pem").arg(m_ownFolder, name);
    const int error = Files::makePrivateFolder(m_ownFolder);
    const Text::CErrorText fault = error != 0 ? Text::CErrorText(qt_error_string(error))
                                              : Files::replaceFile(path, certificate.toPem());
    refresh();
    if (!fault.isEmpty())
        setHint(tr("The file \"%1\" cannot be written: %2.")
                    .arg(QDir::toNativeSeparators(path), fault.toClause().getLocalized()));
}

void CTrustedMakersDialog::askToRemove()
{
    const QString path = getCurrentPath();
    ask(tr("Trust this maker no longer? The file \"%1\" is removed.")
            .arg(QDir::toNativeSeparators(path)),
        getTree()->currentItem()->text(0), [this, path] { remove(path); });
}

void CTrustedMakersDialog::remove(const QString &filePath)
{
    QFile file(filePath);
    const bool isRemoved = file.remove();
    refresh();
    if (!isRemoved)
        setHint(tr("The file \"%1\" cannot be removed: %2.")
                    .arg(QDir::toNativeSeparators(filePath), file.errorString()));
}

void CTrustedMakersDialog::ask(const QString &question, const QString &details,
                               const std::function<void()> &act)
{
    auto *const box = new QMessageBox(QMessageBox::Question, windowTitle(), question,
                                      QMessageBox::Yes | QMessageBox::No, this);
    box->setObjectName(QStringLiteral("trustQuestion"));
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(details);
    box->setDefaultButton(QMessageBox::No);
    box->setAttribute(Qt::WA_DeleteOnClose);
    CModalDialogWatcher::markAsOwn(box);
    connect(box, &QMessageBox::finished, this, [act](int answer) {
        if (answer == QMessageBox::Yes)
            act();
    });
    box->open();
}

} // namespace Viewer::AppCore
