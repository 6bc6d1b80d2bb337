#include "support/camerakinds.h"
#include "support/vieweroptions.h"
#include "viewer/appcore/logfolder.h"
#include "viewer/appcore/mainwindow.h"
#include "viewer/appcore/recentfiles.h"
#include "viewer/appcore/textdialog.h"
#include "viewer/appcore/viewer.h"
#include "viewer/camerapool/camerapool.h"
#include "viewer/cameraselector/cameraselectormodel.h"
#include "viewer/cameraselector/cameraselectorview.h"
#include "viewer/files/backgroundwork.h"
#include "viewer/imageview/imagegrid.h"
#include "viewer/imageview/imagetile.h"
#include "viewer/imageview/imageview.h"
#include "viewer/update/updatehistory.h"
#include "viewer/update/updatejournal.h"

#include "camerapool/icameraenumerationservice.h"
#include "camerapool/idevicefirmwareupdateservice.h"
#include "core/baseexception.h"

#include <QAction>
#include <QDesktopServices>
#include <QDialog>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QToolBar>
#include <QTreeWidget>
#include <QtTest>
#include <QWindow>

#include <future>
#include <memory>
#include <thread>

using namespace Viewer::AppCore;
using namespace Viewer::ImageView;
using Plugin::CameraPool::ICameraEnumerationService;

/// The viewer put together with its real cameras and with the plug-in of the samples; no other lies
/// beside the test.
class CViewerTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void readsItsCommandLine();
    void samplePluginCountsAndLeavesNothing();
    void acquiresAndRecords();
    void showsSeveralCameras();
    void wizardLocksStartsAndClosing();
    void runningUpdateKeepsTheWindowOpen_data();
    void runningUpdateKeepsTheWindowOpen();
    void saysWhyAFileDoesNotFit();
    void tellsWhatItIsMadeOf();
    void showsUpdateFiles();
    void remembersUpdateFiles();
    void forgetsCanceledWork();
    void switchesCamerasBesideAModalDialog();
    void closingEndsTheApplication();
    void opensItsOwnFoldersAndLogs();
    void tellsOfInterruptedUpdates();
    void tellsWhyNoLogsAreKept();

private:
    enum EButton { Start, Stop, Record, StopRecording };

    Plugin::CameraPool::CameraInfoPtr camera() const;
    bool startsCamera() const { return m_pool->startAcquisition(camera()->getId()); }
    /// The places of the tool bar's buttons that can be clicked.
    QString enabledButtons() const;

    std::unique_ptr<CViewer> m_viewer;
    CMainWindow *m_window = nullptr;
    Viewer::CameraPool::CCameraPool *m_pool = nullptr;
    Viewer::CameraSelector::CCameraSelectorView *m_tree = nullptr;
};

void CViewerTest::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName("NuvexTest");
    QCoreApplication::setApplicationName("tst_viewer");
    QApplication::setQuitOnLastWindowClosed(false);
    QSettings().clear();
}

void CViewerTest::init()
{
    m_viewer.reset();
    m_viewer = std::make_unique<CViewer>(
        TestSupport::readOptions({"--speed", "100", "--plugins", SAMPLE_PLUGIN_FOLDER}), "en");
    m_window = &m_viewer->getMainWindow();
    m_pool = &m_viewer->getCameraPool();
    m_tree = &m_viewer->getCameraSelector();
    QSignalSpy spy(m_viewer->getEnumerationService().data(),
                   &ICameraEnumerationService::enumerationChanged);
    // Without an application that executes, quitting would end each wait of the tests that follow.
    if (QTest::currentTestFunction() != QLatin1String("closingEndsTheApplication"))
        m_window->disconnect(SIGNAL(closed()));
    QStringList failures;
    QVERIFY(m_viewer->start(failures));
    QCOMPARE(failures, QStringList());
    QVERIFY2(spy.isEmpty(), "announced before the plug-ins were ready");
    QVERIFY(spy.wait());
    QCOMPARE(m_tree->getModel()->getCameraCount(), 12);
}

Plugin::CameraPool::CameraInfoPtr CViewerTest::camera() const
{
    const auto layers = m_viewer->getEnumerationService()->getTransportLayerInfoVector();
    return layers.constFirst()->getCameraInfoList().constFirst();
}

QString CViewerTest::enabledButtons() const
{
    QString enabled;
    const QList<QAction *> buttons = m_window->getToolBar()->actions();
    for (const EButton place : {Start, Stop, Record, StopRecording})
        enabled += buttons.at(place)->isEnabled() ? QString::number(place) : QString();
    return enabled;
}

