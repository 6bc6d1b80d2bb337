#include "jobrecorder.h"
#include "support/virtualcameraprocess.h"
#include "viewer/camerapool/cameraerror.h"
#include "viewer/camerapool/camerapool.h"
#include "viewer/camerapool/genicam/genicam.h"
#include "viewer/camerapool/icameradevice.h"

#include "camerapool/icameraenumerationservice.h"
#include "camerapool/idevicefirmwareupdateservice.h"

#include <QNetworkDatagram>
#include <QSignalSpy>
#include <QtTest>
#include <QUdpSocket>

#include <future>

using namespace Plugin::CameraPool;
using TestSupport::CVirtualCameraProcess;
using Viewer::CameraPool::CCameraError;
using Viewer::CameraPool::CCameraPool;
using Viewer::CameraPool::ICameraDevice;
using Viewer::CameraPool::GenICam::CGenICam;

/// Update jobs against virtual cameras in processes of their own, over the loopback interface.
class CRealCamerasTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void updatesACamera_data();
    void updatesACamera();
    void tellsEachFault_data();
    void tellsEachFault();
    void givesUpACameraThatStaysAway();
    void leavesACameraInUseAlone();
    void refusesTwoCamerasOfOneIdentity();
    void refusesAnotherCameraAtTheAddress();
    void closesTheFileOfAFailedUpload();
    void tellsWhetherACameraMayHaveChanged();
    void takesSoundAnswersOnly();

private:
    template <typename Service>
    [[nodiscard]] QSharedPointer<Service> getService() const;

    /// Starts a camera at the next address.
    CVirtualCameraProcess &startCamera(const QStringList &arguments);

    /// Opens a pool that knows the cameras started so far; they are its only ones.
    QVector<CameraInfoPtr> openPool();

    /// The open device of the first camera, of nobody that the pool knows.
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
    m_pool.reset();
    m_cameras.clear();
    m_addresses.clear();
}

template <typename Service>
QSharedPointer<Service> CRealCamerasTest::getService() const
{
    const auto services = m_pool->getServices();
    for (const auto &service : services) {
        if (const auto match = service.dynamicCast<Service>())
            return match;
    }
    return {};
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
    Viewer::CameraPool::CCameraPoolOptions options;
    options.simulates = false;
    options.cameraAddresses = m_addresses;
    m_pool = std::make_unique<CCameraPool>(options);
    const auto enumeration = getService<ICameraEnumerationService>();
    QSignalSpy spy(enumeration.data(), &ICameraEnumerationService::enumerationChanged);
    m_pool->start();
    spy.wait();
    const auto layers = enumeration->getTransportLayerInfoVector();
    return layers.isEmpty() ? QVector<CameraInfoPtr>() : layers.first()->getCameraInfoList();
}

std::unique_ptr<ICameraDevice> CRealCamerasTest::openDevice()
{
    m_others = std::make_unique<CGenICam>(m_addresses, false);
    const auto layers = m_others->enumerate();
    auto device = m_others->createDevice(layers.value(0).cameras.value(0).id);
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
    const Test::CJobRecorder recorder(*job);
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
    const QStringList shortReset{"--reset-ms", "100"};
    QTest::newRow("smallest buffer") << QStringList{"--buffer", "512"};
    QTest::newRow("buffer of no whole block, short reset")
        << QStringList{"--buffer", "700"} + shortReset;
    QTest::newRow("largest buffer, requests lost")
        << QStringList{"--buffer", "65536", "--lose-every", "300"} + shortReset;
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
                     .value(0)
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
    QTest::newRow("somebody else takes control")
        << QStringList{"--lose-control", "20480"}
        << "writing its file \"FirmwareImage\" failed at byte [0-9]+: .*control over it was lost";
    QTest::newRow("dies during the upload")
        << QStringList{"--die-after", "20480"}
        << "writing its file \"FirmwareImage\" failed at byte 16384: .*it did not answer; check";
    QTest::newRow("refuses a command")
        << QStringList{"--refuse", "FirmwareActivate"}
        << "its command \"FirmwareActivate\" could not be executed: it refused";
    QTest::newRow("refuses to open the file")
        << QStringList{"--refuse", "FileOperationExecute"}
        << "opening its file \"FirmwareImage\" failed: its command";
    QTest::newRow("comes back with the old version")
        << QStringList{"--old-version"}
        << "its feature \"DeviceFirmwareVersion\" is \"1.2.0\" instead of \"2.0.0\"";
    QTest::newRow("does not restart") << QStringList{"--refuse", "DeviceReset"}
                                      << "its command \"DeviceReset\" could not be executed";
}

void CRealCamerasTest::tellsEachFault()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    startCamera(arguments);
    const QVector<CameraInfoPtr> found = openPool();
    QCOMPARE(found.size(), 1);
    const QString text = update(found[0]);
    QVERIFY2(text.startsWith("Camera 50000001 (GV-1400M, 127."), qPrintable(text));
    QVERIFY2(text.contains(QRegularExpression(error)), qPrintable(text));
}

