#include "resultsummarydialog.h"

#include "model/firmwareupdatetreemodel.h"
#include "readablepalette.h"
#include "ui_resultsummarydialog.h"
#include "view/delegate/treeviewlabeldelegate.h"
#include "view/delegate/treeviewresultdelegate.h"

#include <QRegularExpression>

namespace Plugin::FirmwareUpdater::Internal::View {

using Entity::CFirmwareUpdateEntity;

/// Lets words be broken that are longer than any in a language, as they would be cut off.
static QString makeBreakable(QString text)
{
    static const QRegularExpression longWord(QStringLiteral("(\\S{40})(?=\\S)"));
    return text.replace(longWord, QStringLiteral("\\1\u200b"));
}

CResultSummaryDialog::CResultSummaryDialog(QWidget *parent)
    : CUpdateDialogBase(parent)
    , m_ui(std::make_unique<Ui::ResultSummaryDialogUi>())
{
    m_ui->setupUi(this);
    setIcon(m_ui->infoIconLabel_1, EIcon::Info);
    setIcon(m_ui->infoIconLabel_2, EIcon::Info);
    setIcon(m_ui->infoIconLabel_3, EIcon::Info);
    setIcon(m_ui->errorIconLabel, EIcon::Error);
    initializeFrame(m_ui->stepTitleLabel, m_ui->contentVerticalLayout, m_ui->buttonBox);
    addNextButton(tr("Next"));
    initializeCameraTree(m_ui->cameraTreeView);
}

CResultSummaryDialog::~CResultSummaryDialog() = default;

void CResultSummaryDialog::setModel(QSharedPointer<Model::CFirmwareUpdateTreeModel> model)
{
    auto *treeView = m_ui->cameraTreeView;
    if (!treeView->model()) {
        showColumns(model.data(),
                    {
                        {CFirmwareUpdateEntity::DisplayName, 185},
                        {CFirmwareUpdateEntity::CurrentFirmware, 152},
                        {CFirmwareUpdateEntity::UpdateResult, 173},
                    });
        auto *labelDelegate = new CTreeViewLabelDelegate(treeView);
        treeView->setItemDelegateForColumn(CFirmwareUpdateEntity::DisplayName, labelDelegate);
        treeView->setItemDelegateForColumn(CFirmwareUpdateEntity::CurrentFirmware, labelDelegate);
        treeView->setItemDelegateForColumn(CFirmwareUpdateEntity::UpdateResult,
                                           new CTreeViewResultDelegate(treeView));
    }
    treeView->expandAll();
    CUpdateDialogBase::setModel(std::move(model));
}

void CResultSummaryDialog::updateView()
{
    const QSharedPointer<Model::CFirmwareUpdateTreeModel> model = getModel();
    if (!model)
        return;
    int failed = 0;
    int successful = 0;
    int skipped = 0;
    // The model counts the failed cameras but names none, so this stays null and the text comes
    // from setErrorTextData().
    const QPointer<CFirmwareUpdateEntity> failedCamera;
    model->getModelStatistics(failed, successful, skipped);

    showTexts(failed > 0);
    m_ui->failedUpdatesLabel->setText(tr("Failed updates:") + QStringLiteral(" %1").arg(failed));
    m_ui->successfulUpdatesLabel->setText(tr("Successful updates:")
                                          + QStringLiteral(" %1").arg(successful));
    m_ui->skippedUpdatesLabel->setText(tr("Skipped updates:") + QStringLiteral(" %1").arg(skipped));

    if (failed > 0 && failedCamera && failedCamera->getDeviceFirmwareUpdate()) {
        m_ui->errorTextLabel->setText(
            tr("An error has occurred during the update. The subsequent updates have been "
               "skipped.<br> Error message:")
            + QStringLiteral(" %1").arg(m_lastErrorMessage.toHtmlEscaped()));
    }
}

void CResultSummaryDialog::setInfoTextData(const QString &supportUrl, const QString &logFilePath)
{
    const QString logFile = logFilePath.toHtmlEscaped();
    showTextWithLinks(
        m_ui->infoTextLabel_3,
        tr("For more information, see the <a href=\"%1\">log file</a>. If you require assistance, "
           "contact the <a href=\"%2\">Korvane Support</a>.")
            .arg(logFile, supportUrl.toHtmlEscaped()));
    showTextWithLinks(m_ui->infoTextLabel_2,
                      tr("See <a href=\"%1\">log file</a> for more information.").arg(logFile));
}

void CResultSummaryDialog::setErrorTextData(const QString &message, bool lastCamera)
{
    m_lastErrorMessage = message;
    // The label shows rich text, in which the message must keep its angle brackets.
    const QString text = lastCamera
        ? tr("An error has occurred during the update.<br>Error message: %1.")
        : tr("An error has occurred during the update. The subsequent updates have been "
             "skipped.<br>Error message: %1.");
    m_ui->errorTextLabel->setText(text.arg(makeBreakable(message).toHtmlEscaped()));
}

void CResultSummaryDialog::dialogButtonClicked(QAbstractButton *pButton)
{
    switch (getButton(pButton)) {
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

void CResultSummaryDialog::showTexts(bool isFailure)
{
    const std::initializer_list<QWidget *> successWidgets{
        m_ui->infoIconLabel_1,
        m_ui->infoTextLabel_1,
        m_ui->infoIconLabel_2,
        m_ui->infoTextLabel_2,
    };
    const std::initializer_list<QWidget *> failureWidgets{
        m_ui->errorIconLabel,  m_ui->errorTextLabel,     m_ui->infoIconLabel_3,
        m_ui->infoTextLabel_3, m_ui->failedUpdatesLabel, m_ui->skippedUpdatesLabel,
    };
    for (QWidget *widget : successWidgets)
        widget->setVisible(!isFailure);
    for (QWidget *widget : failureWidgets)
        widget->setVisible(isFailure);
    m_ui->repeatHintSpacer->changeSize(0, isFailure ? 0 : 16, QSizePolicy::Minimum,
                                       QSizePolicy::Fixed);
    // A spacer does not tell its layout of a new size.
    m_ui->contentVerticalLayout->invalidate();
    // At once: the page is on its way to the screen and must not be seen with the old gaps.
    layout()->activate();
}

} // namespace Plugin::FirmwareUpdater::Internal::View
