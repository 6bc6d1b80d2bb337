// Before anything of Qt, whose keyword "signals" is a name in GLib.
#include <arv.h>

#include "support/loopbackonly.h"
#include "support/vieweroptions.h"
#include "support/virtualcameraprocess.h"
#include "viewer/camera/genicam/genicam.h"
#include "viewer/camera/icameradevice.h"
#include "viewer/camerapool/camerapool.h"

#include "camerapool/icameraenumerationservice.h"

#include <QSignalSpy>
#include <QtTest>

using TestSupport::CVirtualCameraProcess;
using Viewer::Camera::CCameraSnapshot;
using Viewer::Camera::GenICam::CGenICam;
using Viewer::Camera::GenICam::CSearchOptions;

/// Searches by broadcast, which are only made where nobody but this machine's own cameras can hear
/// them.
class CNetworkSearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsWhatTheCommandLineAsksFor_data();
    void listsWhatTheCommandLineAsksFor();
    void findsCamerasByBroadcast();
    void servesAnotherClient();
};

void CNetworkSearchTest::listsWhatTheCommandLineAsksFor_data()
{
    const QString first = CVirtualCameraProcess::getOwnAddress(1).toString();
    const QString second = CVirtualCameraProcess::getOwnAddress(2).toString();
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("realCameras");
    QTest::addColumn<bool>("simulates");
    QTest::newRow("nothing") << QStringList() << QStringList() << true;
    QTest::newRow("no simulation") << QStringList{"--no-simulation"} << QStringList() << false;
    QTest::newRow("an address") << QStringList{"--camera-address", second} << QStringList{"2"}
                                << true;
    QTest::newRow("two addresses")
        << QStringList{"--camera-address", second, "--camera-address", first, "--no-simulation"}
        << QStringList{"2", "1"} << false;
    QTest::newRow("network") << QStringList{"--network", "--no-simulation"} << QStringList{"1", "2"}
                             << false;
}

void CNetworkSearchTest::listsWhatTheCommandLineAsksFor()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, realCameras);
    QFETCH(bool, simulates);
    if (arguments.contains("--network"))
        SKIP_IF_OTHERS_HEAR_IT();
    const CVirtualCameraProcess first(CVirtualCameraProcess::getOwnAddress(1), {"--serial", "1"});
    const CVirtualCameraProcess second(CVirtualCameraProcess::getOwnAddress(2), {"--serial", "2"});
    Viewer::CameraPool::CCameraPool pool(TestSupport::readOptions(arguments).kinds);
    const auto enumeration = pool.getService<Plugin::CameraPool::ICameraEnumerationService>();
    QSignalSpy spy(enumeration.data(),
                   &Plugin::CameraPool::ICameraEnumerationService::enumerationChanged);
    pool.start();
    QVERIFY(spy.wait());
    QStringList found;
    bool hasSimulated = false;
    const auto layers = enumeration->getTransportLayerInfoVector();
    for (const auto &layer : layers) {
        for (const auto &camera : layer->getCameraInfoList()) {
            if (camera->getModelName() == "GV-1400M" && camera->getId().startsWith("GEV:Korvane"))
                found.append(camera->getSerialNumber());
            else
                hasSimulated = true;
        }
    }
    if (arguments.contains("--network"))
        found.sort(); // in whatever order they answer
    QCOMPARE(found, realCameras);
    QCOMPARE(hasSimulated, simulates);
}

void CNetworkSearchTest::findsCamerasByBroadcast()
{
    SKIP_IF_OTHERS_HEAR_IT();
    CVirtualCameraProcess first(CVirtualCameraProcess::getOwnAddress(1), {"--serial", "1"});
    CVirtualCameraProcess second(CVirtualCameraProcess::getOwnAddress(2),
                                 {"--serial", "2", "--firmware", "1.5.0"});
    CGenICam cameras(CSearchOptions{{CVirtualCameraProcess::getOwnAddress(2)}});
    QCOMPARE(cameras.enumerate().value(0).cameras.size(), 1);

    cameras.getSwitches().first().set(true);
    const auto layers = cameras.enumerate();
    QCOMPARE(layers.size(), 2);
    QMap<QString, QString> versions;
    for (const CCameraSnapshot &camera : layers[0].cameras) {
        versions.insert(camera.serialNumber, camera.firmwareVersion);
        QCOMPARE(camera.statusCode, 0);
    }
    // The camera whose address is known is there once.
    QCOMPARE(layers[0].cameras.size(), 2);
    QCOMPARE(versions, (QMap<QString, QString>{{"1", "1.2.0"}, {"2", "1.5.0"}}));
    QVERIFY(first.end().value("discovery") >= 2);
    QCOMPARE(second.end().value("readmem"), 0); // none was opened
}

void CNetworkSearchTest::servesAnotherClient()
{
    SKIP_IF_OTHERS_HEAR_IT();
    CVirtualCameraProcess camera(CVirtualCameraProcess::getOwnAddress(3), {"--serial", "3"});
    GError *error = nullptr;
    ArvCamera *const client = arv_camera_new(
        CVirtualCameraProcess::getOwnAddress(3).toString().toLatin1().constData(), &error);
    QVERIFY2(client, error ? error->message : "");
    QCOMPARE(arv_camera_get_model_name(client, nullptr), "GV-1400M");
    arv_camera_set_float(client, "ExposureTime", 250.0, &error);
    QVERIFY(!error);
    QCOMPARE(arv_camera_get_float(client, "ExposureTime", nullptr), 250.0);
    arv_camera_set_boolean(client, "ReverseX", TRUE, nullptr);
    QVERIFY(arv_camera_get_boolean(client, "ReverseX", nullptr));
    arv_camera_set_string(client, "FirmwareUpdateMode", "On", nullptr);
    QCOMPARE(arv_camera_get_string(client, "FirmwareUpdateMode", nullptr), "On");
    arv_camera_set_string(client, "FirmwareUpdateMode", "Perhaps", &error);
    QVERIFY(error);
    g_clear_error(&error);
    g_object_unref(client);
    QTRY_VERIFY(camera.getEvents().contains("control released"));
}

QTEST_GUILESS_MAIN(CNetworkSearchTest)
#include "tst_networksearch.moc"
