#include "viewer.h"

#include "aboutbox.h"
#include "acquisitioncontroller.h"
#include "actioncontainer.h"
#include "imageactions.h"
#include "interruptionbar.h"
#include "linkopener.h"
#include "logfolder.h"
#include "loglistdialog.h"
#include "mainwindow.h"
#include "menuservice.h"
#include "modaldialogwatcher.h"
#include "pluginlistdialog.h"
#include "seriesnotifier.h"
#include "switchmenu.h"
#include "trustedmakersdialog.h"
#include "updatefileopener.h"
#include "updatehistorydialog.h"
#include "windowservice.h"

#include "camerapool/icameraenumerationservice.h"
#include "camerapool/idevicefirmwareupdateservice.h"
#include "viewer/camerapool/camerapool.h"
#include "viewer/camerapool/devicefirmwareupdateservice.h"
#include "viewer/cameraselector/cameraselectormodel.h"
#include "viewer/cameraselector/cameraselectorpanel.h"
#include "viewer/cameraselector/cameraselectorview.h"
#include "viewer/cameraselector/deviceselectorservice.h"
#include "viewer/camerasettings/camerasettingsview.h"
#include "viewer/image/frameconverter.h"
#include "viewer/image/pngencoder.h"
#include "viewer/imageview/imagegrid.h"
#include "viewer/pluginsystem/plugininitializer.h"
#include "viewer/pluginsystem/pluginmanager.h"
#include "viewer/process/installation.h"
#include "viewer/signature/truststore.h"
#include "viewer/updatefile/updatearchive.h"
#include "viewer/updatefile/updatefileerror.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QSessionManager>
#include <QSettings>
#include <QToolBar>
#include <QUrl>

#include <utility>

namespace Viewer::AppCore {

using Plugin::CameraPool::ICameraEnumerationService;
using Plugin::CameraPool::IDeviceFirmwareUpdateService;

static constexpr int NEXT_REASON_TIME = 1000; // milliseconds

/// The kinds with their switches as the user left them. A search by broadcast, for example, reaches
/// devices of others: it is asked for, now or once for all.
static Camera::CCameraKinds takeKinds(CCommandLineOptions &options)
{
    for (const std::unique_ptr<Camera::ICameraKind> &kind : options.kinds) {
        const QVector<Camera::CCameraSwitch> switches = kind->getSwitches();
        for (const Camera::CCameraSwitch &entry : switches) {
            if (entry.isRemembered && QSettings().value(entry.id).toBool())
                entry.set(true);
        }
    }
    return std::move(options.kinds);
}

CViewer::CViewer(CCommandLineOptions options, const QString &language, const CLogFolder *logs)
    : m_options(std::move(options))
    , m_language(language)
    , m_logs(logs)
    , m_dialogWatcher(std::make_unique<CModalDialogWatcher>())
    , m_linkOpener(std::make_unique<CLinkOpener>())
    , m_pool(
          std::make_unique<CameraPool::CCameraPool>(takeKinds(m_options), m_options.journalFolder))
    , m_seriesNotifier(std::make_unique<CSeriesNotifier>(*m_pool))
    , m_menuService(QSharedPointer<CMenuService>::create())
    , m_selectorService(QSharedPointer<CameraSelector::CDeviceSelectorService>::create())
    , m_window(std::make_unique<CMainWindow>(*m_menuService))
    , m_initializer(std::make_unique<PluginSystem::CPluginInitializer>())
    , m_pluginManager(std::make_unique<PluginSystem::CPluginManager>(m_initializer.get()))
{
    if (m_logs) {
        m_linkOpener->setEnvironment(m_logs->getOutsideEnvironment());
        m_linkOpener->setLogFolder(m_logs->getRoot());
        m_linkOpener->addFolder(m_logs->getRoot());
    }
    m_linkOpener->addFolder(m_options.samplesDirectory);
    m_linkOpener->setManual(m_options.manual);
    m_pool->setWorker(Process::getWorkerPath(), language);
    if (m_logs)
        m_pool->setLogFinder([this] { return m_logs->findOwnLog(); });
    createWindow();
    m_updateFiles = std::make_unique<CUpdateFileOpener>(
        *m_pool, *m_dialogWatcher, [this] { return m_signaturePolicy; }, *m_window);
    setSignaturePolicy();
    fillMenus();
    registerServices();
    addBuiltIns();
    // While a wizard is open nothing may begin to use the cameras that it works on.
    connect(m_dialogWatcher.get(), &CModalDialogWatcher::dialogVisibleChanged, m_pool.get(),
            &CameraPool::CCameraPool::setStartsLocked);
    connect(m_dialogWatcher.get(), &CModalDialogWatcher::dialogVisibleChanged, this,
            &CViewer::closeIfRequested, Qt::QueuedConnection);
    // Tells of every update, also of one that began and ended while the event loop was busy.
    connect(m_pool.get(), &CameraPool::CCameraPool::activityChanged, this,
            &CViewer::closeIfRequested, Qt::QueuedConnection);
    // Between two cameras of a series no update runs either; only what lasts is told.
    m_nextReasonTimer.setSingleShot(true);
    m_nextReasonTimer.setInterval(NEXT_REASON_TIME);
    connect(&m_nextReasonTimer, &QTimer::timeout, this, [this] {
        if (getReasonToStayOpen() != m_toldReason)
            requestClose();
    });
    connect(m_window.get(), &CMainWindow::closed, qApp, &QCoreApplication::quit,
            Qt::QueuedConnection);
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager &session) {
        if (!m_window->refuseClose().isEmpty())
            session.cancel();
    });
}