void CViewerTest::readsItsCommandLine()
{
    const auto read = [](const QString &arguments) {
        CCommandLine commandLine;
        const QStringList list = QString("nuvexviewer " + arguments).split(' ');
        return commandLine.parse(list) == CCommandLine::EResult::Start ? QString()
                                                                       : commandLine.getMessage();
    };
    for (const QString speed : {"0.001", "10001", "nan", "fast"})
        QVERIFY(read("--speed 1 --speed " + speed).contains('"' + speed + '"'));
    QVERIFY(read("a.guf b.guf").contains("\"a.guf\" and \"b.guf\""));
    QVERIFY(read("--demo x a.guf").contains("update file"));
    QCOMPARE(TestSupport::readOptions({"a.guf"}).updateFile, QDir::current().filePath("a.guf"));
    if (!read("--network").isEmpty())
        QSKIP("This viewer has no real cameras.");
    for (const QString address : {"255.255.255.255", "239.1.2.3", "0.0.0.0", "1.2.3", "::1", "x"})
        QVERIFY(read("--camera-address 10.0.0.1 --camera-address " + address)
                    .contains('"' + address + '"'));
    // Not started, so nothing is searched for.
    const CViewer viewer(TestSupport::readOptions({"--no-simulation", "--network"}), "en");
    const auto isSearching = [](const CMainWindow &window) {
        return window.findChild<QAction *>("searchNetwork")->isChecked();
    };
    QVERIFY(isSearching(viewer.getMainWindow()));
    QVERIFY(!isSearching(*m_window));
}

void CViewerTest::samplePluginCountsAndLeavesNothing()
{
    auto *const menu = m_window->findChild<QMenu *>("toolsMenu");
    QAction *const entry = menu->actions().constLast();
    QCOMPARE(entry->text(), "Count Cameras");
    menu->popup({});
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entry).center());
    const auto *const box = m_window->findChild<QMessageBox *>();
    QVERIFY(box);
    QCOMPARE(box->text(), "Cameras: 12");
    // Seen while the window, which would take everything along, is still there.
    bool left = true;
    connect(box, &QObject::destroyed, [this, menu, &left] {
        left = !m_window->isVisible() || menu->menuAction()->isVisible();
    });
    m_viewer.reset();
    QVERIFY(!left);
}

void CViewerTest::acquiresAndRecords()
{
    const QTemporaryDir folder;
    const QList<QAction *> buttons = m_window->getToolBar()->actions();
    QCOMPARE(enabledButtons(), QString());
    m_tree->selectId(camera()->getId());
    QCOMPARE(enabledButtons(), "02");
    buttons.at(Record)->trigger();
    auto *const dialog = m_window->findChild<QFileDialog *>("recordingFolderDialog");
    QVERIFY(dialog);
    emit dialog->fileSelected(folder.path());
    dialog->close();
    QTRY_COMPARE(enabledButtons(), "13");
    QTRY_VERIFY(!QDir(folder.path()).isEmpty());
    buttons.at(StopRecording)->trigger();
    QTRY_COMPARE(enabledButtons(), "12");
    QCOMPARE(m_tree->currentIndex().siblingAtColumn(6).data().toString(), "Acquiring");
    QTRY_VERIFY(m_window->statusBar()->currentMessage().contains("recorded."));
    auto *const images = m_window->findChild<CImageGrid *>();
    QTRY_VERIFY(images->getSelectedTile()->getView()->hasImage());
    buttons.at(Stop)->trigger();
    QTRY_COMPARE(enabledButtons(), "02");
    QVERIFY(!images->getSelectedTile()->getView()->hasImage());
    // Where it would be refused, it cannot be clicked, and the reason is in place of the image.
    QVERIFY(TestSupport::setSwitch(*m_pool, "busy:" + camera()->getId(), true));
    QTRY_COMPARE(enabledButtons(), QString());
    const QString reason = images->getSelectedTile()->getView()->accessibleDescription();
    QVERIFY2(reason.contains("in use by another"), qPrintable(reason));
}

