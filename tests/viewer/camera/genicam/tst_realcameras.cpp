#include "support/camerakinds.h"
#include "support/loopbackonly.h"
#include "support/virtualcameraprocess.h"
#include "tests/viewer/update/jobrecorder.h"
#include "viewer/camera/cameraerror.h"
#include "viewer/camera/genicam/genicam.h"
#include "viewer/camera/icameradevice.h"
#include "viewer/camerapool/camerapool.h"

#include "camerapool/icameraenumerationservice.h"
#include "camerapool/idevicefirmwareupdateservice.h"

#include <QNetworkDatagram>
#include <QSignalSpy>
#include <QtTest>
#include <QUdpSocket>

#include <future>

using namespace Plugin::CameraPool;
using TestSupport::CVirtualCameraProcess;
using Viewer::Camera::CCameraError;
using Viewer::Camera::ICameraDevice;
using Viewer::Camera::GenICam::CGenICam;
using Viewer::Camera::GenICam::CSearchOptions;
using Viewer::CameraPool::CCameraPool;

using Operation = std::function<void(ICameraDevice &)>;
Q_DECLARE_METATYPE(Operation)

static const bool IS_ON_USB = CVirtualCameraProcess::isOnUsb();

static const QString CAMERA
    = QString("Camera 50000001 (GV-1400M, %1").arg(IS_ON_USB ? "on USB)" : "127.");

/// Update jobs against virtual cameras in processes of their own, over the loopback interface or an
/// emulated USB.
class CRealCamerasTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void updatesACamera_data();
    void updatesACamera();
    void tellsEachFault_data();
    void tellsEachFault();
    void endsEachOperation_data();
    void endsEachOperation();
    void leavesACameraInUseAlone();
    void seesPlugsAtOnce();
    void streamsOnWhenPluggedInAgain();
    void refusesTwoCamerasOfOneIdentity();
    void refusesAnotherCameraAtTheAddress();
    void closesTheFileOfEachUpload();
    void takesSoundAnswersOnly();

private:
    template <typename Service>
    [[nodiscard]] QSharedPointer<Service> getService() const;

    /// Starts a camera at the next address.
    CVirtualCameraProcess &startCamera(const QStringList &arguments);

    /// Opens a pool that knows the cameras started so far; they are its only ones.
    QVector<CameraInfoPtr> openPool();

    /// The device of the first camera, of nobody that the pool knows.
    std::unique_ptr<ICameraDevice> makeDevice();
    std::unique_ptr<ICameraDevice> openDevice();

    /// The error of opening the camera @p id as it was when m_others saw it.
    QString tryToOpen(const QString &id);

    /// Updates @p camera with the sample while events are processed here; the error, or nothing.
    QString update(const CameraInfoPtr &camera);

    QVector<QHostAddress> m_addresses;
    std::vector<std::unique_ptr<CVirtualCameraProcess>> m_cameras;
    std::unique_ptr<CCameraPool> m_pool;
    std::unique_ptr<CGenICam> m_others;
    QTemporaryDir m_folder;
};

void CRealCamerasTest::init()
{
    if (IS_ON_USB)
        SKIP_IF_OTHERS_HEAR_IT();
    m_others.reset();
    m_pool.reset();
    m_cameras.clear();
    m_addresses.clear();
}

template <typename Service>
QSharedPointer<Service> CRealCamerasTest::getService() const
{
    return m_pool->getService<Service>();
}

CVirtualCameraProcess &CRealCamerasTest::startCamera(const QStringList &arguments)
{
    m_addresses.append(CVirtualCameraProcess::getOwnAddress(m_addresses.size() + 1));
    m_cameras.push_back(
        std::make_unique<CVirtualCameraProcess>(m_addresses.constLast(), arguments));
    return *m_cameras.back();
}

QVector<CameraInfoPtr> CRealCamerasTest::openPool()
{
    QStringList arguments("--no-simulation");
    for (const QHostAddress &address : qAsConst(m_addresses))
        arguments += CVirtualCameraProcess::getSearchOptions(address);
    m_pool = std::make_unique<CCameraPool>(TestSupport::makeCameraKinds(arguments));
    const auto enumeration = getService<ICameraEnumerationService>();
    QSignalSpy spy(enumeration.data(), &ICameraEnumerationService::enumerationChanged);
    m_pool->start();
    spy.wait();
    const auto layers = enumeration->getTransportLayerInfoVector();
    return layers.isEmpty() ? QVector<CameraInfoPtr>() : layers.last()->getCameraInfoList();
}