CViewer::~CViewer()
{
    m_pluginManager->shutDown();
}

void CViewer::setSignaturePolicy()
{
    m_signaturePolicy
        = Signature::CSignaturePolicy::read(m_options.policyFolder, m_options.configFolder);
    if (m_options.requiresSignature)
        m_signaturePolicy.requireSignatures();
    const auto service = m_pool->getService<CameraPool::CDeviceFirmwareUpdateService>();
    service->setSignaturePolicy(m_signaturePolicy);
    connect(service.data(), &CameraPool::CDeviceFirmwareUpdateService::signatureJudged, this,
            &CViewer::showSignature);
    // Asked for each camera of a series, it may be told as often; the last one is shown.
    m_refusalTimer.setSingleShot(true);
    m_refusalTimer.setInterval(0);
    connect(service.data(), &CameraPool::CDeviceFirmwareUpdateService::fileRefused, this,
            [this](const Text::CErrorText &sentence) {
                m_refusal = tr("%1.").arg(sentence.getLocalized());
                m_refusalTimer.start();
            });
    connect(&m_refusalTimer, &QTimer::timeout, this,
            [this] { m_window->showLastingMessage(m_refusal); });
    connect(m_dialogWatcher.get(), &CModalDialogWatcher::dialogVisibleChanged, m_window.get(),
            [this](bool visible) {
                if (visible)
                    m_updateFiles->offerFolder();
                else
                    m_window->clearLastingMessage();
            });
    // A demonstration is no use by the user.
    if (m_options.demoDirectory.isEmpty())
        connect(service.data(), &CameraPool::CDeviceFirmwareUpdateService::signatureJudged,
                m_updateFiles.get(), &CUpdateFileOpener::remember);
}

void CViewer::showSignature(const QString &filePath, const Signature::CSignatureVerdict &verdict)
{
    const Text::CErrorText refusal = m_signaturePolicy.findRefusal(verdict);
    const UpdateFile::CUpdateFileError sentence(QFileInfo(filePath).fileName(),
                                                refusal.isEmpty() ? verdict.describe() : refusal);
    m_refusalTimer.stop();
    m_window->showMessage(sentence.getText().getLocalized());
}