void CViewerTest::showsSeveralCameras()
{
    auto *const images = m_window->findChild<CImageGrid *>();
    const auto cameras = m_viewer->getEnumerationService()
                             ->getTransportLayerInfoVector()
                             .constFirst()
                             ->getCameraInfoList()
                             .mid(0, 4);
    for (const auto &camera : cameras)
        QVERIFY(m_pool->startAcquisition(camera->getId()));
    QTRY_COMPARE(images->getShownIds().size(), 4);
    for (const auto &camera : cameras) {
        const CImageView *const view = images->findTile(camera->getId())->getView();
        QTRY_VERIFY(view->hasImage());
    }
    const QString third = cameras.at(2)->getId();
    QTest::mouseClick(images->findTile(third)->getView(), Qt::LeftButton);
    QCOMPARE(m_tree->currentIndex(), m_tree->findId(third));
    m_window->findChild<QAction *>("saveImage")->trigger();
    QFileDialog *dialog = nullptr;
    QTRY_VERIFY((dialog = m_window->findChild<QFileDialog *>("saveImageDialog")));
    const QTemporaryDir folder;
    emit dialog->fileSelected(folder.filePath("a.png"));
    dialog->close();
    QVERIFY(!QImage(folder.filePath("a.png")).isNull());
}

void CViewerTest::wizardLocksStartsAndClosing()
{
    auto page = std::make_unique<QDialog>(m_window);
    QDialog nextPage(m_window);
    page->setModal(true);
    nextPage.setModal(true);
    page->show();
    QVERIFY(!startsCamera());
    QVERIFY(!m_window->close());
    QVERIFY(m_window->statusBar()->currentMessage().contains("dialog"));
    // Between two pages nothing is shown.
    page.reset();
    QVERIFY(!startsCamera());
    nextPage.show();
    QCoreApplication::processEvents();
    QVERIFY(!startsCamera());
    QSignalSpy deferred(m_viewer.get(), &CViewer::closeDeferred);
    m_viewer->requestClose();
    QCOMPARE(deferred.size(), 1);
    nextPage.hide();
    QTRY_VERIFY(!m_window->isVisible());
    QTRY_VERIFY(startsCamera());
}

void CViewerTest::runningUpdateKeepsTheWindowOpen_data()
{
    QTest::addColumn<bool>("withDialog");
    QTest::newRow("without a dialog") << false;
    QTest::newRow("behind a dialog") << true;
}

void CViewerTest::runningUpdateKeepsTheWindowOpen()
{
    QFETCH(bool, withDialog);
    QDialog page(m_window);
    page.setModal(true);
    page.setVisible(withDialog);
    const auto updates = m_viewer->getUpdateService();
    const auto infos = updates->getFirmwareUpdateInfos(SAMPLE_FILE, {});
    const auto job = updates->createDeviceFirmwareUpdate(camera(), infos.constFirst());
    std::thread worker([&job] { job->executeFirmwareUpdate(); });
    const bool running = QTest::qWaitFor([this] { return m_pool->isUpdateRunning(); });
    const bool closed = m_window->close();
    const QString message = m_window->statusBar()->currentMessage();
    QSignalSpy deferred(m_viewer.get(), &CViewer::closeDeferred);
    m_viewer->requestClose();
    m_viewer->requestClose();
    const bool visible = m_window->isVisible();
    worker.join();
    QVERIFY(running && !closed && visible);
    QVERIFY2(message.contains("update"), qPrintable(message));
    QCOMPARE(deferred.size(), 2);
    QVERIFY(deferred.value(0).value(0).toString().startsWith(message));
    if (withDialog) {
        QTRY_COMPARE(deferred.size(), 3);
        QVERIFY(deferred.value(2).value(0).toString().contains("dialog"));
        page.hide();
    }
    // Nobody has to ask once more.
    QTRY_VERIFY(!m_window->isVisible());
    QVERIFY(!m_pool->isUpdateRunning());
}

