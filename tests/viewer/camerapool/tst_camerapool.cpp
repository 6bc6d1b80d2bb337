#include "viewer/camerapool/camerapool.h"
#include "viewer/camerapool/simulation/simulation.h"

#include "jobrecorder.h"
#include "updatefixture.h"

#include "camerapool/icameraenumerationservice.h"
#include "camerapool/icamerastatusservice.h"
#include "camerapool/icamerastreamcontrolservice.h"
#include "camerapool/idevicefirmwareupdateservice.h"
#include "core/baseexception.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <thread>

using namespace Viewer::CameraPool;
using namespace Test;
using namespace Plugin::CameraPool;

static const QString FirstId = QStringLiteral("gige-40012345");
static const QString SecondId = QStringLiteral("gige-40012346");

namespace {

/// One execution of a job on a thread of its own, which is joined in any case.
class CExecution
{
public:
    explicit CExecution(IDeviceFirmwareUpdate &job)
        : m_thread([&job] { job.executeFirmwareUpdate(); })
    {
    }

    ~CExecution()
    {
        join();
    }
    Q_DISABLE_COPY(CExecution)

    void join()
    {
        if (m_thread.joinable())
            m_thread.join();
    }

private:
    std::thread m_thread;
};

} // namespace

class CCameraPoolTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void refusesFaultyOptions();
    void announcesPluggedAndUnpluggedCameras();
    void framesComeUntilStopped();
    void recordsFrames();
    void recordingEndsWithoutItsFolder();
    void refusesToStart_data();
    void refusesToStart();
    void stopAllIsCompleteAtOnce();
    void unpluggingEndsAcquisition();
    void updateIsAnnouncedOnceAtItsEnd();
    void unpluggingEndsAnUpdate();
    void versionsOutliveThePool();
    void jobOutlivesThePool();

private:
    void createPool(double speedFactor, bool resetCameras = false);
    [[nodiscard]] CameraInfoPtr find(const QString &cameraId) const;
    [[nodiscard]] DeviceFirmwareUpdatePtr createJob(const QString &cameraId,
                                                    int imageSize = 20'000);

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
};

void CCameraPoolTest::init()
{
    m_folder.reset(new QTemporaryDir);
    createPool(500.0);
}

void CCameraPoolTest::cleanup()
{
    m_pool.reset();
}

void CCameraPoolTest::createPool(double speedFactor, bool resetCameras)
{
    CCameraPoolOptions options;
    options.stateFile = m_folder->filePath(QStringLiteral("firmware.json"));
    options.speedFactor = speedFactor;
    options.resetCameras = resetCameras;
    m_pool.reset();
    m_pool = std::make_unique<CCameraPool>(options);
    QSignalSpy announced(getService<ICameraEnumerationService>().data(),
                         &ICameraEnumerationService::enumerationChanged);
    m_pool->start();
    QTRY_COMPARE(announced.count(), 1);
}

CameraInfoPtr CCameraPoolTest::find(const QString &cameraId) const
{
    for (const auto &layer :
         getService<ICameraEnumerationService>()->getTransportLayerInfoVector()) {
        for (const CameraInfoPtr &camera : layer->getCameraInfoList()) {
            if (camera->getId() == cameraId)
                return camera;
        }
    }
    return {};
}

DeviceFirmwareUpdatePtr CCameraPoolTest::createJob(const QString &cameraId, int imageSize)
{
    const QString path = m_folder->filePath(QStringLiteral("update.guf"));
    writeUpdateFile(path, {QStringLiteral("2.0.0")}, imageSize);
    const auto service = getService<IDeviceFirmwareUpdateService>();
    return service->createDeviceFirmwareUpdate(
        find(cameraId), service->getFirmwareUpdateInfos(path, {}).constFirst());
}