void CViewer::createWindow()
{
    auto *const images = new ImageView::CImageGrid;
    m_selectorView
        = new CameraSelector::CCameraSelectorView(getEnumerationService(), m_selectorService);
    m_selectorView->getModel()->setSnapshots(
        [this](const QString &cameraId) { return m_pool->getSnapshot(cameraId); });
    m_selectorView->setContextMenu(m_window->getSelectorMenu());
    m_interruptionBar
        = new CInterruptionBar(m_options.journalFolder, [this](const QString &cameraId) {
              return m_pool->getSnapshot(cameraId);
          });
    auto *const cameras = new CameraSelector::CCameraSelectorPanel(m_selectorView);
    m_window->setViews(cameras, m_interruptionBar, images);
    connect(m_pool.get(), &CameraPool::CCameraPool::updateRunningChanged, m_interruptionBar,
            &CInterruptionBar::refresh);
    m_filterAction = new QAction(tr("Fin&d cameras"), m_window.get());
    m_filterAction->setObjectName(QStringLiteral("filterCameras"));
    m_filterAction->setShortcut(QKeySequence::Find);
    connect(m_filterAction, &QAction::triggered, cameras, [this, cameras] {
        m_window->showCameras();
        cameras->beginFilter();
    });
    m_window->setCloseGuard([this] { return getReasonToStayOpen(); });

    m_acquisition = std::make_unique<CAcquisitionController>(*m_pool, *images, m_window.get());
    connect(m_acquisition.get(), &CAcquisitionController::message, m_window.get(),
            &CMainWindow::showMessage);
    m_imageActions = std::make_unique<CImageActions>(*images, m_window.get());
    connect(m_imageActions.get(), &CImageActions::message, m_window.get(),
            &CMainWindow::showMessage);
    connect(images, &ImageView::CImageGrid::cameraActivated, m_selectorView,
            &CameraSelector::CCameraSelectorView::selectId);
    connect(m_selectorService.data(), &CameraSelector::CDeviceSelectorService::selectionChanged,
            m_acquisition.get(), [this](const auto &info) {
                m_acquisition->setCamera(
                    info.template dynamicCast<Plugin::CameraPool::ICameraInfo>());
            });
    connect(m_pool.get(), &CameraPool::CCameraPool::activityChanged, m_selectorView,
            [this](const QString &cameraId) {
                m_selectorView->getModel()->setActivity(cameraId, m_pool->getActivity(cameraId));
            });
    auto *const settings = new CameraSettings::CCameraSettingsView;
    m_window->addSettings(settings);
    const auto showSettings = [this, settings] {
        const auto camera
            = m_selectorService->getSelection().dynamicCast<Plugin::CameraPool::ICameraInfo>();
        settings->setStream(camera ? m_pool->findStream(camera->getId()) : nullptr);
    };
    connect(m_selectorService.data(), &CameraSelector::CDeviceSelectorService::selectionChanged,
            settings, showSettings);
    connect(m_pool.get(), &CameraPool::CCameraPool::activityChanged, settings, showSettings);
    connect(m_pool.get(), &CameraPool::CCameraPool::snapshotChanged, m_selectorView->getModel(),
            &CameraSelector::CCameraSelectorModel::onSnapshotChanged);
    connect(getEnumerationService().data(), &ICameraEnumerationService::enumerationChanged, this,
            &CViewer::onEnumerationChanged);
}

