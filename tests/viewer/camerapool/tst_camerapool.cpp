#include "viewer/camerapool/cameraenumerationservice.h"
#include "viewer/camerapool/camerainfo.h"
#include "viewer/camerapool/camerapool.h"
#include "viewer/update/firmwareupdateinfo.h"
#include "viewer/update/updatejournal.h"

#include "support/camerakinds.h"
#include "tests/viewer/update/jobrecorder.h"
#include "tests/viewer/update/updatefixture.h"
#include "tests/viewer/updatefile/updatefilebuilder.h"

#include "camerapool/icamerastatusservice.h"
#include "camerapool/icamerastreamcontrolservice.h"
#include "camerapool/idevicefirmwareupdateservice.h"

#include <QDir>
#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <thread>

using namespace Viewer::Camera;
using namespace Viewer::CameraPool;
using namespace Viewer::Update;
using namespace Viewer::UpdateFile;
using namespace TestSupport;
using namespace Plugin::CameraPool;

class CCameraPoolTest;
Q_DECLARE_METATYPE(std::function<void(CCameraPoolTest &)>)

static const QString FIRST_ID = "gige-40012345";
static const QString SECOND_ID = "gige-40012346";

class CCameraPoolTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        createPool();
    }
    void startsAndStopsCameras();
    void aCameraThatComesBackGoesOn();
    void aProgramThatDoesNotEndIsEnded();
    void whatIsStoppedMakesNoPictures_data();
    void whatIsStoppedMakesNoPictures();
    void updateIsAnnouncedOnceAtItsEnd();
    void unpluggingEndsAnUpdate();
    void leavesWhatAnotherViewerUpdatesAlone();
    void jobOutlivesThePool();
    void findsWhatFitsNewestFirst();

private:
    void createPool(double speedFactor = 500.0);
    [[nodiscard]] CameraInfoPtr find(const QString &cameraId) const
    {
        return getService<CCameraEnumerationService>()->findCamera(cameraId);
    }
    [[nodiscard]] DeviceFirmwareUpdatePtr createJob(const QString &cameraId, int imageSize) const;

    template <typename TService>
    [[nodiscard]] QSharedPointer<TService> getService() const
    {
        return m_pool->getService<TService>();
    }

    QScopedPointer<QTemporaryDir> m_folder;
    std::unique_ptr<CCameraPool> m_pool;
    std::unique_ptr<QSignalSpy> m_announced;
};

void CCameraPoolTest::createPool(double speedFactor)
{
    m_announced.reset();
    m_pool.reset();
    m_pool = std::make_unique<CCameraPool>(
        TestSupport::makeCameraKinds({"--speed", QString::number(speedFactor)}, m_folder->path()),
        m_folder->filePath("updates"));
    m_pool->setWorker(WORKER, "en");
    m_announced = std::make_unique<QSignalSpy>(getService<ICameraEnumerationService>().data(),
                                               &ICameraEnumerationService::enumerationChanged);
    m_pool->start();
    QTRY_COMPARE(m_announced->count(), 1);
}

DeviceFirmwareUpdatePtr CCameraPoolTest::createJob(const QString &cameraId, int imageSize) const
{
    const QString path = m_folder->filePath("update.guf");
    writeUpdateFile(path, {"2.0.0"}, imageSize);
    const auto service = getService<IDeviceFirmwareUpdateService>();
    return service->createDeviceFirmwareUpdate(
        find(cameraId), service->getFirmwareUpdateInfos(path, {}).constFirst());
}

