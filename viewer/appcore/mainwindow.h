#pragma once

#include <QMainWindow>

#include <functional>

class QDockWidget;
class QLabel;
class QMenu;
class QToolBar;

namespace Viewer::AppCore {

class CMenuService;

/// The viewer's window: menu bar, tool bar, camera tree in a dock, image in the middle, status bar.
/// It knows what is where; what the entries do is connected by others.
class CMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Says in one sentence why the window must stay open now; empty: it may close.
    using CloseGuard = std::function<QString()>;

    /// Publishes the menus that plug-ins use in @p menus, which is borrowed and used by nothing
    /// after the constructor.
    explicit CMainWindow(CMenuService &menus, QWidget *parent = nullptr);
    ~CMainWindow() override;

    /// Puts @p cameraTree into the dock and @p imageView into the middle, below @p bar; all become
    /// children.
    void setViews(QWidget *cameraTree, QWidget *bar, QWidget *imageView);

    /// Shows the dock with the tree, if the user has closed it.
    void showCameras();

    /// Adds @p action to the View menu, with those that show something.
    void addViewAction(QAction *action);

    /// Adds a dock around @p settings, which becomes a child; hidden until the user wants it. To be
    /// called behind setViews().
    void addSettings(QWidget *settings);

    void setCloseGuard(const CloseGuard &guard);

    /// The guard's sentence, also shown in the status bar; empty when the window may close.
    QString refuseClose();

    /// Restores place and size from the last run.
    void restorePlace();

    /// Shows @p message in the status bar for a while.
    void showMessage(const QString &message);

    /// The same until the next message, or clearLastingMessage().
    void showLastingMessage(const QString &message);
    void clearLastingMessage();

    /// Shows @p text at the right end of the status bar until the next call.
    void setStatus(const QString &text);

    [[nodiscard]] QMenu *getFileMenu() const;
    [[nodiscard]] QMenu *getViewMenu() const;
    /// A new menu in the middle of the menu bar.
    [[nodiscard]] QMenu *insertMenu(const QString &title);
    [[nodiscard]] QMenu *getHelpMenu() const;
    [[nodiscard]] QMenu *getSelectorMenu() const;
    [[nodiscard]] QToolBar *getToolBar() const;

signals:
    /// The window has been closed for good.
    void closed();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void createMenus(CMenuService &menus);
    void createLanguageMenu(QMenu *menu);
    void onLanguageTriggered(const QString &code);

    QMenu *m_fileMenu = nullptr;
    QMenu *m_viewMenu = nullptr;
    QMenu *m_toolsMenu = nullptr;
    QMenu *m_helpMenu = nullptr;
    QMenu *m_selectorMenu = nullptr;
    QToolBar *m_toolBar = nullptr;
    QAction *m_viewSeparator = nullptr; ///< behind what can be shown and hidden
    QDockWidget *m_cameraDock = nullptr;
    QLabel *m_statusLabel = nullptr;
    QString m_lastingMessage;
    CloseGuard m_closeGuard;
};

} // namespace Viewer::AppCore
