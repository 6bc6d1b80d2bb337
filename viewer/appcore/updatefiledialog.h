#pragma once

#include "listframe.h"

#include "viewer/camerapool/cameraverdict.h"
#include "viewer/files/backgroundwork.h"
#include "viewer/signature/signaturepolicy.h"
#include "viewer/updatefile/updatemanifest.h"

#include <QPointer>
#include <QTimer>

class QAction;
class QProgressBar;
class QTextBrowser;
class QTreeWidget;
class QUrl;

namespace Viewer::CameraPool {
class CCameraPool;
}

namespace Viewer::AppCore {

/// Reads an update file, on a thread of its own, and shows what it holds, who has signed it, and
/// what would happen to which of the cameras.
class CUpdateFileDialog : public CListFrame
{
    Q_OBJECT

public:
    /// @p updateAction opens the wizard; null: there is none. Both are borrowed; the action may die
    /// first.
    CUpdateFileDialog(const CameraPool::CCameraPool &pool, QAction *updateAction,
                      QWidget *parent = nullptr);
    ~CUpdateFileDialog() override;

    /// Begins to read the file at the absolute path @p path, in the place of one that is shown or
    /// being read, and judges its signature by @p policy.
    void showFile(const QString &path, const Signature::CSignaturePolicy &policy);

signals:
    /// The file @p path has no fault; it may still be refused.
    void fileRead(const QString &path);

    /// The dialog is closed, for the wizard to be opened.
    void updaterWanted();

private:
    /// What became of reading; any thread.
    struct CContent
    {
        QVector<CameraPool::CCameraVerdict::InfoPtr> entries; ///< empty: faulty
        QString sentence; ///< about the fault, or the signature
        bool isUsable = false;
    };

    static CContent read(const QString &path, const Signature::CSignaturePolicy &policy,
                         const Files::CBackgroundWork::Checkpoint &checkpoint);
    void showContent(const QString &path, const CContent &content);
    void showCameras();
    void showEntry();
    void updateButtons();
    void openLink(const QUrl &link);
    void fit(bool isWhole);
    [[nodiscard]] const UpdateFile::CUpdateEntry &getEntry(int place) const;

    const CameraPool::CCameraPool &m_pool;
    const QPointer<QAction> m_updateAction;
    QTreeWidget *const m_tree;
    QTextBrowser *const m_entryBrowser;
    QProgressBar *const m_readingBar;
    QPushButton *const m_updaterButton;
    CContent m_content;
    QTimer m_camerasTimer; ///< many cameras may change together
    Files::CBackgroundWork m_reading;
};

} // namespace Viewer::AppCore