void CCameraPoolTest::startsAndStopsCameras()
{
    const auto set
        = [this](const QString &id, bool on) { QVERIFY(TestSupport::setSwitch(*m_pool, id, on)); };
    const auto verifyRefused = [this](const char *cause) {
        QString error;
        QVERIFY(!m_pool->startAcquisition(FIRST_ID, &error));
        QVERIFY(!m_pool->startRecording(FIRST_ID, m_folder->path(), &error));
        QVERIFY2(error.contains(cause), qPrintable(error));
    };
    set("busy:" + FIRST_ID, true);
    verifyRefused("in use by another application");
    set("busy:" + FIRST_ID, false);

    QSignalSpy failed(m_pool.get(), &CCameraPool::streamFailed);
    QVERIFY(m_pool->startAcquisition(FIRST_ID));
    set("plugged:" + FIRST_ID, false);
    QTRY_COMPARE(m_announced->count(), 2);
    QVERIFY(!find(FIRST_ID));
    QCOMPARE(failed.count(), 1);
    QTRY_COMPARE(m_pool->getActivity(FIRST_ID), ECameraActivity::Idle);
    verifyRefused("does not answer");
    set("plugged:" + FIRST_ID, true);
    QTRY_COMPARE(m_announced->count(), 3);

    const auto status = getService<ICameraStatusService>();
    const QStringList ids{FIRST_ID, SECOND_ID, "cxp-50300021"};
    QVERIFY(m_pool->startAcquisition(FIRST_ID));
    QVERIFY(m_pool->startRecording(SECOND_ID, m_folder->path()));
    set("busy:" + ids.last(), true);
    for (const QString &id : ids)
        QVERIFY(status->isCameraBusy(find(id)));
    getService<ICameraStreamControlService>()->stopAllCameras();
    for (const QString &id : ids)
        QVERIFY(!status->isCameraBusy(find(id)));
}

