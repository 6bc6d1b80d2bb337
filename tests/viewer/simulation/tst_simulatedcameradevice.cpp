#include "viewer/camerapool/simulation/simulatedcameradevice.h"

#include "viewer/camerapool/cameraerror.h"
#include "viewer/camerapool/simulation/firmwareimage.h"
#include "viewer/camerapool/simulation/firmwarestatefile.h"
#include "viewer/camerapool/simulation/simulatedcamera.h"
#include "viewer/camerapool/simulation/simulationnotifier.h"

#include <QBuffer>
#include <QTest>

#include <atomic>
#include <thread>

using namespace Viewer::CameraPool;
using namespace Viewer::CameraPool::Simulation;
using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds Limit = 60s;

/// One camera on its table: what it is, its device and its memory.
struct CBench
{
    explicit CBench(const CScriptedFaults &faults = {}, double speedFactor = 1000.0)
    {
        CCameraDescriptionEntry entry;
        entry.camera = {QStringLiteral("cam"),
                        QStringLiteral("Bench camera"),
                        QStringLiteral("M-1"),
                        QStringLiteral("77"),
                        QStringLiteral("R1"),
                        QStringLiteral("1.0.0"),
                        0};
        entry.uploadSpeed = 100'000;
        entry.faults = faults;
        camera = std::make_shared<CSimulatedCamera>(entry, speedFactor, memory,
                                                    std::make_shared<CSimulationNotifier>());
        device = std::make_unique<CSimulatedCameraDevice>(camera);
    }