std::unique_ptr<ICameraDevice> CRealCamerasTest::makeDevice()
{
    m_others = std::make_unique<CGenICam>(IS_ON_USB ? CSearchOptions{{}, true}
                                                    : CSearchOptions{m_addresses});
    const auto layers = m_others->enumerate();
    return m_others->createDevice(layers.last().cameras.value(0).id);
}

std::unique_ptr<ICameraDevice> CRealCamerasTest::openDevice()
{
    auto device = makeDevice();
    device->open(std::chrono::seconds(10));
    return device;
}

QString CRealCamerasTest::tryToOpen(const QString &id)
{
    try {
        m_others->createDevice(id)->open(std::chrono::seconds(10));
    } catch (const CCameraError &error) {
        return error.getMessage();
    }
    return {};
}

QString CRealCamerasTest::update(const CameraInfoPtr &camera)
{
    const auto updates = getService<IDeviceFirmwareUpdateService>();
    QVector<QSharedPointer<IFirmwareUpdateInfo>> fitting;
    bool updatable = false;
    updates->getCompatibleFirmwareUpdates(
        camera, updates->getFirmwareUpdateInfos(SAMPLE_UPDATE, {}), fitting, updatable);
    if (fitting.isEmpty())
        return "no update fits";
    const auto job = updates->createDeviceFirmwareUpdate(camera, fitting.first());
    const TestSupport::CJobRecorder recorder(*job);
    QSignalSpy done(m_pool.get(), &CCameraPool::updateRunningChanged);

    QElapsedTimer lastTurn;
    qint64 longestGap = 0;
    QTimer turns;
    connect(&turns, &QTimer::timeout, this,
            [&] { longestGap = qMax(longestGap, lastTurn.restart()); });
    turns.start(1);
    lastTurn.start();
    std::thread worker([&job] { job->executeFirmwareUpdate(); });
    while (recorder.getAll("done").isEmpty() && recorder.getAll("error").isEmpty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    worker.join();
    qInfo("longest gap of this thread: %lld ms", longestGap);
    return recorder.getAll("done").isEmpty() ? recorder.getError() : QString();
}

void CRealCamerasTest::updatesACamera_data()
{
    QTest::addColumn<QStringList>("arguments");
    const QStringList shortReset{"--reset-ms", "200"};
    QTest::newRow("smallest buffer, answers on after the command for a reset")
        << QStringList{"--buffer", "512", "--reset-delay-ms", "300"};
    QTest::newRow("activation that must be awaited, packed description")
        << QStringList{"--activate-ms", "0", "--activate-reads", "4", "--description", "zip"}
            + shortReset;
    QTest::newRow("buffer of no whole block, short reset")
        << QStringList{"--buffer", "700"} + shortReset;
    const QStringList wire = IS_ON_USB ? QStringList{"--cut-ack", "40", "--mistake-ack", "50"}
                                       : QStringList{"--lose-every", "300"};
    QTest::newRow("largest buffer, bad wire")
        << QStringList{"--buffer", "65536"} + wire + shortReset;
    QTest::newRow("an acknowledge lost") << QStringList{"--lose-ack", "30"} + shortReset;
    // Longer than the library waits for an answer that is not announced.
    QTest::newRow("file opened slowly") << QStringList{"--open-ms", "3000"} + shortReset;
}

void CRealCamerasTest::updatesACamera()
{
    QFETCH(QStringList, arguments);
    const QString flash = m_folder.filePath("flash");
    QFile::remove(flash);
    CVirtualCameraProcess &camera
        = startCamera(arguments + QStringList{"--flash", flash, "--user-name", "hall"});
    const QVector<CameraInfoPtr> found = openPool();
    QCOMPARE(found.size(), 1);
    QCOMPARE(found[0]->getDisplayName(), "hall");
    QCOMPARE(found[0]->getFirmwareVersion(), "1.2.0");

    QCOMPARE(update(found[0]), QString());
    QFile written(flash), payload(SAMPLE_PAYLOAD);
    QVERIFY(written.open(QIODevice::ReadOnly) && payload.open(QIODevice::ReadOnly));
    QVERIFY(written.readAll() == payload.readAll());
    QVERIFY(camera.getEvents().contains("back 2.0.0"));
    const auto enumeration = getService<ICameraEnumerationService>();
    QTRY_COMPARE(enumeration->getTransportLayerInfoVector()
                     .last()
                     ->getCameraInfoList()
                     .value(0)
                     ->getFirmwareVersion(),
                 "2.0.0");
}

void CRealCamerasTest::tellsEachFault_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    QTest::newRow("dies while it is opened")
        << QStringList{"--die-after", "0"} << "it could not be opened: .*it did not answer; check";
    QTest::newRow("dies during the upload")
        << QStringList{"--die-after", "20480"}
        << "writing its file \"FirmwareImage\" failed at byte 16384: .*it did not answer; check";
    if (IS_ON_USB) {
        QTest::newRow("unplugged during the upload") << QStringList{"--unplug-after", "20480"}
                                                     << "writing its file \"FirmwareImage\" failed "
                                                        "at byte 16384: .*it did not answer; check";
        QTest::newRow("stalls during the upload") << QStringList{"--stall-after", "20480"}
                                                  << "writing its file \"FirmwareImage\" failed at "
                                                     "byte 16384: .*it did not answer; check";
    }
    QTest::newRow("comes back with the old version")
        << QStringList{"--old-version"}
        << "its feature \"DeviceFirmwareVersion\" is \"1.2.0\" instead of \"2.0.0\"";
}