void CCameraPoolTest::aCameraThatComesBackGoesOn()
{
    QSignalSpy failed(m_pool.get(), &CCameraPool::streamFailed);
    int frames = 0;
    connect(m_pool.get(), &CCameraPool::frameReady, this, [&frames] { ++frames; });
    QVERIFY(m_pool->startAcquisition(FIRST_ID));
    for (int round = 1; round <= 2; ++round) {
        frames = 0;
        QTRY_VERIFY_WITH_TIMEOUT(frames > 0, 10'000);
        QVERIFY(TestSupport::setSwitch(*m_pool, "plugged:" + FIRST_ID, false));
        QTRY_COMPARE(m_pool->getActivity(FIRST_ID), ECameraActivity::Idle);
        QCOMPARE(failed.count(), round);
        QVERIFY(TestSupport::setSwitch(*m_pool, "plugged:" + FIRST_ID, true));
    }
    QTRY_COMPARE_WITH_TIMEOUT(m_pool->getActivity(FIRST_ID), ECameraActivity::Acquiring, 10'000);
    // Stopped is stopped.
    m_pool->stopAcquisition(FIRST_ID);
    QTRY_COMPARE(m_pool->getActivity(FIRST_ID), ECameraActivity::Idle);
}

void CCameraPoolTest::aProgramThatDoesNotEndIsEnded()
{
    const QString program = m_folder->filePath("worker");
    TestSupport::writeFile(program, "#!/bin/sh\nexec sleep 600\n");
    QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
    m_pool->setWorker(program, "en");
    QVERIFY(m_pool->startAcquisition(FIRST_ID));
    getService<ICameraStreamControlService>()->stopAllCameras();
    QCOMPARE(m_pool->getActivity(FIRST_ID), ECameraActivity::Idle);
    // Nobody else has it either.
    m_pool->setWorker(WORKER, "en");
    QVERIFY(m_pool->startAcquisition(FIRST_ID));
    QSignalSpy frames(m_pool.get(), &CCameraPool::frameReady);
    QVERIFY(frames.wait());
}

void CCameraPoolTest::whatIsStoppedMakesNoPictures_data()
{
    using Stop = std::function<void(CCameraPoolTest &)>;
    QTest::addColumn<Stop>("stop");
    QTest::addColumn<bool>("acquires"); // afterwards
    const auto add = [](const char *name, bool acquires, const Stop &stop) {
        QTest::newRow(name) << stop << acquires;
    };
    add("recording stopped", true, [](auto &test) { test.m_pool->stopRecording(FIRST_ID); });
    add("acquisition stopped", false, [](auto &test) { test.m_pool->stopAcquisition(FIRST_ID); });
    add("unplugged", false, [](auto &test) {
        TestSupport::setSwitch(*test.m_pool, "plugged:" + FIRST_ID, false);
        QTRY_COMPARE(test.m_announced->count(), 2);
    });
    add("before an update", false, [](auto &test) {
        test.template getService<ICameraStreamControlService>()->stopAllCameras();
        const auto job = test.createJob(FIRST_ID, 20'000);
        const CJobRecorder recorder(*job);
        executeOnThread(*job);
        QCOMPARE(recorder.getAll("done").size(), 1);
    });
}

void CCameraPoolTest::whatIsStoppedMakesNoPictures()
{
    QFETCH(std::function<void(CCameraPoolTest &)>, stop);
    QFETCH(bool, acquires);
    const QTemporaryDir folder;
    const auto countFiles = [&folder] { return QDir(folder.path()).entryList(QDir::Files).size(); };
    QVERIFY(m_pool->startRecording(FIRST_ID, folder.path()));
    QTRY_VERIFY(countFiles() > 0);
    QHash<QString, int> frames; // by camera
    connect(m_pool.get(), &CCameraPool::frameReady, this,
            [&frames](const QString &cameraId) { ++frames[cameraId]; });
    QSignalSpy ended(m_pool.get(), &CCameraPool::recordingEnded);
    stop(*this);
    // Frames may still wait to be written.
    QTRY_COMPARE(ended.count(), 1);
    const int fileCount = countFiles();
    QCOMPARE(ended.first().at(1).toInt(), fileCount);
    frames.clear();
    // Another camera shows that time goes by.
    QVERIFY(m_pool->startAcquisition(SECOND_ID));
    QTRY_VERIFY(frames.value(SECOND_ID) >= 3);
    m_pool->disconnect(this);
    QCOMPARE(frames.contains(FIRST_ID), acquires);
    QCOMPARE(countFiles(), fileCount);
}

void CCameraPoolTest::updateIsAnnouncedOnceAtItsEnd()
{
    createPool(20.0);
    const CameraInfoPtr before = find(FIRST_ID);
    const auto job = createJob(FIRST_ID, 20'000);
    QSignalSpy running(m_pool.get(), &CCameraPool::updateRunningChanged);
    QStringList versions;
    connect(getService<ICameraEnumerationService>().data(),
            &ICameraEnumerationService::enumerationChanged, this, [this, &versions] {
                versions.append(m_pool->isUpdateRunning() ? "too early"
                                                          : find(FIRST_ID)->getFirmwareVersion());
            });
    std::thread thread([&job] { job->executeFirmwareUpdate(); });
    // Waited for below whatever happens, so nothing may return before.
    const bool begun = QTest::qWaitFor([&running] { return running.count() > 0; });
    const bool busy = getService<ICameraStatusService>()->isCameraBusy(before);
    const bool startable = m_pool->startAcquisition(FIRST_ID);
    getService<CCameraEnumerationService>()->refreshEnumeration(); // an impatient user
    const QString versionMeanwhile = job->getFirmwareVersion();
    thread.join();
    QVERIFY(begun && !busy && !startable);
    QCOMPARE(versionMeanwhile, QString("1.2.0"));
    QTRY_COMPARE(versions, QStringList("2.0.0"));
    QCOMPARE(running.count(), 2);
    QCOMPARE(before->getFirmwareVersion(), QString("1.2.0"));

    createPool(); // the next start
    QCOMPARE(find(FIRST_ID)->getFirmwareVersion(), QString("2.0.0"));
    QCOMPARE(find(SECOND_ID)->getFirmwareVersion(), QString("1.2.0"));
}

void CCameraPoolTest::unpluggingEndsAnUpdate()
{
    createPool(1.0); // the upload alone would take the half of a minute
    const auto job = createJob(FIRST_ID, 3'000'000);
    const CJobRecorder recorder(*job);
    std::thread thread([&job] { job->executeFirmwareUpdate(); });
    // Told long before the end of the upload.
    const bool progressed
        = QTest::qWaitFor([&] { return !recorder.getAll("progress").isEmpty(); }, 20'000);
    QVERIFY(TestSupport::setSwitch(*m_pool, "plugged:" + FIRST_ID, false));
    thread.join();
    QVERIFY(progressed);
    QVERIFY2(recorder.getError().contains("connection was lost"), qPrintable(recorder.getError()));
    QTRY_VERIFY(!find(FIRST_ID));
}

void CCameraPoolTest::leavesWhatAnotherViewerUpdatesAlone()
{
    CUpdateRecord record;
    record.cameraId = FIRST_ID;
    record.begin = QDateTime::currentDateTimeUtc();
    record.stepCount = 4;
    auto other = std::make_unique<CUpdateJournal>(m_folder->filePath("updates"), record);
    getService<ICameraEnumerationService>()->refreshEnumeration();
    QTRY_COMPARE(m_announced->count(), 2);
    QCOMPARE(find(FIRST_ID)->getCameraStatusCode(), 1002);
    const auto getReason = [this] { return m_pool->getSnapshot(FIRST_ID).statusReason; };
    QCOMPARE(getReason(), QString("being updated (0 %)"));
    QCOMPARE(find(SECOND_ID)->getCameraStatusCode(), 0);
    const QSignalSpy changes(m_pool.get(), &CCameraPool::snapshotChanged);
    for (int step = 1; step <= 3; ++step)
        other->beginStep("FileUpload");
    other->setPercent(52);
    QTRY_COMPARE(getReason(), QString("being updated (63 %)"));
    QCOMPARE(changes.last().value(0).toString(), FIRST_ID);
    QCOMPARE(m_announced->count(), 2);
    // Nobody has to search again for its end.
    other.reset();
    QTRY_COMPARE(find(FIRST_ID)->getCameraStatusCode(), 0);
    QCOMPARE(m_announced->count(), 3);
}

void CCameraPoolTest::jobOutlivesThePool()
{
    const auto job = createJob(FIRST_ID, 20'000);
    m_announced.reset();
    m_pool.reset();
    const CJobRecorder recorder(*job);
    executeOnThread(*job);
    QCOMPARE(recorder.getAll("done").size(), 1);
}

void CCameraPoolTest::findsWhatFitsNewestFirst()
{
    const QStringList model{"VX-1", "VX-1400M"};
    const auto manifest = QSharedPointer<CUpdateManifest>::create();
    manifest->updates = {{"1.9", {}, {}, model, {}, {}, {}},
                         {"odd", {}, {}, model, {"R1", "R2"}, {}, {}},
                         {"1.10", {}, {}, model, {}, "1.2", {}},
                         {"1.10-rc1", {}, {}, model, {}, {}, {}},
                         {"3.0", {}, {}, {"vx-1400m", "VX-1400"}, {}, {}, {}}, // other models
                         {"4.0", {}, {}, model, {"R1"}, {}, {}}, // other device version
                         {"5.0", {}, {}, model, {}, "1.2.1", {}}}; // not for the old ones
    QVector<QSharedPointer<IFirmwareUpdateInfo>> all;
    for (int i = 0; i < manifest->updates.size(); ++i)
        all.append(QSharedPointer<CFirmwareUpdateInfo>::create(manifest, i, "a.guf"));
    const auto getFitting = [&](const QString &version, int status) {
        const CCameraSnapshot camera{"a",     "Camera", "VX-1400M", "1", "R2",
                                     version, status,   {},         {},  {}};
        const auto info = QSharedPointer<CCameraInfo>::create(camera, "layer");
        auto compatible = all;
        bool updatable = false;
        (void)getService<IDeviceFirmwareUpdateService>()->getCompatibleFirmwareUpdates(
            info, all, compatible, updatable);
        QStringList versions(updatable ? "updatable" : "not updatable");
        for (const auto &update : qAsConst(compatible))
            versions.append(update->getVersion());
        return versions.join(' ');
    };
    QCOMPARE(getFitting("1.2.0", 0), QString("updatable 1.10 1.10-rc1 1.9 odd"));
    QCOMPARE(getFitting("unknown", 0), QString("updatable 1.10-rc1 1.9 odd"));
    QCOMPARE(getFitting("1.2.0", -1), QString("not updatable"));
}

QTEST_GUILESS_MAIN(CCameraPoolTest)
#include "tst_camerapool.moc"