    void upload(QByteArray image = "model: M-1\nversion: 2.0.0\n\n" + QByteArray(50'000, 'x'))
    {
        QBuffer source(&image);
        source.open(QIODevice::ReadOnly);
        device->uploadFile(
            QStringLiteral("FirmwareImage"), source, image.size(),
            [this](qint64 done) { bytesDone.append(done); }, Limit);
    }

    QString readVersion()
    {
        return device->readFeature(QStringLiteral("DeviceFirmwareVersion"), Limit);
    }

    void activate()
    {
        device->executeCommand(QString::fromLatin1(ActivateCommand), Limit);
    }

    std::shared_ptr<CFirmwareStateFile> memory = std::make_shared<CFirmwareStateFile>(QString());
    std::shared_ptr<CSimulatedCamera> camera;
    std::unique_ptr<CSimulatedCameraDevice> device;
    QVector<qint64> bytesDone;
};

/// The message of the CCameraError that @p operation throws; empty: it throws none.
template <typename TOperation>
QString getFault(const TOperation &operation)
{
    try {
        operation();
    } catch (const CCameraError &error) {
        return error.getMessage();
    }
    return QString();
}

void verifyFault(const QString &message, const char *cause)
{
    QVERIFY2(message.startsWith(QLatin1String("Camera Bench camera: ")), qPrintable(message));
    QVERIFY2(message.contains(QLatin1String(cause)), qPrintable(message));
}

} // namespace

class CSimulatedCameraDeviceTest : public QObject
{
    Q_OBJECT

private slots:
    void installsOnlyWhatWasUploadedActivatedAndRestarted();
    void refusesToActivate_data();
    void refusesToActivate();
    void writtenFeaturesLastUntilReset();
    void uploadReportsEveryByte();
    void everyOperationKeepsItsTimeLimit_data();
    void everyOperationKeepsItsTimeLimit();
    void oneUserAtATime();
    void unpluggingEndsWhateverIsBeingDone_data();
    void unpluggingEndsWhateverIsBeingDone();
    void uploadStopsWhereScripted();
    void vanishedCameraCanBePluggedIn();
    void lateReturnStillInstalls();
    void neverReturningCameraIsGone();
};

void CSimulatedCameraDeviceTest::installsOnlyWhatWasUploadedActivatedAndRestarted()
{
    CBench bench;
    bench.device->open(Limit);
    bench.device->resetAndWait(Limit);
    QCOMPARE(bench.readVersion(), QStringLiteral("1.0.0"));

    bench.upload();
    bench.device->resetAndWait(Limit);
    QCOMPARE(bench.readVersion(), QStringLiteral("1.0.0"));

    bench.upload();
    bench.activate();
    QCOMPARE(bench.readVersion(), QStringLiteral("1.0.0"));
    QCOMPARE(bench.memory->getVersion(QStringLiteral("cam")), QString());
    bench.device->resetAndWait(Limit);
    QCOMPARE(bench.readVersion(), QStringLiteral("2.0.0"));
    QCOMPARE(bench.memory->getVersion(QStringLiteral("cam")), QStringLiteral("2.0.0"));
    QCOMPARE(bench.camera->getSnapshot()->firmwareVersion, QStringLiteral("2.0.0"));
}

void CSimulatedCameraDeviceTest::refusesToActivate_data()
{
    QTest::addColumn<QByteArray>("image");
    QTest::addColumn<QByteArray>("cause");
    QTest::newRow("nothing uploaded") << QByteArray() << QByteArray("no complete firmware image");
    QTest::newRow("no image") << QByteArray("just some text\n\n")
                              << QByteArray("does not accept the uploaded file");
    QTest::newRow("other model") << QByteArray("model: M-2\nversion: 2.0.0\n\n")
                                 << QByteArray("is for model M-2, not for M-1");
}

void CSimulatedCameraDeviceTest::refusesToActivate()
{
    QFETCH(QByteArray, image);
    QFETCH(QByteArray, cause);
    CBench bench;
    bench.device->open(Limit);
    if (!image.isEmpty())
        bench.upload(image);
    verifyFault(getFault([&bench] { bench.activate(); }), cause.constData());
}

void CSimulatedCameraDeviceTest::writtenFeaturesLastUntilReset()
{
    CBench bench;
    bench.device->open(Limit);
    const QString name = QStringLiteral("FirmwareUpdateMode");
    verifyFault(getFault([&] { (void)bench.device->readFeature(name, Limit); }),
                "no feature \"FirmwareUpdateMode\"");
    bench.device->writeFeature(name, QStringLiteral("On"), Limit);
    QCOMPARE(bench.device->readFeature(name, Limit), QStringLiteral("On"));
    verifyFault(getFault([&] {
                    bench.device->writeFeature(QStringLiteral("DeviceModelName"),
                                               QStringLiteral("M-2"), Limit);
                }),
                "no feature \"DeviceModelName\" that can be written");
    bench.device->resetAndWait(Limit);
    verifyFault(getFault([&] { (void)bench.device->readFeature(name, Limit); }), "no feature");
}

void CSimulatedCameraDeviceTest::uploadReportsEveryByte()
{
    CBench bench;
    bench.device->open(Limit);
    bench.upload(QByteArray(40'000, 'x'));
    QVERIFY(bench.bytesDone.size() > 1);
    QVERIFY(std::is_sorted(bench.bytesDone.cbegin(), bench.bytesDone.cend()));
    QCOMPARE(bench.bytesDone.constLast(), qint64(40'000));

    QByteArray tooShort("abc");
    QBuffer source(&tooShort);
    QVERIFY(source.open(QIODevice::ReadOnly));
    verifyFault(getFault([&] {
                    bench.device->uploadFile(QStringLiteral("FirmwareImage"), source, 4, {}, Limit);
                }),
                "ended after 3 of 4 bytes");
}

void CSimulatedCameraDeviceTest::everyOperationKeepsItsTimeLimit_data()
{
    QTest::addColumn<int>("operation");
    QTest::newRow("open") << 0;
    QTest::newRow("read") << 1;
    QTest::newRow("write") << 2;
    QTest::newRow("execute") << 3;
    QTest::newRow("upload") << 4;
    QTest::newRow("reset") << 5;
}

void CSimulatedCameraDeviceTest::everyOperationKeepsItsTimeLimit()
{
    QFETCH(int, operation);
    CBench bench;
    if (operation > 0)
        bench.device->open(Limit);
    const QString message = getFault([&bench, operation] {
        const QString name = QStringLiteral("Any");
        QByteArray image(50'000, 'x');
        QBuffer source(&image);
        source.open(QIODevice::ReadOnly);
        switch (operation) {
        case 0:
            return bench.device->open(10ms);
        case 1:
            return (void)bench.device->readFeature(name, 10ms);
        case 2:
            return bench.device->writeFeature(name, name, 10ms);
        case 3:
            return bench.device->executeCommand(name, 10ms);
        case 4:
            return bench.device->uploadFile(name, source, image.size(), {}, 100ms);
        default:
            return bench.device->resetAndWait(100ms);
        }
    });
    verifyFault(message, operation == 5 ? "within 0.1 s" : "did not answer within 0.");
    bench.device->close();
    // The camera is free for the next one.
    CSimulatedCameraDevice other(bench.camera);
    QCOMPARE(getFault([&other] { other.open(Limit); }), QString());
}

void CSimulatedCameraDeviceTest::oneUserAtATime()
{
    CBench bench;
    CSimulatedCameraDevice other(bench.camera);
    bench.device->open(Limit);
    verifyFault(getFault([&other] { other.open(Limit); }), "already being updated");
    bench.camera->setBusy(true);
    QVERIFY(!bench.camera->isBusy()); // somebody else has it
    bench.device->close();
    bench.camera->setBusy(true);
    verifyFault(getFault([&other] { other.open(Limit); }), "another application uses it");
    bench.camera->setPlugged(false);
    verifyFault(getFault([&other] { other.open(Limit); }), "does not answer");
    verifyFault(getFault([&other] { (void)other.readFeature(QStringLiteral("A"), Limit); }),
                "it is not open");
}

void CSimulatedCameraDeviceTest::unpluggingEndsWhateverIsBeingDone_data()
{
    QTest::addColumn<bool>("inReset");
    QTest::newRow("upload") << false;
    QTest::newRow("reset") << true;
}

void CSimulatedCameraDeviceTest::unpluggingEndsWhateverIsBeingDone()
{
    QFETCH(bool, inReset);
    // So slow that the test would run into its own time limit if it had to wait.
    CBench bench({}, 0.001);
    QString message;
    std::atomic<bool> begun = false;
    std::thread thread([&] {
        message = getFault([&] {
            QString cause;
            if (inReset) {
                const int session = bench.camera->connect(cause);
                begun = true;
                if (bench.camera->restart(session, 4s, 30s, {})
                    == CSimulatedCamera::ERestart::Unplugged)
                    throw CCameraError(QStringLiteral("Bench camera"),
                                       QStringLiteral("connection was lost"));
            } else {
                begun = true;
                bench.device->open(Limit);
            }
        });
    });
    while (!begun)
        std::this_thread::yield();
    bench.camera->setPlugged(false);
    thread.join();
    // If the cable was faster than the thread, the camera could not be reached to begin with.
    QVERIFY2(message.contains(QLatin1String("connection was lost"))
                 || message.contains(QLatin1String("does not answer")),
             qPrintable(message));
}

void CSimulatedCameraDeviceTest::uploadStopsWhereScripted()
{
    CScriptedFaults faults;
    faults.uploadFailsAtByte = 20'001;
    CBench bench(faults);
    bench.device->open(Limit);
    verifyFault(getFault([&bench] { bench.upload(QByteArray(40'000, 'x')); }),
                "broke off after 20001 of 40000 bytes");
    QCOMPARE(bench.bytesDone.constLast(), qint64(20'001));
}

void CSimulatedCameraDeviceTest::vanishedCameraCanBePluggedIn()
{
    CScriptedFaults faults;
    faults.vanishesAtByte = 0;
    CBench bench(faults);
    bench.device->open(Limit);
    verifyFault(getFault([&bench] { bench.upload(); }), "connection was lost");
    QVERIFY(bench.bytesDone.isEmpty());
    QVERIFY(!bench.camera->getSnapshot());
    bench.device->close();
    bench.camera->setPlugged(true);
    QVERIFY(bench.camera->getSnapshot());
    QCOMPARE(getFault([&bench] { bench.device->open(Limit); }), QString());
}

void CSimulatedCameraDeviceTest::lateReturnStillInstalls()
{
    CScriptedFaults faults;
    faults.returnsLate = true;
    CBench bench(faults);
    bench.device->open(Limit);
    bench.upload();
    bench.activate();
    verifyFault(getFault([&bench] { bench.device->resetAndWait(10s); }), "did not come back");
    QCOMPARE(bench.camera->getSnapshot()->firmwareVersion, QStringLiteral("2.0.0"));
}

void CSimulatedCameraDeviceTest::neverReturningCameraIsGone()
{
    CScriptedFaults faults;
    faults.neverReturnsFromReset = true;
    CBench bench(faults);
    bench.device->open(Limit);
    bench.upload();
    bench.activate();
    verifyFault(getFault([&bench] { bench.device->resetAndWait(Limit); }), "within 60 s");
    QVERIFY(!bench.camera->isPlugged());
    bench.camera->setPlugged(true);
    QCOMPARE(bench.camera->getSnapshot()->firmwareVersion, QStringLiteral("1.0.0"));
}

QTEST_GUILESS_MAIN(CSimulatedCameraDeviceTest)
#include "tst_simulatedcameradevice.moc"