void CRealCamerasTest::tellsEachFault()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    startCamera(arguments);
    const QVector<CameraInfoPtr> found = openPool();
    QCOMPARE(found.size(), 1);
    const QString text = update(found[0]);
    QVERIFY2(text.startsWith(CAMERA), qPrintable(text));
    QVERIFY2(text.contains(QRegularExpression(error)), qPrintable(text));
    if (arguments.contains("--stall-after"))
        QCOMPARE(update(found[0]), QString());
}

void CRealCamerasTest::endsEachOperation_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QString>("error");
    QTest::addColumn<bool>("mayHaveChanged");
    const auto row = [](const char *name, const QStringList &arguments, const Operation &operation,
                        const char *error, bool mayHaveChanged) {
        QTest::newRow(name) << arguments << operation << error << mayHaveChanged;
    };
    const auto limit = std::chrono::seconds(1);
    const auto write = [limit](const char *name, const char *value) {
        return [=](ICameraDevice &device) { device.writeFeature(name, value, limit); };
    };
    const auto execute = [limit](const char *name) {
        return [=](ICameraDevice &device) { device.executeCommand(name, limit); };
    };
    const auto upload = [](std::chrono::milliseconds uploadLimit) {
        return [=](ICameraDevice &device) {
            QBuffer source;
            source.setData("version: 2.0.0\n\n" + QByteArray(8192, 'x'));
            source.open(QIODevice::ReadOnly);
            device.uploadFile("FirmwareImage", source, source.size(), {}, uploadLimit);
        };
    };
    const Operation reset = [limit](ICameraDevice &device) { device.resetAndWait(limit); };
    const Operation nothing = [](ICameraDevice &) {};

    row("no such feature", {}, write("Missing", "1"), "it has no feature \"Missing\"", false);
    row("value out of limits", {}, write("ExposureTime", "1e30"), "could not be set to", false);
    row("no such entry", {}, write("FirmwareUpdateMode", "Perhaps"), "could not be set to", false);
    row("no command", {}, execute("ExposureTime"), "is not a command", false);
    row("command refused", {"--refuse", "FirmwareActivate"}, execute("FirmwareActivate"),
        "its command \"FirmwareActivate\" could not be executed: it refused", false);
    row(
        "command without end", {"--activate-ms", "60000"},
        [=](ICameraDevice &device) {
            upload(limit)(device);
            execute("FirmwareActivate")(device);
        },
        "\"FirmwareActivate\" took too long; switch the camera off and on and repeat", true);

    row("file refused", {"--refuse", "FileOperationExecute"}, upload(limit),
        "opening its file \"FirmwareImage\" failed: its command", false);
    row("file operation without end", {"--operation-reads", "1000000"}, upload(limit),
        "opening its file \"FirmwareImage\" failed: it took too long", true);
    row("upload out of time", {}, upload(std::chrono::seconds(0)),
        "took too long; it was broken off after 0 of 8208 bytes", true);
    if (!IS_ON_USB)
        row("somebody else takes control", {"--lose-control", "4096"}, upload(limit),
            "\"FirmwareImage\" failed at byte 4096: .*control over it was lost", true);

    const QString gone = "it did not come back from its reset; switch it off";
    const auto resetRow = [&](const char *name, const QStringList &arguments) {
        row(name, arguments + QStringList{"--reset-ms", "500"}, reset, qPrintable(gone), true);
    };
    row("reset refused", {"--refuse", "DeviceReset"}, reset, "DeviceReset.*it refused", false);
    row("reset ignored", {"--ignore-reset"}, reset, "it did not restart; switch it off", true);
    resetRow("never back", {"--never-return"});
    resetRow("another serial number back", {"--return-serial", "2"});
    resetRow("another model back", {"--return-model", "GV-1"});

    const auto describe = [&](const char *kind, const char *error) {
        row(kind, {"--description", kind}, nothing, error, false);
    };
    const char *const circle = "its feature \"\\w+\" refers to itself$";
    describe("self-value", circle);
    describe("self-address", circle);
    describe("self-feature", circle);
    if (!IS_ON_USB) {
        describe("file", "its feature description does not lie in the camera$");
        describe("http", "its feature description does not lie in the camera$");
    }
    describe("bomb-100", "its feature description is larger than 67108864 bytes$");
    describe("large", "its feature description is larger than 16777216 bytes$");
    describe("broken", "its feature description is damaged in line [0-9]+$");
}