void CViewerTest::opensItsOwnFoldersAndLogs()
{
    const QTemporaryDir folder;
    const QString stateHome = QFileInfo(folder.path()).canonicalFilePath();
    qputenv("XDG_STATE_HOME", stateHome.toUtf8());
    qputenv("PATH", "/nowhere"); // no program of a desktop: everything is shown by the viewer
    CLogFolder logs;
    QVERIFY(logs.open());
    QFile log(QDir::tempPath() + "/a.log");
    QVERIFY(log.open(QIODevice::WriteOnly) && log.write("lines") == 5);
    log.close();
    QVERIFY(!m_window->findChild<QAction *>("manual"));
    m_viewer.reset();
    CCommandLineOptions options = TestSupport::readOptions({"--samples", stateHome});
    options.manual = "/manual/index.html";
    const CViewer viewer(std::move(options), "en", &logs);
    const auto takeShown = [] {
        std::unique_ptr<CTextDialog> shown;
        for (QWidget *const widget : QApplication::topLevelWidgets()) {
            if (auto *const dialog = qobject_cast<CTextDialog *>(widget))
                shown.reset(dialog);
        }
        return shown;
    };
    viewer.getMainWindow().findChild<QAction *>("manual")->trigger();
    auto manual = takeShown();
    QVERIFY(manual && manual->getText() == "/manual/index.html");
    manual.reset();
    for (const QString &path : {stateHome, logs.getRoot(), log.fileName()}) {
        QVERIFY(QDesktopServices::openUrl(QUrl::fromLocalFile(path)));
        const auto shown = takeShown();
        QVERIFY(shown);
        QCOMPARE(shown->getText(), path == log.fileName() ? "lines" : path);
        QVERIFY(!shown->findChild<QLabel *>()->isVisible());
    }
}

void CViewerTest::tellsWhyNoLogsAreKept()
{
    qputenv("XDG_STATE_HOME", "/dev/null");
    CLogFolder logs;
    QVERIFY(!logs.open());
    m_viewer.reset();
    CViewer viewer({}, "en", &logs);
    QStringList failures;
    QVERIFY(viewer.start(failures));
    QCOMPARE(failures, QStringList(logs.getFault()));
    CMainWindow &window = viewer.getMainWindow();
    QVERIFY(window.statusBar()->currentMessage().contains(logs.getFault()));
    for (const char *const action : {"logs", "updateHistory"})
        window.findChild<QAction *>(action)->trigger();
    for (const char *const name : {"logListDialog", "updateHistoryDialog"}) {
        const auto *const dialog = window.findChild<QDialog *>(name);
        QVERIFY(dialog && dialog->isVisible());
        QVERIFY(dialog->findChild<QLabel *>("hintLabel")->text().contains("Not a directory"));
    }
    // They are the viewer's own and keep nothing from being closed.
    QVERIFY(window.close());
}

void CViewerTest::tellsOfInterruptedUpdates()
{
    using namespace Viewer::Update;
    const QTemporaryDir folder;
    CUpdateRecord record;
    record.filePath = "/files/a.guf";
    record.stepCount = 7;
    for (const QString &id : {camera()->getId(), QString("nowhere"), QString("ended")}) {
        record.cameraId = record.cameraName = id;
        record.begin = QDateTime::currentDateTimeUtc().addSecs(id == "nowhere" ? 60 : 0);
        record.outcome = id == "ended" ? EUpdateOutcome::Updated : EUpdateOutcome::Running;
        CUpdateJournal(folder.path(), record).beginStep("FileUpload");
    }
    record.cameraId = "running";
    record.outcome = EUpdateOutcome::Running;
    const CUpdateJournal running(folder.path(), record);

    CCommandLineOptions options = TestSupport::readOptions({});
    options.journalFolder = folder.path();
    const QString version = camera()->getFirmwareVersion();
    const QString id = camera()->getId();
    m_viewer = std::make_unique<CViewer>(std::move(options), "en");
    QStringList failures;
    QVERIFY(m_viewer->start(failures));
    auto *const bar = m_viewer->getMainWindow().findChild<QWidget *>("interruptionBar");
    QTRY_VERIFY(bar->isVisible());
    const auto verifyText = [bar](const QStringList &parts) {
        const QString text = bar->findChild<QLabel *>("interruptionText")->text();
        for (const QString &part : parts)
            QVERIFY2(text.contains(part), qPrintable(text));
    };
    verifyText({"camera " + id, "step 1 of 7 (FileUpload)", "version " + version + " now",
                "with the file /files/a.guf.", "And 1 more."});
    // There is no firmware updater beside this test.
    QVERIFY(!bar->findChild<QWidget *>("interruptionUpdate")->isVisible());
    auto *const dismiss = bar->findChild<QPushButton *>("interruptionDismiss");
    QTest::mouseClick(dismiss, Qt::LeftButton);
    verifyText({"camera nowhere", "does not answer. Switch it off and on"});
    QTest::mouseClick(dismiss, Qt::LeftButton);
    QVERIFY(!bar->isVisible());
    // That of the one that runs; the history has the others.
    QCOMPARE(readJournals(folder.path()).entries.size(), 1);
    QStringList history;
    for (const auto &ended : CUpdateHistory(CUpdateHistory::getPath(folder.path())).read().records)
        history.append(QString("%1 %2").arg(ended.cameraId).arg(int(ended.outcome)));
    QCOMPARE(history.join(", "), QString("nowhere 4, %1 4, ended 1").arg(id));
}

