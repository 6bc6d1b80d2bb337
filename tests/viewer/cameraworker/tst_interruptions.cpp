#include "support/camerakinds.h"
#include "support/processes.h"
#include "support/virtualcameraprocess.h"
#include "tests/viewer/update/jobrecorder.h"
#include "tests/viewer/update/updatefixture.h"
#include "viewer/camerapool/camerapool.h"
#include "viewer/update/updatehistory.h"
#include "viewer/update/updatejournal.h"

#include "camerapool/icameraenumerationservice.h"
#include "camerapool/idevicefirmwareupdateservice.h"

#include <QDir>
#include <QJsonDocument>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

using namespace TestSupport;
using namespace Viewer::Update;
using namespace Plugin::CameraPool;
using Viewer::CameraPool::CCameraPool;

using IsReached = bool (*)(const CUpdateRecord &record);
Q_DECLARE_METATYPE(IsReached)

static constexpr int LONGEST_WAIT = 60000; // milliseconds; far more than anything needs

// An upload to it takes longer than the second after which its progress is written down again.
static const char *const CAMERA_DESCRIPTION = R"({ "format": 1, "layers": [{ "id": "layer",
    "displayName": "Layer", "cameras": [{ "id": "camera", "displayName": "Camera",
    "model": "VX-1400M", "serialNumber": "1", "deviceVersion": "R2", "firmwareVersion": "1.2.0",
    "uploadSpeed": 10000 }] }] })";

/// What becomes of an update, and of the camera, when the finished viewer or its worker is killed.
class CInterruptionsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void endsWellWhoeverIsKilled_data();
    void endsWellWhoeverIsKilled();
    void aSecondViewerTouchesNothing();
    void aCameraHarmsItsOwnUpdateAlone_data();
    void aCameraHarmsItsOwnUpdateAlone();

private:
    void startVirtualCamera(const QStringList &arguments);
    [[nodiscard]] CJournalEntry getEntry() const;
    void openPool(const QString &worker);
    [[nodiscard]] CameraInfoPtr getCamera(int number) const;
    [[nodiscard]] DeviceFirmwareUpdatePtr makeJob(int camera) const;
    void startViewer(QProcess &viewer) const;
    [[nodiscard]] bool waitUntil(IsReached isReached, QProcess &viewer) const;
    [[nodiscard]] bool updateUntil(IsReached isReached, bool isReal, QProcess &viewer);
    [[nodiscard]] QByteArray readUpTo(const char *text, QProcess &viewer) const;
    [[nodiscard]] QString readInstalledVersion() const;

    QTemporaryDir m_folder;
    QDir m_home; ///< of one row
    QString m_journals;
    QStringList m_camera; ///< the viewer's arguments for its only camera
    std::unique_ptr<CVirtualCameraProcess> m_virtualCamera; ///< null: it is a simulated one
    std::unique_ptr<CCameraPool> m_pool; ///< of a viewer within this process
};

static QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void CInterruptionsTest::initTestCase()
{
    QVERIFY(QDir(m_folder.path()).mkdir("files"));
    writeUpdateFile(m_folder.filePath("files/update.guf"), {"2.0.0"}, 50'000, 24);
    writeFile(m_folder.filePath("cameras.json"), CAMERA_DESCRIPTION);
    // The wizard's state machine lives until the process ends, which a leak checker takes for a
    // leak.
    qputenv("ASAN_OPTIONS", "detect_leaks=0");
}

void CInterruptionsTest::init()
{
    m_home.setPath(m_folder.filePath(QString::number(QRandomGenerator::global()->generate())));
    QVERIFY(m_home.mkpath("."));
    m_journals = m_home.filePath("nuvexviewer/updates");
    for (const char *variable :
         {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "TMPDIR"})
        qputenv(variable, m_home.path().toUtf8());
}

void CInterruptionsTest::cleanup()
{
    m_pool.reset();
    m_virtualCamera.reset();
}

void CInterruptionsTest::startVirtualCamera(const QStringList &arguments)
{
    const QHostAddress address = CVirtualCameraProcess::getOwnAddress(1);
    m_virtualCamera = std::make_unique<CVirtualCameraProcess>(
        address,
        QStringList{"--model", "VX-1400M", "--answer-ms", "2", "--reset-ms", "1000"} + arguments);
    m_camera = QStringList{"--no-simulation", "--camera-address", address.toString()};
}

/// The only journal.
CJournalEntry CInterruptionsTest::getEntry() const
{
    return readJournals(m_journals).entries.value(0);
}

/// Looks at the journal all the time, so that the phase is not over when it is seen.
bool CInterruptionsTest::waitUntil(IsReached isReached, QProcess &viewer) const
{
    QElapsedTimer waiting;
    waiting.start();
    while (!waiting.hasExpired(LONGEST_WAIT) && !viewer.peek(1 << 20).contains("Step 5: ")) {
        if (isReached(getEntry().record))
            return true;
        viewer.waitForFinished(1);
    }
    return false;
}

/// Has the viewer update its only camera up to a phase. A machine that is busy can miss that: then
/// all begins anew.
bool CInterruptionsTest::updateUntil(IsReached isReached, bool isReal, QProcess &viewer)
{
    for (int attempt = 0; attempt < 4; ++attempt) {
        viewer.kill();
        viewer.waitForFinished();
        cleanup();
        init();
        m_camera = QStringList{"--speed=2", "--cameras", m_folder.filePath("cameras.json")};
        if (isReal)
            startVirtualCamera({"--flash", m_home.filePath("flash")});
        startViewer(viewer);
        if (waitUntil(isReached, viewer))
            return true;
    }
    return false;
}

void CInterruptionsTest::openPool(const QString &worker)
{
    m_pool = std::make_unique<CCameraPool>(makeCameraKinds(m_camera), m_journals);
    m_pool->setWorker(worker, "en");
    QSignalSpy announced(m_pool->getService<ICameraEnumerationService>().data(),
                         &ICameraEnumerationService::enumerationChanged);
    m_pool->start();
    QVERIFY(announced.wait());
}

CameraInfoPtr CInterruptionsTest::getCamera(int number) const
{
    const auto enumeration = m_pool->getService<ICameraEnumerationService>();
    return enumeration->getTransportLayerInfoVector()[0]->getCameraInfoList()[number];
}

DeviceFirmwareUpdatePtr CInterruptionsTest::makeJob(int camera) const
{
    const auto updates = m_pool->getService<IDeviceFirmwareUpdateService>();
    const auto infos = updates->getFirmwareUpdateInfos(m_folder.filePath("files/update.guf"), {});
    return updates->createDeviceFirmwareUpdate(getCamera(camera), infos[0]);
}

void CInterruptionsTest::startViewer(QProcess &viewer) const
{
    viewer.setProcessChannelMode(QProcess::MergedChannels);
    viewer.setWorkingDirectory(m_home.path());
    viewer.start(
        VIEWER, m_camera + QStringList{"--samples", m_folder.filePath("files"), "--demo=pictures"});
}

/// What the viewer has said when it has said @p text, or nothing more.
QByteArray CInterruptionsTest::readUpTo(const char *text, QProcess &viewer) const
{
    QByteArray output;
    while (!output.contains(text) && viewer.waitForReadyRead(LONGEST_WAIT))
        output += viewer.readAll();
    return output;
}

/// What the camera has now, whoever has put it there.
QString CInterruptionsTest::readInstalledVersion() const
{
    if (m_virtualCamera)
        return m_virtualCamera->getEvents().filter("back ").last().mid(5);
    const auto state
        = QJsonDocument::fromJson(readFile(m_home.filePath("Nuvex/NuvexViewer/cameras.json")));
    return state["firmware"]["camera"].toString();
}

void CInterruptionsTest::endsWellWhoeverIsKilled_data()
{
    QTest::addColumn<bool>("isReal");
    QTest::addColumn<bool>("viewerDies");
    QTest::addColumn<IsReached>("isReached");
    const QPair<const char *, IsReached> phases[] = {
        {"before the first write", [](auto &now) { return now.step > 0 && !now.hasWritten; }},
        {"upload", [](auto &now) { return now.stepName == "FileUpload" && now.percent > 0; }},
        {"command", [](auto &now) { return now.stepName == "FeatureExecute" && now.hasWritten; }},
        {"reset", [](auto &now) { return now.stepName == "DeviceReset"; }},
        {"check of the version", [](auto &now) { return now.stepName == "FeatureAssert"; }},
    };
    for (const bool isReal : {false, true}) {
        for (const bool viewerDies : {true, false}) {
            for (const auto &[name, isReached] : phases)
                QTest::addRow("%s camera, kill -9 of the %s: %s", isReal ? "virtual" : "simulated",
                              viewerDies ? "viewer" : "worker", name)
                    << isReal << viewerDies << isReached;
        }
    }
}

void CInterruptionsTest::endsWellWhoeverIsKilled()
{
    QFETCH(bool, isReal);
    QFETCH(bool, viewerDies);
    QFETCH(IsReached, isReached);
    if (isReal && makeCameraKinds({"--network"}).empty())
        QSKIP("The viewer was built without the library for real cameras.");
    QProcess viewer;
    QVERIFY2(updateUntil(isReached, isReal, viewer), "the phase was never seen");
    const pid_t worker = findChildProcesses(viewer.processId()).value(0);
    QVERIFY(worker > 0);
    kill(viewerDies ? static_cast<pid_t>(viewer.processId()) : worker, SIGKILL);
    CJournalEntry left = getEntry();
    QVERIFY2(isReached(left.record), "the phase was over");
    if (viewerDies) {
        QVERIFY(viewer.waitForFinished(LONGEST_WAIT));
        QVERIFY(left.isRunning);
    } else {
        const QByteArray output = readUpTo("Step 5: ", viewer);
        QVERIFY2(output.contains("the update program ended unexpectedly (signal 9)"), output);
        QCOMPARE(output.contains("had already begun to write"), left.record.hasWritten);
        left = getEntry();
        QVERIFY(!left.isRunning && isReached(left.record));
        QCOMPARE(left.record.outcome, EUpdateOutcome::Running);
        viewer.kill();
        QVERIFY(viewer.waitForFinished(LONGEST_WAIT));
        // The camera keeps to who had control until it has not heard from there for a while.
        static const QRegularExpression isTold("^(control|back) ");
        if (isReal)
            QTRY_VERIFY(QStringList({"control timeout", "back 2.0.0"})
                            .contains(m_virtualCamera->getEvents().filter(isTold).last()));
        startViewer(viewer);
        const QByteArray again = readUpTo("Step 5: ", viewer);
        QVERIFY2(again.contains("Successful updates: 1"), again);
        viewer.kill();
        QVERIFY(viewer.waitForFinished(LONGEST_WAIT));
    }
    QTRY_VERIFY_WITH_TIMEOUT(getEntry().record.cameraId.isEmpty(), LONGEST_WAIT);
    // Nothing is to be read of a dead process that nobody has waited for.
    QTRY_VERIFY2(readFile(QString("/proc/%1/cmdline").arg(worker)).isEmpty(), "it is left");
    QCOMPARE(QDir(m_journals).entryList(QDir::Files), QStringList("history.jsonl"));
    const auto records = CUpdateHistory(CUpdateHistory::getPath(m_journals)).read().records;
    QCOMPARE(records.first().outcome, EUpdateOutcome::Updated);
    QCOMPARE(records.first().reportedVersion, QString("2.0.0"));
    // What was repeated has left a camera that was written to.
    const bool isRepeated = !viewerDies && left.record.hasWritten;
    QCOMPARE(records.size(), isRepeated ? 2 : 1);
    QCOMPARE(records.last().outcome,
             isRepeated ? EUpdateOutcome::Interrupted : EUpdateOutcome::Updated);
    QCOMPARE(readInstalledVersion(), QString("2.0.0"));
    if (isReal)
        QVERIFY(readFile(m_home.filePath("flash")) == makeImage("2.0.0", 50'000));
}

void CInterruptionsTest::aSecondViewerTouchesNothing()
{
    if (makeCameraKinds({"--network"}).empty())
        QSKIP("The viewer was built without the library for real cameras.");
    startVirtualCamera({});
    openPool(WORKER);
    const auto job = makeJob(0); // while the camera can still be picked
    const CJobRecorder recorder(*job);

    QProcess viewer;
    startViewer(viewer);
    QVERIFY(waitUntil([](auto &now) { return now.hasWritten; }, viewer));
    executeOnThread(*job);
    QVERIFY2(recorder.getError().endsWith("it is already being updated"),
             qPrintable(recorder.getError()));
    m_pool->getService<ICameraEnumerationService>()->refreshEnumeration();
    QTRY_COMPARE(getCamera(0)->getCameraStatusCode(), 1002);
    QVERIFY(readUpTo("Step 5: ", viewer).contains("Successful updates: 1"));
    QTRY_COMPARE(getCamera(0)->getFirmwareVersion(), "2.0.0");
    viewer.kill();
    QVERIFY(viewer.waitForFinished(LONGEST_WAIT));
    // Before and after the reset, by the first viewer.
    QCOMPARE(m_virtualCamera->getEvents().filter("control 127.").size(), 2);
}

void CInterruptionsTest::aCameraHarmsItsOwnUpdateAlone_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const QStringList &arguments, const char *error) {
        QTest::newRow(name) << arguments + QStringList{"--answer-ms", "0"} << error;
    };
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    row("crash", {"--description", "self-value"}, "ended unexpectedly \\(exit code \\d+\\)$");
#else
    row("crash", {"--description", "self-value"}, "ended unexpectedly \\(signal 11\\)$");
    row("no memory", {"--description", "bomb-1000"}, "ended unexpectedly \\(signal \\d+\\)$");
#endif
    row("no end", {"--never-open"}, "it did not answer in time; .* had already begun to write");
}

/// With a worker that lets the camera do what the viewer keeps from the library otherwise.
void CInterruptionsTest::aCameraHarmsItsOwnUpdateAlone()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    if (makeCameraKinds({"--network"}).empty())
        QSKIP("The viewer was built without the library for real cameras.");
    const QString program = m_home.filePath("worker");
    writeFile(program,
              "#!/bin/sh\nexec " WORKER " update --unchecked-descriptions --patience-percent 5\n");
    QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
    startVirtualCamera(arguments);
    const QHostAddress address = CVirtualCameraProcess::getOwnAddress(2);
    const CVirtualCameraProcess sound(
        address, {"--model", "VX-1400M", "--serial", "2", "--reset-ms", "1000"});
    m_camera << "--camera-address" << address.toString();
    openPool(program);
    const auto jobs = {makeJob(0), makeJob(1)};
    const CJobRecorder hostile(**jobs.begin());
    const CJobRecorder next(**std::prev(jobs.end()));
    for (const auto &job : jobs)
        executeOnThread(*job);
    QVERIFY2(hostile.getError().contains(QRegularExpression(error)),
             qPrintable(hostile.getError()));
    QCOMPARE(next.getAll("done").size(), 1);
}

QTEST_GUILESS_MAIN(CInterruptionsTest)
#include "tst_interruptions.moc"