void CRealCamerasTest::givesUpACameraThatStaysAway()
{
    startCamera({"--never-return"});
    const auto device = openDevice();
    try {
        device->resetAndWait(std::chrono::seconds(1));
        QFAIL("The camera is there again.");
    } catch (const CCameraError &error) {
        const QString text = error.getMessage();
        QVERIFY2(text.startsWith("Camera 50000001 (GV-1400M, 127."), qPrintable(text));
        QVERIFY2(text.contains("): it did not come back from its reset; switch it off"),
                 qPrintable(text));
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
    m_others = std::make_unique<CGenICam>(m_addresses, false);
    QCOMPARE(m_others->enumerate().value(0).cameras.size(), 3);
    QVERIFY(tryToOpen(found[1]->getId()).contains("another camera has the same vendor, model and"));
}

void CRealCamerasTest::refusesAnotherCameraAtTheAddress()
{
    startCamera({"--serial", "1"});
    m_others = std::make_unique<CGenICam>(m_addresses, false);
    const QString id = m_others->enumerate().value(0).cameras.value(0).id;
    m_cameras.clear();
    QVERIFY(tryToOpen(id).contains("it did not answer; check its cable"));
    m_cameras.push_back(
        std::make_unique<CVirtualCameraProcess>(m_addresses[0], QStringList{"--serial", "2"}));
    QVERIFY(tryToOpen(id).contains("another camera, 2 (GV-1400M, 127."));
}

void CRealCamerasTest::closesTheFileOfAFailedUpload()
{
    CVirtualCameraProcess &camera = startCamera({"--buffer", "512"});
    const auto device = openDevice();
    QBuffer source;
    source.setData(QByteArray(700, 'x'));
    source.open(QIODevice::ReadOnly);
    const auto limit = std::chrono::seconds(20);
    QVERIFY_EXCEPTION_THROWN(device->uploadFile("FirmwareImage", source, 900, {}, limit),
                             CCameraError);
    QCOMPARE(camera.getEvents().last(), "close 700");
}

void CRealCamerasTest::tellsWhetherACameraMayHaveChanged()
{
    using Operation = std::function<void(ICameraDevice &)>;
    const auto limit = std::chrono::seconds(1);
    const Operation upload = [](ICameraDevice &device) {
        QBuffer source;
        source.setData(QByteArray(8192, 'x'));
        source.open(QIODevice::ReadOnly);
        device.uploadFile("FirmwareImage", source, source.size(), {}, std::chrono::seconds(1));
    };
    const auto write = [limit](const char *name, const char *value) {
        return [=](ICameraDevice &device) { device.writeFeature(name, value, limit); };
    };
    const auto execute = [limit](const char *name) {
        return [=](ICameraDevice &device) { device.executeCommand(name, limit); };
    };
    const Operation reset = [limit](ICameraDevice &device) { device.resetAndWait(limit); };
    struct CCase
    {
        QStringList arguments;
        Operation operation;
        const char *error;
        bool mayHaveChanged;
    };
    const std::vector<CCase> cases = {
        {{}, write("Missing", "1"), "it has no feature \"Missing\"", false},
        {{}, write("ExposureTime", "1e30"), "could not be set", false},
        {{}, write("FirmwareUpdateMode", "Perhaps"), "could not be set", false},
        {{}, execute("ExposureTime"), "is not a command", false},
        {{"--refuse", "FirmwareActivate"}, execute("FirmwareActivate"), "it refused", false},
        {{"--refuse", "DeviceReset"}, reset, "it refused", false},
        {{"--refuse", "FileOperationExecute"}, upload, "opening its file", false},
        {{"--operation-reads", "1000000"}, upload, "it took too long", true},
        {{"--lose-control", "4096"}, upload, "at byte 4096: .*control over it was lost", true},
        {{"--ignore-reset"}, reset, "it did not restart; switch it off", true},
        {{"--never-return"}, reset, "it did not come back from its reset; switch it off", true},
    };
    for (const CCase &row : cases) {
        init();
        startCamera(row.arguments);
        const auto device = openDevice();
        try {
            row.operation(*device);
            QFAIL("no error");
        } catch (const CCameraError &error) {
            const QString text = error.getMessage();
            QVERIFY2(text.startsWith("Camera 50000001 (GV-1400M, 127."), qPrintable(text));
            QVERIFY2(text.contains(QRegularExpression(row.error)), qPrintable(text));
            QVERIFY2((error.getChange() == CCameraError::EChange::Possible) == row.mayHaveChanged,
                     qPrintable(text));
        }
    }
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
    const auto layers = CGenICam(m_addresses, false).enumerate();
    camera.join();
    QCOMPARE(layers.value(0).cameras.size(), 1);
    const QString id = layers[0].cameras[0].id;
    QCOMPARE(id, "GEV:" + QString(32, 'v') + ":X \ufffdY:" + QString(16, '7'));
}

QTEST_GUILESS_MAIN(CRealCamerasTest)
#include "tst_realcameras.moc"
