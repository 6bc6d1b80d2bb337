#include "viewer/appcore/imageview.h"
#include "viewer/appcore/language.h"
#include "viewer/appcore/mainwindow.h"
#include "viewer/appcore/viewer.h"
#include "viewer/camerapool/camerapool.h"
#include "viewer/cameraselector/cameraselectormodel.h"
#include "viewer/cameraselector/cameraselectorview.h"

#include "camerapool/icameraenumerationservice.h"
#include "camerapool/idevicefirmwareupdateservice.h"

#include <QAction>
#include <QDialog>
#include <QFileDialog>
#include <QMenu>
#include <QSettings>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QToolBar>
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
    void acquiresAndRecords();
    void anotherCameraTakesOverTheImage();
    void unplugsAndMakesBusy();
    void wizardLocksStartsAndClosing();
    void otherDialogsLockNothing();
    void runningUpdateKeepsTheWindowOpen();
    void remembersPlaceAndLanguage();
    void closingEndsTheApplication();

private:
    enum EButton { Start, Stop, Record, StopRecording };

    Plugin::CameraPool::CameraInfoPtr camera(int place) const;
    bool startsCamera() const;
    QAction *button(EButton place) const;
    QVector<int> enabledButtons() const;

    std::unique_ptr<CViewer> m_viewer;
    CMainWindow *m_window = nullptr;
    CImageView *m_view = nullptr;
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
    CCommandLineOptions options;
    options.pool.speedFactor = 100;
    m_viewer = std::make_unique<CViewer>(options, "en");
    m_window = &m_viewer->getMainWindow();
    m_view = m_window->findChild<CImageView *>();
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

Plugin::CameraPool::CameraInfoPtr CViewerTest::camera(int place) const
{
    const auto layers = m_viewer->getEnumerationService()->getTransportLayerInfoVector();
    return layers.constFirst()->getCameraInfoList().at(place);
}

bool CViewerTest::startsCamera() const
{
    return m_pool->startAcquisition(camera(0)->getId());
}

QAction *CViewerTest::button(EButton place) const
{
    return m_window->getToolBar()->actions().at(place);
}

QVector<int> CViewerTest::enabledButtons() const
{
    QVector<int> enabled;
    for (const EButton place : {Start, Stop, Record, StopRecording}) {
        if (button(place)->isEnabled())
            enabled.append(place);
    }
    return enabled;
}

void CViewerTest::acquiresAndRecords()
{
    const QTemporaryDir folder;
    QCOMPARE(enabledButtons(), QVector<int>());
    m_tree->selectId(camera(0)->getId());
    QCOMPARE(enabledButtons(), QVector<int>({Start, Record}));
    button(Record)->trigger();
    auto *const dialog = m_window->findChild<QFileDialog *>("recordingFolderDialog");
    QVERIFY(dialog);
    emit dialog->fileSelected(folder.path());
    dialog->close();
    QTRY_COMPARE(enabledButtons(), QVector<int>({Stop, StopRecording}));
    QTRY_VERIFY(!QDir(folder.path()).isEmpty());
    button(StopRecording)->trigger();
    QTRY_COMPARE(enabledButtons(), QVector<int>({Stop, Record}));
    QCOMPARE(m_tree->currentIndex().siblingAtColumn(4).data().toString(), "Acquiring");
    QTRY_VERIFY(m_view->hasImage());
    button(Stop)->trigger();
    QTRY_COMPARE(enabledButtons(), QVector<int>({Start, Record}));
    QTRY_VERIFY(!m_view->hasImage());
}

void CViewerTest::anotherCameraTakesOverTheImage()
{
    m_tree->selectId(camera(0)->getId());
    button(Start)->trigger();
    QTRY_VERIFY(m_view->hasImage());
    m_tree->selectId(camera(1)->getId());
    QVERIFY(!m_view->hasImage());
    QSignalSpy frames(m_pool, &Viewer::CameraPool::CCameraPool::frameReady);
    QVERIFY(frames.wait());
    QVERIFY2(!m_view->hasImage(), "the image of a camera that is not selected is shown");
}

void CViewerTest::unplugsAndMakesBusy()
{
    QMenu *const menu = m_window->getSimulationMenu();
    const auto toggle = [menu](int entry) {
        emit menu->aboutToShow();
        menu->actions().constFirst()->menu()->actions().at(entry)->trigger();
    };
    const auto *const model = m_tree->getModel();
    toggle(0);
    QTRY_COMPARE(model->getCameraCount(), 11);
    toggle(0);
    QTRY_COMPARE(model->getCameraCount(), 12);
    toggle(1);
    const QModelIndex state = model->findId(camera(0)->getId()).siblingAtColumn(4);
    QTRY_COMPARE(state.data().toString(), "In use elsewhere");
    toggle(1);
    QTRY_COMPARE(state.data().toString(), "Ready");
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
    nextPage.hide();
    QTRY_VERIFY(startsCamera());
    QVERIFY(m_window->close());
}

void CViewerTest::otherDialogsLockNothing()
{
    QDialog modeless(m_window);
    modeless.show();
    m_window->findChild<QAction *>("about")->trigger();
    QVERIFY(QApplication::activeModalWidget());
    QVERIFY(startsCamera());
    QVERIFY(m_window->close());
}

void CViewerTest::runningUpdateKeepsTheWindowOpen()
{
    const auto updates = m_viewer->getUpdateService();
    const auto infos = updates->getFirmwareUpdateInfos(SAMPLE_FILE, {});
    const auto job = updates->createDeviceFirmwareUpdate(camera(0), infos.constFirst());
    QVERIFY(job);
    std::thread worker([&job] { job->executeFirmwareUpdate(); });
    const bool running = QTest::qWaitFor([this] { return m_pool->isUpdateRunning(); });
    const bool closed = m_window->close();
    const QString message = m_window->statusBar()->currentMessage();
    worker.join();
    QVERIFY(running);
    QVERIFY(!closed);
    QVERIFY2(message.contains("update"), qPrintable(message));
    QTRY_VERIFY(!m_pool->isUpdateRunning());
    QVERIFY(m_window->close());
}

void CViewerTest::remembersPlaceAndLanguage()
{
    m_window->findChild<QAction *>("language_ja")->trigger();
    QCOMPARE(CLanguage::choose({}), "ja");
    QCOMPARE(CLanguage::choose("ko"), "ko");
    CLanguage::remember("../../x");
    QCOMPARE(CLanguage::choose({}), "en");
    m_window->resize(712, 501);
    m_window->getToolBar()->hide();
    QVERIFY(m_window->close());
    init();
    QCOMPARE(m_window->size(), QSize(712, 501));
    QVERIFY(!m_window->getToolBar()->isVisible());
}

void CViewerTest::closingEndsTheApplication()
{
    QTimer::singleShot(0, m_window, &QWidget::close);
    QCOMPARE(QCoreApplication::exec(), 0);
}

QTEST_MAIN(CViewerTest)

#include "tst_viewer.moc"