void CViewerTest::saysWhyAFileDoesNotFit()
{
    const auto updates = m_viewer->getUpdateService();
    const auto cameras = m_viewer->getEnumerationService()
                             ->getTransportLayerInfoVector()
                             .last()
                             ->getCameraInfoList();
    const auto infos = updates->getFirmwareUpdateInfos(SAMPLE_FILE, {});
    QDialog page(m_window);
    page.setModal(true);
    page.show();
    QVector<QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>> compatible;
    bool updatable = false;
    const auto getMessage = [this] { return m_window->statusBar()->currentMessage(); };
    updates->getCompatibleFirmwareUpdates(cameras.constFirst(), infos, compatible, updatable);
    QTRY_VERIFY2(getMessage().endsWith(": it is for the model VX-1400M."),
                 qPrintable(getMessage()));
    QVERIFY_EXCEPTION_THROWN(updates->getFirmwareUpdateInfos(SAMPLE_PLUGIN_FOLDER, {}),
                             Core::Exception::BaseException);
    QTRY_VERIFY2(getMessage().endsWith(": this is a folder, not a file."),
                 qPrintable(getMessage()));
    // Nothing hides it while the page is there, and it goes along.
    page.hide();
    QTRY_COMPARE(getMessage(), QString());
}

void CViewerTest::tellsWhatItIsMadeOf()
{
    m_window->findChild<QAction *>("about")->trigger();
    const QString text = m_window->findChild<QMessageBox *>("aboutBox")->text();
    for (const QString part : {"MIT", qVersion(), "libzip", "OpenSSL", "OpenCV", "zlib"})
        QVERIFY2(text.contains(part), qPrintable(text));
    QVERIFY2(!text.contains("built with"), qPrintable(text));
}

void CViewerTest::showsUpdateFiles()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir("dir.guf"));
    // What the status bar says, or the dialog.
    const auto drop = [this](const QStringList &paths) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls.append(QUrl::fromLocalFile(path));
        data.setUrls(urls);
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
        m_window->showMessage({});
        QCoreApplication::sendEvent(m_window, &enter);
        if (!enter.isAccepted())
            return m_window->statusBar()->currentMessage();
        QDropEvent event({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(m_window, &event);
        return QString(event.isAccepted() ? "" : "not dropped");
    };
    QDialog page(m_window);
    page.setModal(true);
    page.show();
    QVERIFY(drop({SAMPLE_FILE}).contains("dialog is still open"));
    page.hide();
    QCoreApplication::processEvents();
    QVERIFY(drop({SAMPLE_FILE, "/b.guf"}).contains("not several"));
    QVERIFY(drop({"/b.txt"}).contains("*.guf"));
    QVERIFY(!m_window->findChild<QDialog *>("updateFileDialog"));

    QCOMPARE(drop({folder.filePath("dir.guf")}), QString());
    QDialog *dialog = nullptr;
    QTRY_VERIFY((dialog = m_window->findChild<QDialog *>("updateFileDialog")));
    const auto *const hint = dialog->findChild<QLabel *>("hintLabel");
    QTRY_COMPARE(hint->text(), "Update file dir.guf: this is a folder, not a file.");
    auto *const tree = dialog->findChild<QTreeWidget *>("updateFileTree");
    QVERIFY(!tree->isVisible());
    // Another one takes its place.
    QCOMPARE(drop({SAMPLE_FILE}), QString());
    QTRY_VERIFY2(hint->text().contains("fits: 6 of 12 (6 upgrade(s))"), qPrintable(hint->text()));
    QVERIFY2(hint->text().contains("it is not signed."), qPrintable(hint->text()));
    QCOMPARE(tree->topLevelItemCount(), 1);
    QCOMPARE(tree->topLevelItem(0)->childCount(), 6);
    QVERIFY(dialog->findChild<QTextBrowser *>("updateFileEntry")
                ->toPlainText()
                .contains("Models: VX-1400M"));
    // There is no firmware updater beside this test.
    QVERIFY(!dialog->findChild<QPushButton *>("updaterButton")->isVisible());
    QVERIFY(TestSupport::setSwitch(*m_pool, "busy:" + camera()->getId(), true));
    QTRY_VERIFY2(hint->text().contains("5 upgrade(s), 1 not now"), qPrintable(hint->text()));
    dialog->reject();
    // Dialogs of plug-ins that name no folder begin in that of the file.
    page.show();
    const QFileDialog files;
    QCOMPARE(files.directory(), QFileInfo(SAMPLE_FILE).dir());
    QVERIFY(m_window->findChild<QMenu *>("recentFiles")->actions().at(0)->text().contains("1400m"));
}