void CViewer::fillMenus()
{
    QMenu *const fileMenu = m_window->getFileMenu();
    const auto contextMenu = m_menuService->getActionContainer(Ids::CAMERA_SELECTOR_CONTEXT_MENU)
                                 .staticCast<CActionContainer>();
    m_updateFiles->addActions(*fileMenu);
    fileMenu->addSeparator();
    m_acquisition->addActions(m_window->getToolBar(), fileMenu, *contextMenu);

    auto *const refreshAction = new QAction(QIcon(QStringLiteral(":/viewer/icons/refresh.png")),
                                            tr("Re&fresh"), m_window.get());
    refreshAction->setObjectName(QStringLiteral("refresh"));
    refreshAction->setShortcut(Qt::Key_F5);
    refreshAction->setToolTip(tr("Search for cameras (F5)"));
    connect(refreshAction, &QAction::triggered, getEnumerationService().data(),
            &ICameraEnumerationService::refreshEnumeration);
    m_window->getToolBar()->addSeparator();
    m_window->getToolBar()->addAction(refreshAction);
    const QList<QAction *> toolActions = m_window->getToolBar()->actions();
    for (QAction *const action : toolActions)
        action->setIconText(CSwitchMenu::withoutMnemonic(action->text()));
    fileMenu->addSeparator();
    fileMenu->addAction(refreshAction);
    addSwitches();
    if (!m_options.samplesDirectory.isEmpty()) {
        fileMenu->addAction(tr("Open samp&le folder"), this, [this] {
            QDesktopServices::openUrl(QUrl::fromLocalFile(m_options.samplesDirectory));
        });
    }
    fileMenu->addAction(tr("Trusted &makers..."), this, &CViewer::showTrustedMakers)
        ->setObjectName(QStringLiteral("trustedMakers"));
    fileMenu->addSeparator();
    QAction *const quitAction
        = fileMenu->addAction(tr("&Quit"), m_window.get(), &QWidget::close, QKeySequence::Quit);
    quitAction->setObjectName(QStringLiteral("quit"));

    m_window->addViewAction(m_filterAction);
    m_imageActions->addActions(m_window->getViewMenu());

    QMenu *const helpMenu = m_window->getHelpMenu();
    if (!m_options.manual.isEmpty()) {
        QAction *const manualAction = helpMenu->addAction(
            tr("&Manual"), this,
            [this] { QDesktopServices::openUrl(QUrl::fromLocalFile(m_options.manual)); },
            QKeySequence::HelpContents);
        manualAction->setObjectName(QStringLiteral("manual"));
    }
    if (m_logs) {
        helpMenu->addAction(tr("&Logs..."), this, &CViewer::showLogs)
            ->setObjectName(QStringLiteral("logs"));
    }
    helpMenu->addAction(tr("&Update history..."), this, &CViewer::showUpdateHistory)
        ->setObjectName(QStringLiteral("updateHistory"));
    helpMenu->addAction(tr("&Plug-ins..."), this, &CViewer::showPlugins)
        ->setObjectName(QStringLiteral("plugins"));
    helpMenu->addAction(tr("&About"), this, &CViewer::showAbout)
        ->setObjectName(QStringLiteral("about"));
}

void CViewer::addSwitches()
{
    for (const std::unique_ptr<Camera::ICameraKind> &kind : m_pool->getKinds()) {
        const QString title = kind->getMenuTitle();
        if (title.isEmpty())
            CSwitchMenu::add(*kind, *m_window->getFileMenu());
        else
            m_switchMenus.push_back(std::make_unique<CSwitchMenu>(*kind, *m_dialogWatcher,
                                                                  m_window->insertMenu(title)));
    }
}

void CViewer::registerServices()
{
    m_initializer->addService(m_menuService);
    m_initializer->addService(QSharedPointer<CWindowService>::create(m_window.get()));
    const QList<QSharedPointer<Core::Service::IService>> services = m_pool->getServices();
    for (const auto &service : services)
        m_initializer->addService(service);
    m_initializer->addService(m_selectorService);
}

void CViewer::addBuiltIns()
{
    using PluginSystem::CPluginSpec;
    m_pluginManager->addBuiltIn(
        CPluginSpec::createBuiltIn(QStringLiteral("AppCore"), QStringLiteral("1.2.0"),
                                   QStringLiteral("1.0.0"), tr("Main window and menus")));
    m_pluginManager->addBuiltIn(
        CPluginSpec::createBuiltIn(QStringLiteral("CameraSelector"), QStringLiteral("6.2.0"),
                                   QStringLiteral("6.0.0"), tr("Camera tree and selection")));
    m_pluginManager->addBuiltIn(CPluginSpec::createBuiltIn(
        QStringLiteral("CameraPool"), QStringLiteral("1.2.0"), QStringLiteral("1.2.0"),
        tr("Cameras, update files and firmware updates")));
    m_pluginManager->addBuiltIn(
        CPluginSpec::createBuiltIn(QStringLiteral("NuvexViewer"), QStringLiteral("6.2.0"),
                                   QStringLiteral("6.0.0"), tr("The viewer as a whole")));
}

