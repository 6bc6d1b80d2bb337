#include "updatefileopener.h"

#include "mainwindow.h"
#include "modaldialogwatcher.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QFileDialog>
#include <QMenu>
#include <QMimeData>
#include <QUrl>

namespace Viewer::AppCore {

CUpdateFileOpener::CUpdateFileOpener(const CameraPool::CCameraPool &pool,
                                     const CModalDialogWatcher &dialogs,
                                     const PolicyGetter &getPolicy, CMainWindow &window)
    : m_pool(pool)
    , m_dialogs(dialogs)
    , m_getPolicy(getPolicy)
    , m_window(window)
    , m_recentMenu(new QMenu(tr("Recent &update files"), &window))
    , m_recentFiles(*m_recentMenu)
{
    m_recentMenu->setObjectName(QStringLiteral("recentFiles"));
    connect(&m_recentFiles, &CRecentFiles::chosen, this, &CUpdateFileOpener::open);
    m_window.setAcceptDrops(true);
    m_window.installEventFilter(this);
}

CUpdateFileOpener::~CUpdateFileOpener()
{
    // It would ask the pool and tell this object.
    delete m_dialog;
}

void CUpdateFileOpener::addActions(QMenu &menu)
{
    menu.addAction(tr("&Open update file..."), this, &CUpdateFileOpener::chooseFile,
                   QKeySequence::Open)
        ->setObjectName(QStringLiteral("openUpdateFile"));
    menu.addMenu(m_recentMenu);
}

void CUpdateFileOpener::setUpdateAction(QAction *action)
{
    m_updateAction = action;
}

bool CUpdateFileOpener::isBlocked() const
{
    const QWidget *const modal = QApplication::activeModalWidget();
    return m_dialogs.isDialogVisible() || (modal && modal != m_dialog);
}

void CUpdateFileOpener::open(const QString &path)
{
    if (isBlocked()) {
        m_window.showMessage(
            tr("A dialog is still open. Close it before you open an update file."));
        return;
    }
    if (!m_dialog) {
        m_dialog = new CUpdateFileDialog(m_pool, m_updateAction, &m_window);
        m_dialog->setAttribute(Qt::WA_DeleteOnClose);
        m_dialog->setAcceptDrops(true);
        m_dialog->installEventFilter(this);
        CModalDialogWatcher::markAsOwn(m_dialog);
        connect(m_dialog, &CUpdateFileDialog::fileRead, this, &CUpdateFileOpener::remember);
        // Once the dialog, in front of which nothing else can be opened, has gone.
        connect(
            m_dialog, &CUpdateFileDialog::updaterWanted, this,
            [this] {
                if (m_updateAction)
                    m_updateAction->trigger();
            },
            Qt::QueuedConnection);
    }
    m_dialog->showFile(path, m_getPolicy());
    m_dialog->open();
    m_dialog->activateWindow();
}

void CUpdateFileOpener::remember(const QString &path)
{
    m_recentFiles.add(path);
}

void CUpdateFileOpener::offerFolder() const
{
    const QString folder = m_recentFiles.getFolder();
    if (folder.isEmpty())
        return;
    // Qt keeps the folder for all dialogs of this kind and has no other way to set it.
    QFileDialog dialog;
    dialog.setDirectory(folder);
}

void CUpdateFileOpener::chooseFile()
{
    if (isBlocked())
        return;
    auto *const dialog
        = new QFileDialog(&m_window, tr("Open update file"), m_recentFiles.getFolder());
    dialog->setObjectName(QStringLiteral("openUpdateFileDialog"));
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters({tr("Update files") + QStringLiteral(" (*.guf)"),
                            tr("All files") + QStringLiteral(" (*)")});
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    CModalDialogWatcher::markAsOwn(dialog);
    // Once the dialog has gone.
    connect(dialog, &QFileDialog::fileSelected, this, &CUpdateFileOpener::open,
            Qt::QueuedConnection);
    dialog->open();
}

QString CUpdateFileOpener::findDragged(const QDropEvent &event) const
{
    const QList<QUrl> urls = event.mimeData()->urls();
    if (urls.isEmpty())
        return {};
    if (isBlocked()) {
        m_window.showMessage(
            tr("A dialog is still open. Close it before you open an update file."));
        return {};
    }
    if (urls.size() > 1) {
        m_window.showMessage(tr("Drop one update file, not several."));
        return {};
    }
    const QString path = urls.constFirst().toLocalFile();
    if (!path.endsWith(QLatin1String(".guf"), Qt::CaseInsensitive)) {
        m_window.showMessage(tr("Only update files (*.guf) of this computer can be dropped here."));
        return {};
    }
    return path;
}

bool CUpdateFileOpener::eventFilter(QObject *watched, QEvent *event)
{
    const bool isDrop = event->type() == QEvent::Drop;
    if (!isDrop && event->type() != QEvent::DragEnter)
        return QObject::eventFilter(watched, event);
    auto &drop = static_cast<QDropEvent &>(*event);
    const QString path = findDragged(drop);
    if (path.isEmpty()) {
        drop.ignore();
        return true;
    }
    // The file is read, and stays where it is.
    drop.setDropAction(Qt::CopyAction);
    drop.accept();
    // The program that it comes from waits for the end of this event.
    if (isDrop)
        QMetaObject::invokeMethod(
            this, [this, path] { open(path); }, Qt::QueuedConnection);
    return true;
}

} // namespace Viewer::AppCore