void CViewerTest::remembersUpdateFiles()
{
    QSettings().clear();
    const QTemporaryDir folder;
    const QString path = folder.filePath("a&b.guf");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QMenu menu;
    CRecentFiles files(menu);
    QVERIFY(!menu.isEnabled());
    for (const QString name : {"/c/x.guf", "/d/x.guf", "/1", "/2", "/3", "/4", "/5", "/6"})
        files.add(name);
    files.add(path);
    files.add("/c/x.guf");
    files.add(path);
    QCOMPARE(files.getPaths().size(), CRecentFiles::CAPACITY);
    QCOMPARE(files.getFolder(), folder.path());
    const QList<QAction *> actions = menu.actions();
    QVERIFY(actions.at(0)->text().startsWith("&1  a&&b.guf"));
    QVERIFY(actions.at(1)->text().contains("/c"));

    QMenu nextMenu;
    CRecentFiles next(nextMenu);
    QCOMPARE(next.getPaths(), files.getPaths());
    QTRY_COMPARE(next.getFolder(), folder.path());
    QVERIFY(nextMenu.actions().at(0)->isEnabled() && !nextMenu.actions().at(1)->isEnabled());
    const QSignalSpy chosen(&next, &CRecentFiles::chosen);
    nextMenu.actions().at(0)->trigger();
    QCOMPARE(chosen.value(0).value(0), path);
    nextMenu.actions().constLast()->trigger();
    QVERIFY(!nextMenu.isEnabled() && QSettings().value("updateFiles/recent").toList().isEmpty());
}

void CViewerTest::forgetsCanceledWork()
{
    using Viewer::Files::CBackgroundWork;
    QStringList ended;
    std::promise<void> gate;
    const std::shared_future<void> opened = gate.get_future();
    const auto waitFor = [&](const QString &name) {
        return [=, &ended](const CBackgroundWork::Checkpoint &checkpoint) {
            opened.wait();
            checkpoint();
            return [=, &ended] { ended.append(name); };
        };
    };
    auto work = std::make_unique<CBackgroundWork>();
    work->start(waitFor("first"));
    work->start(waitFor("second"));
    gate.set_value();
    QTRY_COMPARE(ended, QStringList("second"));
    work->start(waitFor("third"));
    work.reset();
    QCoreApplication::processEvents();
    QCOMPARE(ended, QStringList("second"));
}

void CViewerTest::switchesCamerasBesideAModalDialog()
{
    m_window->findChild<QAction *>("switchWindowAction")->trigger();
    auto *const window = m_window->findChild<QWidget *>("switchWindow");
    QVERIFY(QTest::qWaitForWindowExposed(window));
    auto *const tree = window->findChild<QTreeWidget *>();
    QTreeWidgetItem *const plugged = tree->topLevelItem(0)->child(0);
    // By way of the window, where modal dialogs block.
    const auto click = [&] {
        const QPoint place = tree->visualItemRect(plugged).topLeft() + QPoint(10, 8);
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {},
                          tree->viewport()->mapTo(window, place));
        return plugged->checkState(0) == Qt::Checked;
    };
    QVERIFY(!click());
    QVERIFY(click());
    QDialog page(m_window);
    QDialog nextPage(m_window);
    page.setModal(true);
    nextPage.setModal(true);
    page.show();
    QVERIFY(!click());
    page.hide();
    nextPage.show();
    QVERIFY(click());
    {
        QDialog question(&nextPage);
        question.setModal(true);
        question.show();
        QVERIFY(!click());
    }
    QVERIFY(click());
    QTRY_COMPARE(m_tree->getModel()->getCameraCount(), 12);
}

void CViewerTest::closingEndsTheApplication()
{
    QTimer::singleShot(0, m_window, &QWidget::close);
    QCOMPARE(QCoreApplication::exec(), 0);
}

QTEST_MAIN(CViewerTest)

#include "tst_viewer.moc"
