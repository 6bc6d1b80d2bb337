#pragma once

#include "camerapool/ifirmwareupdateinfo.h"
#include "updatedialogbase.h"

#include <memory>

namespace Ui {
class UpdateSelectionDialogUi;
}

namespace Plugin::FirmwareUpdater::Internal::View {

/// The dialog of step 2: the path of the update file, what the file holds, and whether it fits.
class CUpdateSelectionDialog : public CUpdateDialogBase
{
    Q_OBJECT

public:
    explicit CUpdateSelectionDialog(QWidget *parent = nullptr);
    ~CUpdateSelectionDialog() override;

    /// Makes the support contact in the information text a link to @p url.
    void setKorvaneSupportUrl(const QString &url);

    /// Shows @p path without announcing it. An equal text is left alone, so that the cursor stays
    /// where it is while the user types.
    void updateFileSelection(const QString &path);

    /// Shows the verdict on the file. @p noFile: there is no file to judge.
    void updateCompatibility(bool compatible, bool noFile);

    /// Shows the first of @p infos, or that there is none.
    void
    updateFirmwareUpdateInfo(QVector<QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>> infos,
                             bool noFile);

signals:
    void backClicked();
    void nextClicked();
    void browseClicked();

    /// The user has edited the path, or the dialog is about to be shown with it.
    void pathChanged(const QString &path);

public slots:
    void setVisible(bool visible) override;

protected slots:
    void dialogButtonClicked(QAbstractButton *pButton) override;

private:
    void showVersion(const QString &version);
    void showReleaseNotes(const QString &notes);

    /// Opens the first address that the notes mention.
    void openNotes();

    const std::unique_ptr<Ui::UpdateSelectionDialogUi> m_ui;
    QPointer<QPushButton> m_nextButton;
    QString m_notes; ///< of the update that is shown
};

} // namespace Plugin::FirmwareUpdater::Internal::View