void CCameraPoolTest::refusesFaultyOptions()
{
    CCameraPoolOptions options;
    options.descriptionFile = m_folder->filePath(QStringLiteral("missing.json"));
    QVERIFY_EXCEPTION_THROWN(CCameraPool{options}, Core::Exception::BaseException);
    options.descriptionFile.clear();
    for (const double speed : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN(),
                               std::numeric_limits<double>::infinity()}) {
        options.speedFactor = speed;
        QVERIFY_EXCEPTION_THROWN(CCameraPool{options}, Core::Exception::BaseException);
    }
}

void CCameraPoolTest::announcesPluggedAndUnpluggedCameras()
{
    QSignalSpy announced(getService<ICameraEnumerationService>().data(),
                         &ICameraEnumerationService::enumerationChanged);
    QSignalSpy changed(m_pool.get(), &CCameraPool::activityChanged);
    m_pool->getSimulation().unplug(FirstId);
    QTRY_COMPARE(announced.count(), 1);
    QVERIFY(!find(FirstId));
    QVERIFY(find(SecondId));
    QVERIFY(changed.contains(QVariantList{FirstId}));
    QVERIFY(!m_pool->getSimulation().isPlugged(FirstId));
    QCOMPARE(m_pool->getSimulation().getCameras().size(), 12);
    m_pool->getSimulation().plugIn(FirstId);
    QTRY_COMPARE(announced.count(), 2);
    QVERIFY(find(FirstId));
}

void CCameraPoolTest::framesComeUntilStopped()
{
    const auto status = getService<ICameraStatusService>();
    QVector<QImage> frames;
    connect(m_pool.get(), &CCameraPool::frameReady, this,
            [&frames](const QString &cameraId, const QImage &frame) {
                QCOMPARE(cameraId, FirstId);
                frames.append(frame);
            });
    QVERIFY(!status->isCameraBusy(find(FirstId)));
    QVERIFY(m_pool->startAcquisition(FirstId));
    QVERIFY(m_pool->startAcquisition(FirstId)); // once more does no harm
    QCOMPARE(m_pool->getActivity(FirstId), ECameraActivity::Acquiring);
    QVERIFY(status->isCameraBusy(find(FirstId)));
    QTRY_VERIFY(frames.size() >= 2);
    QVERIFY(frames.at(0) != frames.at(1)); // it moves
    m_pool->stopAcquisition(FirstId);
    QCOMPARE(m_pool->getActivity(FirstId), ECameraActivity::Idle);
    frames.clear();
    // A frame made before would arrive ahead of the other camera's.
    disconnect(m_pool.get(), &CCameraPool::frameReady, this, nullptr);
    QSignalSpy others(m_pool.get(), &CCameraPool::frameReady);
    QVERIFY(m_pool->startAcquisition(SecondId));
    QTRY_VERIFY(others.count() >= 2);
    for (const QVariantList &frame : qAsConst(others))
        QCOMPARE(frame.at(0).toString(), SecondId);
}

void CCameraPoolTest::recordsFrames()
{
    const QString path = m_folder->filePath(QStringLiteral("frames"));
    QVERIFY(QDir().mkpath(path));
    const QDir folder(path);
    QVERIFY(m_pool->startRecording(FirstId, path));
    QCOMPARE(m_pool->getActivity(FirstId), ECameraActivity::Recording);
    QVERIFY(getService<ICameraStatusService>()->isCameraBusy(find(FirstId)));
    QTRY_VERIFY(folder.entryList(QDir::Files).size() >= 2);
    m_pool->stopRecording(FirstId);
    QCOMPARE(m_pool->getActivity(FirstId), ECameraActivity::Acquiring);
    const QStringList files = folder.entryList(QDir::Files, QDir::Name);
    for (const QString &file : files) {
        QVERIFY2(file.startsWith(FirstId) && file.endsWith(QLatin1String(".png")),
                 qPrintable(file));
        QCOMPARE(QImage(folder.filePath(file)).size(), QSize(640, 480)); // whole, also the last
    }
    QSignalSpy frames(m_pool.get(), &CCameraPool::frameReady);
    QTRY_VERIFY(frames.count() >= 2);
    QCOMPARE(folder.entryList(QDir::Files, QDir::Name), files);
}