void CRealCamerasTest::endsEachOperation()
{
    QFETCH(QStringList, arguments);
    QFETCH(Operation, operation);
    QFETCH(QString, error);
    QFETCH(bool, mayHaveChanged);
    startCamera(arguments);
    const auto device = makeDevice();
    try {
        device->open(std::chrono::seconds(10));
        operation(*device);
        QFAIL("no error");
    } catch (const CCameraError &thrown) {
        const QString text = thrown.getMessage();
        QVERIFY2(text.startsWith(CAMERA), qPrintable(text));
        QVERIFY2(text.contains(QRegularExpression(error)), qPrintable(text));
        QCOMPARE(thrown.getChange() == CCameraError::EChange::Possible, mayHaveChanged);
    }
}

void CRealCamerasTest::leavesACameraInUseAlone()
{
    CVirtualCameraProcess &camera = startCamera({});
    const auto device = openDevice();
    const QVector<CameraInfoPtr> found = openPool();
    QVERIFY(update(found.value(0))
                .contains("it is in use by another application; close that application"));
    QVERIFY(!camera.getEvents().contains("open FirmwareImage"));
    QCOMPARE(device->readFeature("DeviceFirmwareVersion", std::chrono::seconds(5)), "1.2.0");
}

void CRealCamerasTest::seesPlugsAtOnce()
{
    if (!IS_ON_USB)
        QSKIP("Ethernet has no plugs that anybody would see.");
    CVirtualCameraProcess &camera = startCamera({});
    QCOMPARE(openPool().size(), 1);
    const auto enumeration = getService<ICameraEnumerationService>();
    const auto getCameras
        = [&] { return enumeration->getTransportLayerInfoVector().last()->getCameraInfoList(); };
    for (int i = 0; i < 3; ++i) {
        QElapsedTimer time;
        time.start();
        camera.command("unplug");
        // The next search by itself comes after five seconds.
        QTRY_VERIFY_WITH_TIMEOUT(getCameras().isEmpty(), 3000);
        qInfo("gone after %lld ms", time.restart());
        camera.command("plug");
        QTRY_COMPARE_WITH_TIMEOUT(getCameras().size(), 1, 3000);
        qInfo("back after %lld ms", time.elapsed());
    }
    // Nor does the list change while the camera restarts.
    QStringList versions;
    connect(enumeration.data(), &ICameraEnumerationService::enumerationChanged, this, [&] {
        versions.append(getCameras().isEmpty() ? "gone" : getCameras()[0]->getFirmwareVersion());
    });
    QCOMPARE(update(getCameras()[0]), QString());
    QTRY_COMPARE(versions, QStringList("2.0.0"));
}

