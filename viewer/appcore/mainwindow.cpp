#include "mainwindow.h"

#include "actioncontainer.h"
#include "menuservice.h"

#include "viewer/text/language.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QDockWidget>
#include <QLabel>
#include <QMenuBar>
#include <QSettings>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

namespace Viewer::AppCore {

using Text::CLanguage;
using Text::CLanguageEntry;

static const QLatin1String GEOMETRY_KEY("mainWindow/geometry");
static const QLatin1String STATE_KEY("mainWindow/state");
static constexpr int MESSAGE_TIME = 8000; // milliseconds

CMainWindow::CMainWindow(CMenuService &menus, QWidget *parent)
    : QMainWindow(parent)
{
    setObjectName(QStringLiteral("mainWindow"));
    setWindowTitle(tr("Nuvex Viewer"));
    setWindowIcon(QIcon(QStringLiteral(":/viewer/icons/viewer.png")));
    resize(1200, 660);

    m_toolBar = addToolBar(tr("Acquisition"));
    m_toolBar->setObjectName(QStringLiteral("acquisitionToolBar"));
    m_toolBar->setMovable(false);
    m_toolBar->setIconSize({24, 24});
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    createMenus(menus);
    m_statusLabel = new QLabel(this);
    m_statusLabel->setObjectName(QStringLiteral("statusLabel"));
    statusBar()->addPermanentWidget(m_statusLabel);
}

CMainWindow::~CMainWindow() = default;

void CMainWindow::createMenus(CMenuService &menus)
{
    m_fileMenu = menuBar()->addMenu(tr("&File"));
    m_viewMenu = menuBar()->addMenu(tr("&View"));
    m_toolsMenu = menuBar()->addMenu(tr("&Tools"));
    m_helpMenu = menuBar()->addMenu(tr("&Help"));
    m_selectorMenu = new QMenu(this);
    m_toolsMenu->setObjectName(QStringLiteral("toolsMenu"));
    m_selectorMenu->setObjectName(QStringLiteral("selectorMenu"));
    menus.addMenu(Ids::TOOLS_MENU, m_toolsMenu, {Ids::TOOLS_GROUP});
    menus.addMenu(Ids::CAMERA_SELECTOR_CONTEXT_MENU, m_selectorMenu,
                  {Ids::SELECTOR_ACQUISITION_GROUP, Ids::SELECTOR_MISC_GROUP});
}

void CMainWindow::setViews(QWidget *cameraTree, QWidget *bar, QWidget *imageView)
{
    auto *const dock = new QDockWidget(tr("Cameras"), this);
    dock->setObjectName(QStringLiteral("cameraDock"));
    dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetClosable);
    dock->setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    dock->setWidget(cameraTree);
    addDockWidget(Qt::LeftDockWidgetArea, dock);
    resizeDocks({dock}, {560}, Qt::Horizontal);
    m_cameraDock = dock;
    auto *const middle = new QWidget(this);
    auto *const layout = new QVBoxLayout(middle);
    layout->setContentsMargins({});
    layout->addWidget(bar);
    layout->addWidget(imageView, 1);
    setCentralWidget(middle);

    m_viewMenu->addAction(dock->toggleViewAction());
    dock->toggleViewAction()->setText(tr("&Cameras"));
    m_viewMenu->addAction(m_toolBar->toggleViewAction());
    m_toolBar->toggleViewAction()->setText(tr("&Tool bar"));
    m_viewSeparator = m_viewMenu->addSeparator();
    createLanguageMenu(m_viewMenu->addMenu(tr("&Language")));
    cameraTree->setFocus();
}

void CMainWindow::showCameras()
{
    m_cameraDock->show();
}

void CMainWindow::addViewAction(QAction *action)
{
    m_viewMenu->insertAction(m_viewSeparator, action);
}

void CMainWindow::addSettings(QWidget *settings)
{
    auto *const dock = new QDockWidget(tr("Camera settings"), this);
    dock->setObjectName(QStringLiteral("settingsDock"));
    dock->setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    dock->setWidget(settings);
    addDockWidget(Qt::RightDockWidgetArea, dock);
    dock->hide();
    dock->toggleViewAction()->setText(tr("Camera &settings"));
    m_viewMenu->insertAction(m_viewSeparator, dock->toggleViewAction());
}

void CMainWindow::createLanguageMenu(QMenu *menu)
{
    auto *const group = new QActionGroup(this);
    const QString current = CLanguage::choose({});
    const QList<CLanguageEntry> entries = CLanguage::getEntries();
    for (const CLanguageEntry &entry : entries) {
        QAction *const action = menu->addAction(entry.nativeName);
        action->setObjectName(QStringLiteral("language_%1").arg(entry.code));
        action->setCheckable(true);
        action->setChecked(entry.code == current);
        group->addAction(action);
        connect(action, &QAction::triggered, this,
                [this, code = entry.code] { onLanguageTriggered(code); });
    }
}

void CMainWindow::onLanguageTriggered(const QString &code)
{
    CLanguage::remember(code);
    showMessage(tr("The language changes the next time the viewer starts."));
}

void CMainWindow::setCloseGuard(const CloseGuard &guard)
{
    m_closeGuard = guard;
}

QString CMainWindow::refuseClose()
{
    const QString reason = m_closeGuard ? m_closeGuard() : QString();
    if (!reason.isEmpty())
        showMessage(reason);
    return reason;
}

void CMainWindow::restorePlace()
{
    const QSettings settings;
    restoreGeometry(settings.value(GEOMETRY_KEY).toByteArray());
    restoreState(settings.value(STATE_KEY).toByteArray());
}

void CMainWindow::showMessage(const QString &message)
{
    statusBar()->showMessage(message, MESSAGE_TIME);
}

void CMainWindow::showLastingMessage(const QString &message)
{
    m_lastingMessage = message;
    statusBar()->showMessage(message);
}

void CMainWindow::clearLastingMessage()
{
    if (statusBar()->currentMessage() == m_lastingMessage)
        statusBar()->clearMessage();
}

void CMainWindow::setStatus(const QString &text)
{
    m_statusLabel->setText(text);
}

void CMainWindow::closeEvent(QCloseEvent *event)
{
    if (!refuseClose().isEmpty()) {
        event->ignore();
        return;
    }
    QSettings settings;
    settings.setValue(GEOMETRY_KEY, saveGeometry());
    settings.setValue(STATE_KEY, saveState());
    event->accept();
    emit closed();
}

QMenu *CMainWindow::getFileMenu() const
{
    return m_fileMenu;
}

QMenu *CMainWindow::getViewMenu() const
{
    return m_viewMenu;
}

QMenu *CMainWindow::insertMenu(const QString &title)
{
    auto *const menu = new QMenu(title, this);
    menuBar()->insertMenu(m_toolsMenu->menuAction(), menu);
    return menu;
}

QMenu *CMainWindow::getHelpMenu() const
{
    return m_helpMenu;
}

QMenu *CMainWindow::getSelectorMenu() const
{
    return m_selectorMenu;
}

QToolBar *CMainWindow::getToolBar() const
{
    return m_toolBar;
}

} // namespace Viewer::AppCore