void CCameraPoolTest::recordingEndsWithoutItsFolder()
{
    const QString path = m_folder->filePath(QStringLiteral("frames"));
    QString error;
    QVERIFY(!m_pool->startRecording(FirstId, path, &error));
    QVERIFY2(error.contains(QLatin1String("does not exist")), qPrintable(error));
    QCOMPARE(m_pool->getActivity(FirstId), ECameraActivity::Idle);

    QVERIFY(QDir().mkpath(path));
    QSignalSpy failed(m_pool.get(), &CCameraPool::streamFailed);
    QVERIFY(m_pool->startRecording(FirstId, path, &error));
    QVERIFY(QDir(path).removeRecursively());
    QTRY_COMPARE(failed.count(), 1);
    QVERIFY(failed.at(0).at(1).toString().contains(QLatin1String("Hall 1")));
    QVERIFY(failed.at(0).at(1).toString().contains(QLatin1String("cannot be written")));
    QCOMPARE(m_pool->getActivity(FirstId), ECameraActivity::Acquiring);
}

void CCameraPoolTest::refusesToStart_data()
{
    QTest::addColumn<QString>("obstacle");
    QTest::newRow("starts are locked") << QStringLiteral("firmware updater is open");
    QTest::newRow("unplugged") << QStringLiteral("does not answer");
    QTest::newRow("busy elsewhere") << QStringLiteral("used by another application");
}

void CCameraPoolTest::refusesToStart()
{
    QFETCH(QString, obstacle);
    m_pool->setStartsLocked(obstacle.contains(QLatin1String("updater")));
    if (obstacle.contains(QLatin1String("answer")))
        m_pool->getSimulation().unplug(FirstId);
    m_pool->getSimulation().setBusy(FirstId, obstacle.contains(QLatin1String("another")));
    QString error;
    QVERIFY(!m_pool->startAcquisition(FirstId, &error));
    QVERIFY2(error.contains(obstacle), qPrintable(error));
    error.clear();
    QVERIFY(!m_pool->startRecording(FirstId, m_folder->path(), &error));
    QVERIFY2(error.contains(obstacle), qPrintable(error));
}

void CCameraPoolTest::stopAllIsCompleteAtOnce()
{
    const auto status = getService<ICameraStatusService>();
    QVERIFY(m_pool->startAcquisition(FirstId));
    QVERIFY(m_pool->startRecording(SecondId, m_folder->path()));
    m_pool->getSimulation().setBusy(QStringLiteral("cxp-50300021"), true);
    QVERIFY(status->isCameraBusy(find(QStringLiteral("cxp-50300021"))));
    QSignalSpy announced(getService<ICameraEnumerationService>().data(),
                         &ICameraEnumerationService::enumerationChanged);
    getService<ICameraStreamControlService>()->stopAllCameras();
    for (const auto &camera : m_pool->getSimulation().getCameras()) {
        QCOMPARE(m_pool->getActivity(camera.id), ECameraActivity::Idle);
        QVERIFY(!status->isCameraBusy(find(camera.id)));
    }
    // Making the camera busy and free has changed nothing that an enumeration tells.
    getService<ICameraEnumerationService>()->refreshEnumeration();
    QTRY_COMPARE(announced.count(), 1);
    QVERIFY(!status->isCameraBusy({}));
}

void CCameraPoolTest::unpluggingEndsAcquisition()
{
    QSignalSpy failed(m_pool.get(), &CCameraPool::streamFailed);
    QVERIFY(m_pool->startAcquisition(FirstId));
    m_pool->getSimulation().unplug(FirstId);
    QTRY_COMPARE(failed.count(), 1);
    QCOMPARE(failed.at(0).at(0).toString(), FirstId);
    QCOMPARE(m_pool->getActivity(FirstId), ECameraActivity::Idle);
}

