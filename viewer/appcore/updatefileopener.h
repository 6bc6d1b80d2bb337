#pragma once

#include "recentfiles.h"
#include "updatefiledialog.h"

#include <QObject>
#include <QPointer>

#include <functional>

class QDropEvent;
class QMenu;

namespace Viewer::AppCore {

class CMainWindow;
class CModalDialogWatcher;

/// All ways to have an update file shown: the File menu, a file that is dropped onto the window,
/// one that somebody else asks for.
class CUpdateFileOpener : public QObject
{
    Q_OBJECT

public:
    using PolicyGetter = std::function<Signature::CSignaturePolicy()>;

    /// The arguments are borrowed and outlive this object.
    CUpdateFileOpener(const CameraPool::CCameraPool &pool, const CModalDialogWatcher &dialogs,
                      const PolicyGetter &getPolicy, CMainWindow &window);
    ~CUpdateFileOpener() override;

    void addActions(QMenu &menu);

    /// The menu entry that opens the wizard. Borrowed, may die first.
    void setUpdateAction(QAction *action);

    /// Shows the file at the absolute path @p path, unless a dialog is in the way.
    void open(const QString &path);

    /// Somebody has read the faultless file @p path.
    void remember(const QString &path);

    /// Where dialogs for files begin that name no folder themselves, as that of the wizard does:
    /// from now on in the folder of the last update file.
    void offerFolder() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void chooseFile();
    [[nodiscard]] bool isBlocked() const;
    /// The update file that is dragged; empty: none that could be opened, and the user knows why.
    [[nodiscard]] QString findDragged(const QDropEvent &event) const;

    const CameraPool::CCameraPool &m_pool;
    const CModalDialogWatcher &m_dialogs;
    const PolicyGetter m_getPolicy;
    CMainWindow &m_window;
    QMenu *const m_recentMenu;
    CRecentFiles m_recentFiles;
    QPointer<QAction> m_updateAction;
    QPointer<CUpdateFileDialog> m_dialog;
};

} // namespace Viewer::AppCore
