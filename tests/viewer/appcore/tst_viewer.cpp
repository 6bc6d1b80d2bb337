#include "viewer/appcore/mainwindow.h"
#include "viewer/appcore/menuservice.h"
#include "viewer/appcore/viewer.h"
#include "viewer/camerapool/camerapool.h"
#include "viewer/cameraselector/cameraselectormodel.h"
#include "viewer/cameraselector/cameraselectorview.h"

#include "camerapool/icameraenumerationservice.h"
#include "camerapool/idevicefirmwareupdateservice.h"

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTreeWidget>
#include <QtTest>

#include <memory>
#include <thread>

using namespace Viewer::AppCore;
using Plugin::CameraPool::ICameraEnumerationService;

/// The viewer put together with its real cameras, but without a plug-in: none lies beside the test.
class CViewerTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void findsItsCameras();
    void wizardLocksStartsAndClosing();
    void ownDialogLocksNothing();
    void runningUpdateKeepsTheWindowOpen();
    void followsTheSelectionWithActions();
    void toolsAreHiddenWithoutEntries();
    void listsItsParts();
    void closingEndsTheApplication();

private:
    QString firstCameraId() const;

    std::unique_ptr<CViewer> m_viewer;
};

void CViewerTest::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName("NuvexTest");
    QCoreApplication::setApplicationName("tst_viewer");
    QApplication::setQuitOnLastWindowClosed(false);
}

void CViewerTest::init()
{
    CCommandLineOptions options;
    options.pool.speedFactor = 100;
    m_viewer = std::make_unique<CViewer>(options, "en");
    QSignalSpy spy(m_viewer->getEnumerationService().data(),
                   &ICameraEnumerationService::enumerationChanged);
    // Without an application that executes, quitting would end each wait of the tests that follow.
    if (QTest::currentTestFunction() != QLatin1String("closingEndsTheApplication"))
        m_viewer->getMainWindow().disconnect(SIGNAL(closed()));
    QStringList failures;
    QVERIFY(m_viewer->start(failures));
    QCOMPARE(failures, QStringList());
    QVERIFY2(spy.isEmpty(), "announced before the plug-ins were ready");
    QVERIFY(spy.wait());
}

void CViewerTest::cleanup()
{
    m_viewer.reset();
}

QString CViewerTest::firstCameraId() const
{
    const auto layers = m_viewer->getEnumerationService()->getTransportLayerInfoVector();
    return layers.constFirst()->getCameraInfoList().constFirst()->getId();
}

void CViewerTest::findsItsCameras()
{
    QVERIFY(m_viewer->getMainWindow().isVisible());
    QCOMPARE(m_viewer->getCameraSelector().getModel()->getCameraCount(), 12);
    QCOMPARE(m_viewer->getMainWindow().findChild<QLabel *>("statusLabel")->text(),
             "12 camera(s) found.");
    QVERIFY(m_viewer->getUpdateService());
}

void CViewerTest::wizardLocksStartsAndClosing()
{
    QString error;
    QDialog wizard(&m_viewer->getMainWindow());
    wizard.setModal(true);
    wizard.show();
    QVERIFY(!m_viewer->getCameraPool().startAcquisition(firstCameraId(), &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(!m_viewer->getMainWindow().close());
    QVERIFY(m_viewer->getMainWindow().statusBar()->currentMessage().contains("dialog"));

    wizard.hide();
    QTRY_VERIFY(m_viewer->getCameraPool().startAcquisition(firstCameraId(), &error));
    QVERIFY(m_viewer->getMainWindow().close());
}

void CViewerTest::ownDialogLocksNothing()
{
    m_viewer->getMainWindow().findChild<QAction *>("about")->trigger();
    QVERIFY(QApplication::activeModalWidget());
    QVERIFY(m_viewer->getCameraPool().startAcquisition(firstCameraId()));
    QVERIFY(m_viewer->getMainWindow().close());
}

void CViewerTest::runningUpdateKeepsTheWindowOpen()
{
    const auto updates = m_viewer->getUpdateService();
    const auto infos = updates->getFirmwareUpdateInfos(SAMPLE_FILE, {});
    const auto layers = m_viewer->getEnumerationService()->getTransportLayerInfoVector();
    const auto job = updates->createDeviceFirmwareUpdate(
        layers.constFirst()->getCameraInfoList().constFirst(), infos.constFirst());
    QVERIFY(job);
    std::thread worker([&job] { job->executeFirmwareUpdate(); });
    const auto pool = &m_viewer->getCameraPool();
    const bool running = QTest::qWaitFor([pool] { return pool->isUpdateRunning(); });
    const bool closed = m_viewer->getMainWindow().close();
    const QString message = m_viewer->getMainWindow().statusBar()->currentMessage();
    worker.join();
    QVERIFY(running);
    QVERIFY(!closed);
    QVERIFY2(message.contains("update"), qPrintable(message));
    QTRY_VERIFY(!pool->isUpdateRunning());
    QVERIFY(m_viewer->getMainWindow().close());
}

void CViewerTest::followsTheSelectionWithActions()
{
    auto *const tree = &m_viewer->getCameraSelector();
    const QMenu *const menu = m_viewer->getMainWindow().getSelectorMenu();
    QAction *const start = menu->actions().at(1);
    QCOMPARE(start->objectName(), "start");
    QVERIFY(!start->isEnabled());
    tree->selectId(firstCameraId());
    QVERIFY(start->isEnabled());
    start->trigger();
    const QModelIndex state = tree->currentIndex().siblingAtColumn(3);
    QTRY_COMPARE(state.data().toString(), "Acquiring");
    tree->selectId({});
    QVERIFY(!start->isEnabled());
}

void CViewerTest::closingEndsTheApplication()
{
    QTimer::singleShot(0, &m_viewer->getMainWindow(), &QWidget::close);
    QCOMPARE(QCoreApplication::exec(), 0);
}

void CViewerTest::toolsAreHiddenWithoutEntries()
{
    QAction *tools = nullptr;
    const QList<QAction *> entries = m_viewer->getMainWindow().menuBar()->actions();
    for (QAction *const entry : entries) {
        if (entry->menu() && entry->menu()->objectName() == "toolsMenu")
            tools = entry;
    }
    QVERIFY(tools);
    QVERIFY(!tools->isVisible());
}

void CViewerTest::listsItsParts()
{
    m_viewer->getMainWindow().findChild<QAction *>("plugins")->trigger();
    const auto *const tree = m_viewer->getMainWindow().findChild<QTreeWidget *>("pluginTree");
    QVERIFY(tree);
    QStringList parts;
    for (int row = 0; row < tree->topLevelItemCount(); ++row)
        parts.append(tree->topLevelItem(row)->text(0) + ' ' + tree->topLevelItem(row)->text(1));
    QCOMPARE(parts,
             QStringList({"AppCore 1.2.0", "CameraSelector 6.2.0", "CameraPool 1.2.0",
                          "NuvexViewer 6.2.0"}));
}

QTEST_MAIN(CViewerTest)

#include "tst_viewer.moc"
