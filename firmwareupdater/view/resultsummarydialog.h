#pragma once

#include "updatedialogbase.h"

#include <memory>

namespace Ui {
class ResultSummaryDialogUi;
}

namespace Plugin::FirmwareUpdater::Internal::View {

/// The dialog of step 5: each camera's result, the counts, and where to read more.
class CResultSummaryDialog : public CUpdateDialogBase
{
    Q_OBJECT

public:
    explicit CResultSummaryDialog(QWidget *parent = nullptr);
    ~CResultSummaryDialog() override;

    /// Shows @p model. Only the first call connects the tree with it; a later one expands again.
    void setModel(QSharedPointer<Model::CFirmwareUpdateTreeModel> model) override;

    /// Shows the counts of the model, and the texts for a success or for a failure.
    void updateView();

    void setInfoTextData(const QString &supportUrl, const QString &logFilePath);

    /// Shows why an update failed. @p lastCamera: no camera was left to be skipped.
    void setErrorTextData(const QString &message, bool lastCamera);

signals:
    void nextClicked();

protected slots:
    void dialogButtonClicked(QAbstractButton *pButton) override;

private:
    void showTexts(bool isFailure);

    const std::unique_ptr<Ui::ResultSummaryDialogUi> m_ui;

    /// The reason of the last failure that setErrorTextData() was told.
    QString m_lastErrorMessage;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
