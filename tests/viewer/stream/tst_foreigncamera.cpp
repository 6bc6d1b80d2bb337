#include "support/camerakinds.h"
#include "support/loopbackonly.h"
#include "viewer/camerapool/camerapool.h"

#include "camerapool/icameraenumerationservice.h"
#include "camerapool/icamerastatusservice.h"
#include "camerapool/icamerastreamcontrolservice.h"

#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QtTest>

using namespace Plugin::CameraPool;
using Viewer::CameraPool::CCameraPool;

/// Images of a camera program that this project has not written.
class CForeignCameraTest : public QObject
{
    Q_OBJECT

private slots:
    void streamsUntilTheWizardStarts();
};

void CForeignCameraTest::streamsUntilTheWizardStarts()
{
    SKIP_IF_OTHERS_HEAR_IT();
    const QString program = QStandardPaths::findExecutable("arv-fake-gv-camera-0.8");
    if (program.isEmpty())
        QSKIP("aravis-tools are not installed.");
    QProcess camera;
    camera.start(program, {"-i", "127.0.0.1", "-s", "FAKE1"});
    QVERIFY(camera.waitForStarted());
    CCameraPool pool(
        TestSupport::makeCameraKinds({"--no-simulation", "--camera-address", "127.0.0.1"}));
    pool.setWorker(WORKER, "en");
    const auto enumeration = pool.getService<ICameraEnumerationService>();
    pool.start();
    const auto getCamera = [&enumeration]() -> CameraInfoPtr {
        const auto layers = enumeration->getTransportLayerInfoVector();
        return layers.isEmpty() ? nullptr : layers.first()->getCameraInfoList().value(0);
    };
    // It may not be ready yet.
    QTRY_VERIFY(getCamera() || (enumeration->refreshEnumeration(), false));
    const QString id = getCamera()->getId();
    QVERIFY2(id.contains("FAKE1"), qPrintable(id));

    int frames = 0;
    qint64 incomplete = -1;
    connect(&pool, &CCameraPool::frameReady, this,
            [&frames](const QString &, const Viewer::Image::CFrame &frame) {
                frames += frame.width * frame.height == frame.size ? 1 : 0; // Mono8
            });
    connect(&pool, &CCameraPool::statisticsChanged, this,
            [&incomplete](const QString &, const auto &statistics, qint64) {
                incomplete = statistics.incompleteFrames;
            });
    QSignalSpy failed(&pool, &CCameraPool::streamFailed);
    for (int round = 0; round < 2; ++round) {
        frames = 0;
        incomplete = -1;
        QString error;
        QVERIFY2(pool.startAcquisition(id, &error), qPrintable(error));
        QTRY_VERIFY_WITH_TIMEOUT(frames >= 50 && incomplete >= 0, 30'000);
        QCOMPARE(incomplete, qint64(0));
        QVERIFY(pool.getService<ICameraStatusService>()->isCameraBusy(getCamera()));
        // What the wizard asks for before it begins.
        pool.getService<ICameraStreamControlService>()->stopAllCameras();
        QVERIFY(!pool.getService<ICameraStatusService>()->isCameraBusy(getCamera()));
        const int count = frames;
        QCoreApplication::processEvents();
        QCOMPARE(frames, count);
    }
    QVERIFY2(failed.isEmpty(), qPrintable(failed.value(0).value(1).toString()));
    camera.terminate();
    QVERIFY(camera.waitForFinished());
}

QTEST_GUILESS_MAIN(CForeignCameraTest)
#include "tst_foreigncamera.moc"
