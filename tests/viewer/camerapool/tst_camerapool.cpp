#include "viewer/camerapool/cameraenumerationservice.h"
#include "viewer/camerapool/camerainfo.h"
#include "viewer/camerapool/camerapool.h"
#include "viewer/camerapool/firmwareupdateinfo.h"
#include "viewer/camerapool/simulation/simulation.h"

#include "jobrecorder.h"
#include "updatefixture.h"

#include "camerapool/icamerastatusservice.h"
#include "camerapool/icamerastreamcontrolservice.h"
#include "camerapool/idevicefirmwareupdateservice.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <thread>

using namespace Viewer::CameraPool;
using namespace Test;
using namespace Plugin::CameraPool;
using Simulation::CSimulation;

static const QString FirstId = "gige-40012345";
static const QString SecondId = "gige-40012346";

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
    void updateIsAnnouncedOnceAtItsEnd();
    void unpluggingEndsAnUpdate();
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
        for (const auto &service : m_pool->getServices()) {
            if (const auto found = service.template dynamicCast<TService>())
                return found;
        }
        return {};
    }

    QScopedPointer<QTemporaryDir> m_folder;
    std::unique_ptr<CCameraPool> m_pool;
    std::unique_ptr<QSignalSpy> m_announced;
};

void CCameraPoolTest::createPool(double speedFactor)
{
    m_announced.reset();
    m_pool.reset();
    CCameraPoolOptions options;
    options.stateFile = m_folder->filePath("firmware.json");
    options.speedFactor = speedFactor;
    m_pool = std::make_unique<CCameraPool>(options);
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
    CSimulation &simulation = m_pool->getSimulation();
    const auto verifyRefused = [this](const char *cause) {
        QString error;
        QVERIFY(!m_pool->startAcquisition(FirstId, &error));
        QVERIFY(!m_pool->startRecording(FirstId, m_folder->path(), &error));
        QVERIFY2(error.contains(cause), qPrintable(error));
    };
    simulation.setBusy(FirstId, true);
    verifyRefused("in use by another application");
    simulation.setBusy(FirstId, false);

    QSignalSpy failed(m_pool.get(), &CCameraPool::streamFailed);
    QVERIFY(m_pool->startAcquisition(FirstId));
    simulation.unplug(FirstId);
    QTRY_COMPARE(m_announced->count(), 2);
    QVERIFY(!find(FirstId));
    QCOMPARE(failed.count(), 1);
    QCOMPARE(m_pool->getActivity(FirstId), ECameraActivity::Idle);
    verifyRefused("does not answer");
    simulation.plugIn(FirstId);
    QTRY_COMPARE(m_announced->count(), 3);

    const auto status = getService<ICameraStatusService>();
    const QStringList ids{FirstId, SecondId, "cxp-50300021"};
    QVERIFY(m_pool->startAcquisition(FirstId));
    QVERIFY(m_pool->startRecording(SecondId, m_folder->path()));
    simulation.setBusy(ids.last(), true);
    for (const QString &id : ids)
        QVERIFY(status->isCameraBusy(find(id)));
    getService<ICameraStreamControlService>()->stopAllCameras();
    for (const QString &id : ids)
        QVERIFY(!status->isCameraBusy(find(id)));
}

void CCameraPoolTest::updateIsAnnouncedOnceAtItsEnd()
{
    createPool(20.0);
    const CameraInfoPtr before = find(FirstId);
    const auto job = createJob(FirstId, 20'000);
    QSignalSpy running(m_pool.get(), &CCameraPool::updateRunningChanged);
    QStringList versions;
    connect(getService<ICameraEnumerationService>().data(),
            &ICameraEnumerationService::enumerationChanged, this, [this, &versions] {
                versions.append(m_pool->isUpdateRunning() ? "too early"
                                                          : find(FirstId)->getFirmwareVersion());
            });
    std::thread thread([&job] { job->executeFirmwareUpdate(); });
    // Waited for below whatever happens, so nothing may return before.
    const bool begun = QTest::qWaitFor([&running] { return running.count() > 0; });
    const bool busy = getService<ICameraStatusService>()->isCameraBusy(before);
    const bool startable = m_pool->startAcquisition(FirstId);
    getService<CCameraEnumerationService>()->refreshEnumeration(); // an impatient user
    const QString versionMeanwhile = job->getFirmwareVersion();
    thread.join();
    QVERIFY(begun && !busy && !startable);
    QCOMPARE(versionMeanwhile, QString("1.2.0"));
    QTRY_COMPARE(versions, QStringList("2.0.0"));
    QCOMPARE(running.count(), 2);
    QCOMPARE(before->getFirmwareVersion(), QString("1.2.0"));

    createPool(); // the next start
    QCOMPARE(find(FirstId)->getFirmwareVersion(), QString("2.0.0"));
    QCOMPARE(find(SecondId)->getFirmwareVersion(), QString("1.2.0"));
}

void CCameraPoolTest::unpluggingEndsAnUpdate()
{
    createPool(1.0); // the upload alone would take the half of a minute
    const auto job = createJob(FirstId, 3'000'000);
    const CJobRecorder recorder(*job);
    std::thread thread([&job] { job->executeFirmwareUpdate(); });
    (void)QTest::qWaitFor([&] { return !recorder.getAll("step FileUpload").isEmpty(); }, 30'000);
    m_pool->getSimulation().unplug(FirstId);
    thread.join();
    QVERIFY2(recorder.getError().contains("connection was lost"), qPrintable(recorder.getError()));
    QTRY_VERIFY(!find(FirstId));
}

void CCameraPoolTest::jobOutlivesThePool()
{
    const auto job = createJob(FirstId, 20'000);
    m_announced.reset();
    m_pool.reset();
    const CJobRecorder recorder(*job);
    executeOnThread(*job);
    QCOMPARE(recorder.getAll("done").size(), 1);
}

void CCameraPoolTest::findsWhatFitsNewestFirst()
{
    const QStringList model{"VX-1", "VX-1400M"};
    const auto manifest = QSharedPointer<UpdateFile::CUpdateManifest>::create();
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