bool CViewer::start(QStringList &failures)
{
    const QStringList directories
        = QStringList(Process::getPluginFolder()) + m_options.pluginDirectories;
    const bool complete = m_pluginManager->start(directories, m_language);
    failures = m_pluginManager->getFailures();
    if (!complete)
        return false;
    QAction *const updateAction = m_menuService->findAction("FirmwareUpdater.Menu.Start");
    m_interruptionBar->setUpdateAction(updateAction);
    m_updateFiles->setUpdateAction(updateAction);
    m_window->restorePlace();
    m_window->show();
    QStringList messages;
    if (!failures.isEmpty())
        messages.append(tr("Not all plug-ins are available: see Help > Plug-ins."));
    if (m_logs && !m_logs->getFault().isEmpty()) {
        messages.append(m_logs->getFault());
        failures.append(m_logs->getFault());
    }
    if (!m_signaturePolicy.getFault().isEmpty()) {
        messages.append(m_signaturePolicy.getFault().getLocalized());
        failures.append(messages.constLast());
    }
    if (!messages.isEmpty())
        m_window->showMessage(messages.join(QLatin1Char(' ')));
    m_pool->start();
    if (!m_options.updateFile.isEmpty())
        m_updateFiles->open(m_options.updateFile);
    return true;
}

QString CViewer::getReasonToStayOpen() const
{
    if (m_pool->isUpdateRunning())
        return tr("A firmware update is running. Wait until it has ended before you quit.");
    if (m_dialogWatcher->isDialogVisible())
        return tr("A dialog is still open. Close it before you quit.");
    return {};
}

void CViewer::requestClose()
{
    m_closeRequested = true;
    const QString reason = getReasonToStayOpen();
    if (reason.isEmpty()) {
        m_window->close();
        return;
    }
    m_toldReason = reason;
    const QString sentence = tr("%1 Then the viewer closes by itself.").arg(reason);
    m_window->showMessage(sentence);
    emit closeDeferred(sentence);
}

void CViewer::closeIfRequested()
{
    if (!m_closeRequested)
        return;
    if (getReasonToStayOpen().isEmpty())
        m_window->close();
    else
        m_nextReasonTimer.start();
}

void CViewer::onEnumerationChanged()
{
    const int count = m_selectorView->getModel()->getCameraCount();
    m_acquisition->setCamerasAvailable(count > 0);
    m_interruptionBar->refresh();
    m_window->setStatus(tr("%n camera(s) found.", nullptr, count));
}

static void openOwn(QDialog *dialog)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    CModalDialogWatcher::markAsOwn(dialog);
    dialog->open();
}

void CViewer::showTrustedMakers()
{
    const QStringList folders = m_signaturePolicy.getTrustFolders();
    openOwn(new CTrustedMakersDialog(
        folders, m_options.configFolder.isEmpty() ? QString() : folders.last(), m_window.get()));
}

void CViewer::showLogs()
{
    openOwn(new CLogListDialog(*m_logs, m_window.get()));
}

void CViewer::showUpdateHistory()
{
    openOwn(new CUpdateHistoryDialog(Update::CUpdateHistory().read(), QLocale(m_language),
                                     m_window.get()));
}

void CViewer::showPlugins()
{
    openOwn(new CPluginListDialog(m_pluginManager->getSpecs(), m_window.get()));
}

void CViewer::showAbout()
{
    QVector<Text::CLibraryVersion> libraries{
        {QStringLiteral("Qt"), QStringLiteral(QT_VERSION_STR), QString::fromLatin1(qVersion())},
        UpdateFile::CUpdateArchive::getLibrary(),
        Signature::CTrustStore::getLibrary(),
        Image::CFrameConverter::getLibrary(),
        Image::getPngLibrary()};
    for (const std::unique_ptr<Camera::ICameraKind> &kind : m_pool->getKinds())
        libraries += kind->getLibraries();
    auto *const box = new CAboutBox(libraries, m_window.get());
    box->setIconPixmap(m_window->windowIcon().pixmap(m_window->windowHandle(), {64, 64}));
    openOwn(box);
}

CMainWindow &CViewer::getMainWindow() const
{
    return *m_window;
}

CMenuService &CViewer::getMenuService() const
{
    return *m_menuService;
}

CameraPool::CCameraPool &CViewer::getCameraPool() const
{
    return *m_pool;
}

CameraSelector::CCameraSelectorView &CViewer::getCameraSelector() const
{
    return *m_selectorView;
}

QSharedPointer<ICameraEnumerationService> CViewer::getEnumerationService() const
{
    return m_pool->getService<ICameraEnumerationService>();
}

QSharedPointer<IDeviceFirmwareUpdateService> CViewer::getUpdateService() const
{
    return m_pool->getService<IDeviceFirmwareUpdateService>();
}

} // namespace Viewer::AppCore