void CCameraPoolTest::updateIsAnnouncedOnceAtItsEnd()
{
    createPool(20.0);
    const auto enumeration = getService<ICameraEnumerationService>();
    const CameraInfoPtr before = find(FirstId);
    const auto job = createJob(FirstId);
    QVERIFY(job);
    QSignalSpy running(m_pool.get(), &CCameraPool::updateRunningChanged);
    QStringList versionsAnnounced;
    bool announcedWhileRunning = false;
    connect(enumeration.data(), &ICameraEnumerationService::enumerationChanged, this, [&] {
        announcedWhileRunning = announcedWhileRunning || m_pool->isUpdateRunning();
        versionsAnnounced.append(find(FirstId) ? find(FirstId)->getFirmwareVersion() : QString());
    });
    CExecution execution(*job);
    QTRY_VERIFY(running.count() > 0);
    QCOMPARE(running.at(0).at(0).toBool(), true);
    QString error;
    if (m_pool->isUpdateRunning() && !m_pool->startAcquisition(FirstId, &error))
        QVERIFY2(error.contains(QLatin1String("being updated")), qPrintable(error));
    QTRY_COMPARE(running.count(), 2);
    execution.join();
    QTRY_COMPARE(versionsAnnounced, QStringList(QStringLiteral("2.0.0")));
    QVERIFY(!announcedWhileRunning);
    QVERIFY(find(FirstId) != before);
    QCOMPARE(before->getFirmwareVersion(), QStringLiteral("1.2.0"));
    QCOMPARE(job->getFirmwareVersion(), QStringLiteral("2.0.0"));
    QVERIFY(!getService<ICameraStatusService>()->isCameraBusy(find(FirstId)));
}

void CCameraPoolTest::unpluggingEndsAnUpdate()
{
    createPool(1.0); // the upload alone would take the half of a minute
    const auto job = createJob(FirstId, 3'000'000);
    const CJobRecorder recorder(*job);
    CExecution execution(*job);
    QTRY_VERIFY_WITH_TIMEOUT(!recorder.getAll("step FileUpload").isEmpty(), 30'000);
    m_pool->getSimulation().unplug(FirstId);
    execution.join();
    QCOMPARE(recorder.getAll("error").size(), 1);
    QVERIFY(recorder.getAll("error").constFirst().contains(QLatin1String("connection was lost")));
    QVERIFY(recorder.getAll("done").isEmpty());
    QCOMPARE(m_pool->getActivity(FirstId), ECameraActivity::Idle);
    QTRY_VERIFY(!find(FirstId));
}

void CCameraPoolTest::versionsOutliveThePool()
{
    executeOnThread(*createJob(FirstId));
    createPool(500.0);
    QCOMPARE(find(FirstId)->getFirmwareVersion(), QStringLiteral("2.0.0"));
    QCOMPARE(find(SecondId)->getFirmwareVersion(), QStringLiteral("1.2.0"));
    QCOMPARE(createJob(FirstId)->getFirmwareUpdateDirection(), EFirmwareUpdateDirection::Reinstall);

    createPool(500.0, true);
    QCOMPARE(find(FirstId)->getFirmwareVersion(), QStringLiteral("1.2.0"));
    createPool(500.0);
    QCOMPARE(find(FirstId)->getFirmwareVersion(), QStringLiteral("1.2.0"));

    QFile state(m_folder->filePath(QStringLiteral("firmware.json")));
    QVERIFY(state.open(QIODevice::WriteOnly));
    state.write("{ damaged");
    state.close();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cannot be read")));
    createPool(500.0);
    QCOMPARE(find(FirstId)->getFirmwareVersion(), QStringLiteral("1.2.0"));
}

void CCameraPoolTest::jobOutlivesThePool()
{
    const auto job = createJob(FirstId);
    m_pool.reset();
    const CJobRecorder recorder(*job);
    executeOnThread(*job);
    QCOMPARE(recorder.getAll("done").size(), 1);
}

QTEST_GUILESS_MAIN(CCameraPoolTest)
#include "tst_camerapool.moc"