void CRealCamerasTest::streamsOnWhenPluggedInAgain()
{
    if (!IS_ON_USB)
        QSKIP("It is about USB.");
    CVirtualCameraProcess &camera = startCamera(
        {"--size", "320x240", "--unplug-in-frame", "20", "--plug-in-after-ms", "1000"});
    const QVector<CameraInfoPtr> found = openPool();
    m_pool->setWorker(WORKER, "en");
    int frames = 0;
    connect(m_pool.get(), &CCameraPool::frameReady, this, [&frames] { ++frames; });
    QSignalSpy failed(m_pool.get(), &CCameraPool::streamFailed);
    QVERIFY(m_pool->startAcquisition(found.value(0)->getId()));
    QTRY_VERIFY_WITH_TIMEOUT(frames >= 50, 30'000);
    QVERIFY(camera.getEvents().contains("unplug in frame"));
    QCOMPARE(failed.size(), 1);
}

void CRealCamerasTest::refusesTwoCamerasOfOneIdentity()
{
    startCamera({"--serial", "1"});
    startCamera({"--serial", "1"});
    startCamera({"--serial", "2"});
    const QVector<CameraInfoPtr> found = openPool();
    QCOMPARE(found.size(), 3);
    QVERIFY(found[0]->getId() != found[1]->getId());
    QVERIFY(found[0]->getCameraStatusCode() != 0);
    QVERIFY(found[1]->getCameraStatusCode() != 0);
    QCOMPARE(found[2]->getCameraStatusCode(), 0);
    auto snapshot = m_pool->getSnapshot(found[1]->getId());
    QCOMPARE(snapshot.statusReason, "same serial number as another camera");
    QCOMPARE(snapshot.ipAddress, m_addresses[1].toString());
    const QByteArray end = QByteArray::number(m_addresses[1].toIPv4Address(), 16).toUpper();
    QCOMPARE(snapshot.macAddress.remove(':'), "0200" + end);
    QCOMPARE(update(found[0]), "no update fits");
    m_others = std::make_unique<CGenICam>(CSearchOptions{m_addresses});
    QCOMPARE(m_others->enumerate().value(0).cameras.size(), 3);
    QVERIFY(tryToOpen(found[1]->getId()).contains("another camera has the same vendor, model and"));
}

void CRealCamerasTest::refusesAnotherCameraAtTheAddress()
{
    startCamera({"--serial", "1"});
    m_others = std::make_unique<CGenICam>(CSearchOptions{m_addresses});
    const QString id = m_others->enumerate().value(0).cameras.value(0).id;
    m_cameras.clear();
    QVERIFY(tryToOpen(id).contains("it did not answer; check its cable"));
    m_cameras.push_back(
        std::make_unique<CVirtualCameraProcess>(m_addresses[0], QStringList{"--serial", "2"}));
    QVERIFY(tryToOpen(id).contains("another camera, 2 (GV-1400M, 127."));
}

void CRealCamerasTest::closesTheFileOfEachUpload()
{
    const QString flash = m_folder.filePath("flash");
    CVirtualCameraProcess &camera = startCamera({"--buffer", "701", "--flash", flash});
    const auto device = openDevice();
    QBuffer source;
    source.setData(QByteArray(1403, 'x')); // ends within a word
    source.open(QIODevice::ReadOnly);
    const auto limit = std::chrono::seconds(20);
    device->uploadFile("FirmwareImage", source, 1403, {}, limit);
    QCOMPARE(camera.getEvents().last(), "close 1403");
    QFile written(flash);
    QVERIFY(written.open(QIODevice::ReadOnly) && written.readAll() == source.data());
    source.seek(703);
    QVERIFY_EXCEPTION_THROWN(device->uploadFile("FirmwareImage", source, 900, {}, limit),
                             CCameraError);
    QCOMPARE(camera.getEvents().last(), "close 700");
}

void CRealCamerasTest::takesSoundAnswersOnly()
{
    m_addresses.append(CVirtualCameraProcess::getOwnAddress(1));
    QByteArray sound = QByteArray::fromHex("0000000300f80001") + QByteArray(0xF8, '\0');
    sound.replace(8 + 0x48, 32, QByteArray(32, 'v'));
    sound.replace(8 + 0x68, 8, "\x1bX\n\xe2\x80\xae\xffY"); // an override of the direction
    sound.replace(8 + 0xD8, 16, QByteArray(16, '7'));
    QByteArray wrongNumber = sound, refusal = sound;
    wrongNumber[7] = 2;
    refusal[0] = '\x80';
    std::promise<void> ready;
    std::thread camera([&] {
        QUdpSocket socket;
        socket.bind(m_addresses[0], 3956);
        ready.set_value();
        socket.waitForReadyRead();
        const QNetworkDatagram request = socket.receiveDatagram();
        for (const QByteArray &answer : {QByteArray(), QByteArray(60000, '\xff'), sound.left(255),
                                         sound + '\0', wrongNumber, refusal, sound})
            socket.writeDatagram(answer, request.senderAddress(), request.senderPort());
    });
    ready.get_future().wait();
    const auto layers = CGenICam(CSearchOptions{m_addresses}).enumerate();
    camera.join();
    QCOMPARE(layers.value(0).cameras.size(), 1);
    const QString id = layers[0].cameras[0].id;
    QCOMPARE(id, "GEV:" + QString(32, 'v') + ":?X ?\ufffdY:" + QString(16, '7'));
}

QTEST_GUILESS_MAIN(CRealCamerasTest)
#include "tst_realcameras.moc"
