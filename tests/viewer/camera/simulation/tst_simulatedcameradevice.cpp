#include "viewer/camera/simulation/simulatedcameradevice.h"

#include "viewer/camera/cameraerror.h"
#include "viewer/camera/simulation/firmwareimage.h"
#include "viewer/camera/simulation/firmwarestatefile.h"
#include "viewer/camera/simulation/simulatedcamera.h"
#include "viewer/camera/simulation/simulationnotifier.h"

#include <QBuffer>
#include <QTest>

#include <functional>

using namespace Viewer::Camera;
using namespace Viewer::Camera::Simulation;
using namespace std::chrono_literals;

/// One camera on its table: what it is, its device, which is open, and its memory.
struct CBench
{
    explicit CBench(const CScriptedFaults &scripted = {})
        : faults(scripted)
    {
        device.open(60s);
    }

    void upload(QByteArray image = "model: M-1\nversion: 2.0.0\n\n" + QByteArray(50'000, 'x'),
                std::chrono::milliseconds limit = 60s)
    {
        QBuffer source(&image);
        source.open(QIODevice::ReadOnly);
        device.uploadFile("FirmwareImage", source, image.size(), {}, limit);
    }

    QString getVersion() const { return camera->getSnapshot()->firmwareVersion; }

    const CScriptedFaults faults;
    std::shared_ptr<CFirmwareStateFile> memory = std::make_shared<CFirmwareStateFile>("");
    std::shared_ptr<CSimulatedCamera> camera = std::make_shared<CSimulatedCamera>(
        CCameraDescriptionEntry{
            {"cam", "Bench camera", "M-1", "77", "R1", "1.0.0", 0, {}, {}, {}}, 100'000, faults},
        1000.0, memory, std::make_shared<CSimulationNotifier>());
    CSimulatedCameraDevice device{camera};
};

/// @p operation has to throw a CCameraError that names the camera and @p cause.
static void verifyFault(const char *cause, const std::function<void()> &operation)
{
    QString message = "no error";
    try {
        operation();
    } catch (const CCameraError &error) {
        message = error.getMessage();
    }
    QVERIFY2(message.startsWith("Camera Bench camera: ") && message.contains(cause),
             qPrintable(message));
}

/// @p operation has to throw a CCameraError that says whether the camera @p mayHaveChanged.
static void verifyChange(bool mayHaveChanged, const std::function<void()> &operation)
{
    try {
        operation();
        QFAIL("no error");
    } catch (const CCameraError &error) {
        QVERIFY2((error.getChange() == CCameraError::EChange::Possible) == mayHaveChanged,
                 qPrintable(error.getMessage()));
    }
}

class CSimulatedCameraDeviceTest : public QObject
{
    Q_OBJECT

private slots:
    void installsOnlyWhatWasUploadedActivatedAndRestarted();
    void everyOperationKeepsItsTimeLimit();
    void tellsWhetherItMayHaveChanged();
};

void CSimulatedCameraDeviceTest::installsOnlyWhatWasUploadedActivatedAndRestarted()
{
    CBench bench;
    const auto activate = [&bench] { bench.device.executeCommand(ACTIVATE_COMMAND, 5s); };
    verifyFault("no complete firmware image", activate);
    bench.upload("just some text\n\n");
    verifyFault("does not accept the uploaded file", activate);
    bench.upload("model: M-2\nversion: 2.0.0\n\n");
    verifyFault("is for model M-2, not for M-1", activate);
    bench.upload();
    bench.device.resetAndWait(60s);
    QCOMPARE(bench.getVersion(), QString("1.0.0"));
    bench.upload();
    activate();
    QCOMPARE(bench.getVersion(), QString("1.0.0"));
    bench.device.resetAndWait(60s);
    QCOMPARE(bench.getVersion(), QString("2.0.0"));
    QCOMPARE(bench.memory->getVersion("cam"), QString("2.0.0"));
}

void CSimulatedCameraDeviceTest::everyOperationKeepsItsTimeLimit()
{
    CBench bench;
    verifyFault("within 0.01 s", [&] { (void)bench.device.readFeature("Any", 10ms); });
    verifyFault("within 0.01 s", [&] { bench.device.writeFeature("Any", "", 10ms); });
    verifyFault("within 0.01 s", [&] { bench.device.executeCommand("Any", 10ms); });
    verifyFault("within 0.1 s", [&] { bench.upload(QByteArray(50'000, 'x'), 100ms); });
    verifyFault("within 0.1 s", [&] { bench.device.resetAndWait(100ms); });
    bench.device.close();
    verifyFault("within 0.01 s", [&] { bench.device.open(10ms); });
}

void CSimulatedCameraDeviceTest::tellsWhetherItMayHaveChanged()
{
    CBench bench;
    verifyChange(false, [&] { bench.device.writeFeature("Device1", "", 5s); });
    verifyChange(false, [&] { bench.device.executeCommand(ACTIVATE_COMMAND, 5s); });
    verifyChange(true, [&] { bench.device.writeFeature("Any", "", 10ms); });
    verifyChange(true, [&] { bench.device.resetAndWait(100ms); });
    verifyChange(false, [&] { bench.device.close(), bench.device.writeFeature("Any", "", 5s); });
    CScriptedFaults refuses;
    refuses.writeRefused = true;
    verifyChange(false, [&] { CBench(refuses).device.writeFeature("Any", "", 5s); });
    verifyChange(false, [&] { CBench(refuses).upload(); });
    for (const qint64 byte : {0, 1, 16 * 1024, 50'000}) {
        CScriptedFaults fails, vanishes;
        fails.uploadFailsAtByte = vanishes.vanishesAtByte = byte;
        verifyChange(byte > 0, [&] { CBench(fails).upload(); });
        verifyChange(byte > 0, [&] { CBench(vanishes).upload(); });
    }
}

QTEST_GUILESS_MAIN(CSimulatedCameraDeviceTest)
#include "tst_simulatedcameradevice.moc"
