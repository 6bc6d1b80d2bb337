#include "support/camerakinds.h"
#include "support/privatebus.h"
#include "tests/viewer/update/jobrecorder.h"
#include "tests/viewer/update/updatefixture.h"
#include "viewer/appcore/seriesnotifier.h"
#include "viewer/text/language.h"

#include "camerapool/icameraenumerationservice.h"
#include "camerapool/idevicefirmwareupdateservice.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QtTest>
#include <QWidget>

using namespace TestSupport;
using namespace std::chrono_literals;
using Viewer::AppCore::CSeriesNotifier;
using Viewer::CameraPool::CCameraPool;

/// Series of updates in a real pool, and what a desktop is told of them over a real bus.
class CSeriesNotifierTest : public QObject
{
    Q_OBJECT

private slots:
    void silentBusStopsNobody();
    void tellsOfLongSeries_data();
    void tellsOfLongSeries();

private:
    /// Two cameras, the first of which is unplugged, so that its update fails. Returns when the
    /// notifier has seen the end of the series; true: it tells of it.
    bool updateCameras(int shortest);

    std::unique_ptr<CCameraPool> m_pool;
    std::unique_ptr<CSeriesNotifier> m_notifier;
};

bool CSeriesNotifierTest::updateCameras(int shortest)
{
    using namespace Plugin::CameraPool;
    m_notifier.reset();
    m_pool = std::make_unique<CCameraPool>(makeCameraKinds({"--speed", "20"}));
    m_notifier = std::make_unique<CSeriesNotifier>(*m_pool, shortest * 1ms, 500ms);
    QSignalSpy ended(m_notifier.get(), &CSeriesNotifier::seriesEnded);
    QSignalSpy found(m_pool->getService<ICameraEnumerationService>().data(),
                     &ICameraEnumerationService::enumerationChanged);
    m_pool->start();
    found.wait();
    const QTemporaryDir folder;
    writeUpdateFile(folder.filePath("update.guf"), {"2.0.0"}, 20'000);
    const auto service = m_pool->getService<IDeviceFirmwareUpdateService>();
    const auto info = service->getFirmwareUpdateInfos(folder.filePath("update.guf"), {}).first();
    const auto layers = m_pool->getService<ICameraEnumerationService>();
    const auto cameras = layers->getTransportLayerInfoVector().first()->getCameraInfoList();
    const auto failing = service->createDeviceFirmwareUpdate(cameras.at(0), info);
    const auto working = service->createDeviceFirmwareUpdate(cameras.at(1), info);
    setSwitch(*m_pool, "plugged:" + cameras.at(0)->getId(), false);
    executeOnThread(*failing);
    executeOnThread(*failing); // as at the end of a series that was cancelled
    std::thread thread([&working] { working->executeFirmwareUpdate(); });
    ended.wait(20'000);
    thread.join();
    return ended.value(0).value(0).toBool();
}

void CSeriesNotifierTest::silentBusStopsNobody()
{
    const QTemporaryDir folder;
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + folder.filePath("bus").toLocal8Bit());
    QLocalServer silent;
    QVERIFY(silent.listen(folder.filePath("bus")));
    QVERIFY(updateCameras(0));
    QVERIFY(silent.waitForNewConnection(5000));
    QLocalSocket *const client = silent.nextPendingConnection();
    QVERIFY(client->waitForReadyRead());
    QVERIFY2(!client->waitForDisconnected(0), "this thread was kept until the other had given up");
    client->abort();
    m_notifier.reset();
}

void CSeriesNotifierTest::tellsOfLongSeries_data()
{
    QTest::addColumn<bool>("isActive");
    QTest::addColumn<int>("shortest"); // milliseconds
    QTest::addColumn<QStringList>("calls");
    QTest::newRow("in the background")
        << false << 20
        << QStringList("\"Nuvex Viewer\" 0 \"\" \"The firmware updates have ended\" "
                       "\"1 update succeeded.\n1 update failed.\" [] {} -1");
    QTest::newRow("too short") << false << 3600000 << QStringList();
    // The last one: without a display, an application that is active once remains so.
    QTest::newRow("in the foreground") << true << 0 << QStringList();
}

void CSeriesNotifierTest::tellsOfLongSeries()
{
    QFETCH(bool, isActive);
    QFETCH(int, shortest);
    QFETCH(QStringList, calls);
    const QString missing = CPrivateBus::findMissing();
    if (!missing.isEmpty())
        QSKIP(qPrintable(missing));
    CPrivateBus bus;
    bus.addMock("org.freedesktop.Notifications", {"--template", "notification_daemon"});
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.getAddress());
    const Viewer::Text::CLanguage language("en");
    QWidget window;
    window.setVisible(isActive);
    QTRY_COMPARE(QGuiApplication::applicationState() == Qt::ApplicationActive, isActive);

    QCOMPARE(updateCameras(shortest), !calls.isEmpty());
    m_notifier.reset(); // has sent what it sends
    QCOMPARE(bus.getCalls("Notify"), calls);
}

QTEST_MAIN(CSeriesNotifierTest)
#include "tst_seriesnotifier.moc"
