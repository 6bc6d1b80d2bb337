#include "viewer/camerapool/devicefirmwareupdate.h"

#include "jobrecorder.h"
#include "scripteddevice.h"
#include "updatefixture.h"
#include "viewer/camerapool/cameraactivities.h"
#include "viewer/camerapool/cameraerror.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <new>
#include <thread>

using namespace Viewer::CameraPool;
using namespace Test;
using Plugin::CameraPool::EFirmwareUpdateDirection;
using Plugin::CameraPool::EFirmwareUpdateStep;
using UpdateFile::CUpdateEntry;

static const char *const StoppedText = "The series of updates was stopped before this camera";

class CDeviceFirmwareUpdateTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void runsTheStepsInOrder();
    void announcesInOrder();
    void progressComesOncePerPercent();
    void everyFailingOperationGivesOneError_data();
    void everyFailingOperationGivesOneError();
    void everyExceptionBecomesAnError_data();
    void everyExceptionBecomesAnError();
    void refusesBeforeTheFirstWrite_data();
    void refusesBeforeTheFirstWrite();
    void checksAgainJustBeforeTheFirstWrite();
    void checksAndProvesWithoutSuchSteps();
    void saysWhichVersionTheCameraReports();
    void failsWithoutItsFile_data();
    void failsWithoutItsFile();
    void secondExecutionTouchesNothing_data();
    void secondExecutionTouchesNothing();
    void cameraInUseIsNotTouched();
    void countsAsUpdatingWhileItRuns();
    void throwingReceiversDoNoHarm();
    void versionCanBeReadMeanwhile();
    void lastReferenceMayGoOnTheWorker();
    void directionFollowsTheVersions_data();
    void directionFollowsTheVersions();

private:
    QSharedPointer<CDeviceFirmwareUpdate> makeJob();
    void verifyFailure(const CJobRecorder &recorder, bool written) const;

    QScopedPointer<QTemporaryDir> m_folder;
    QByteArray m_image;
    CUpdateEntry m_entry;
    QString m_path;
    QString m_currentVersion;
    std::shared_ptr<CDeviceScript> m_script;
    std::shared_ptr<CCameraActivities> m_activities;
};

void CDeviceFirmwareUpdateTest::init()
{
    m_folder.reset(new QTemporaryDir);
    m_path = m_folder->filePath(QStringLiteral("update.guf"));
    m_image = makeImage(QStringLiteral("VX-1400M"), QStringLiteral("2.0.0"), 1000);
    writePayload(m_path, m_image);
    m_entry = makeEntry(QStringLiteral("2.0.0"), m_image);
    m_currentVersion = QStringLiteral("1.2.0");
    m_activities = std::make_shared<CCameraActivities>();
    m_script = std::make_shared<CDeviceScript>();
    m_script->features = {{QStringLiteral("DeviceModelName"), QStringLiteral("VX-1400M")},
                          {QStringLiteral("DeviceVersion"), QStringLiteral("R2")},
                          {QStringLiteral("DeviceFirmwareVersion"), m_currentVersion},
                          {QStringLiteral("DeviceStatus"), QStringLiteral("0")},
                          {QStringLiteral("Ready"), QStringLiteral("1")}};
    m_script->versionAfterReset = QStringLiteral("2.0.0");
}

QSharedPointer<CDeviceFirmwareUpdate> CDeviceFirmwareUpdateTest::makeJob()
{
    const CDeviceFirmwareUpdate::CCamera camera{QStringLiteral("id"), m_script->cameraName,
                                                m_currentVersion};
    return QSharedPointer<CDeviceFirmwareUpdate>(
        new CDeviceFirmwareUpdate(camera, makeInfo(m_entry, m_path),
                                  std::make_unique<CScriptedDevice>(m_script), m_activities));
}

void CDeviceFirmwareUpdateTest::verifyFailure(const CJobRecorder &recorder, bool written) const
{
    const QStringList errors = recorder.getAll("error");
    QCOMPARE(errors.size(), 1);
    QVERIFY(recorder.getAll("done").isEmpty());
    QVERIFY(recorder.getLines().constLast().startsWith(QLatin1String("error ")));
    const QString &text = errors.constFirst();
    QVERIFY2(text.contains(m_script->cameraName), qPrintable(text));
    QVERIFY2(!text.contains(QLatin1Char('\n')), qPrintable(text));
    QVERIFY2(!text.endsWith(QLatin1Char('.')), qPrintable(text));
    QVERIFY2(text.contains(QLatin1String("repeat it before the camera is used")) == written,
             qPrintable(text));
    QVERIFY(!m_script->isOpen);
    QVERIFY(!m_script->isAlive);
    QCOMPARE(m_activities->get(QStringLiteral("id")), ECameraActivity::Idle);
}

void CDeviceFirmwareUpdateTest::runsTheStepsInOrder()
{
    const auto job = makeJob();
    job->executeFirmwareUpdate();
    QStringList changes;
    for (const QString &call : qAsConst(m_script->calls)) {
        if (!call.startsWith(QLatin1String("read ")))
            changes.append(call);
    }
    QCOMPARE(changes,
             QStringList({QStringLiteral("open"), QStringLiteral("write FirmwareUpdateMode=On"),
                          QStringLiteral("upload FirmwareImage 1000"),
                          QStringLiteral("execute FirmwareActivate"), QStringLiteral("reset")}));
    QCOMPARE(m_script->uploaded, m_image);
    QCOMPARE(m_script->calls.constLast(), QStringLiteral("read DeviceFirmwareVersion"));
    QVERIFY(!m_script->isOpen);
    QVERIFY(!m_script->isAlive);
    QCOMPARE(job->getFirmwareVersion(), QStringLiteral("2.0.0"));
}

void CDeviceFirmwareUpdateTest::announcesInOrder()
{
    const auto job = makeJob();
    const CJobRecorder recorder(*job);
    job->executeFirmwareUpdate();
    QCOMPARE(
        recorder.getMilestones(),
        QStringList(
            {QStringLiteral("begin 1063"), QStringLiteral("step CheckPreconditions 1 Is it ready?"),
             QStringLiteral("stepDone CheckPreconditions 1"),
             QStringLiteral("step AcquireUpdateData 2"),
             QStringLiteral("stepDone AcquireUpdateData 2"), QStringLiteral("step FeatureWrite 4"),
             QStringLiteral("stepDone FeatureWrite 4"), QStringLiteral("step FileUpload 1000"),
             QStringLiteral("stepDone FileUpload 1000"), QStringLiteral("step FeatureExecute 8"),
             QStringLiteral("stepDone FeatureExecute 8"), QStringLiteral("step DeviceReset 16"),
             QStringLiteral("stepDone DeviceReset 16"), QStringLiteral("step FeatureAssert 32"),
             QStringLiteral("stepDone FeatureAssert 32"), QStringLiteral("done")}));
}

void CDeviceFirmwareUpdateTest::progressComesOncePerPercent()
{
    m_script->blockSize = 1;
    const auto job = makeJob();
    const CJobRecorder recorder(*job);
    job->executeFirmwareUpdate();
    QStringList expected;
    for (int percent = 1; percent <= 100; ++percent)
        expected.append(QStringLiteral("FileUpload %1").arg(percent));
    QCOMPARE(recorder.getAll("progress"), expected);
}

void CDeviceFirmwareUpdateTest::everyFailingOperationGivesOneError_data()
{
    QTest::addColumn<int>("failing");
    QTest::addColumn<bool>("written");
    init();
    makeJob()->executeFirmwareUpdate();
    const QStringList calls = m_script->calls;
    QVERIFY(calls.size() > 10);
    bool written = false;
    for (int i = 0; i < calls.size(); ++i) {
        written = written || calls.at(i).startsWith(QLatin1String("write"));
        QTest::addRow("%d: %s", i, qPrintable(calls.at(i))) << i << written;
    }
}

void CDeviceFirmwareUpdateTest::everyFailingOperationGivesOneError()
{
    QFETCH(int, failing);
    QFETCH(bool, written);
    m_script->before = [this, failing](const QString &) {
        if (m_script->calls.size() == failing)
            throw CCameraError(m_script->cameraName, QStringLiteral("as ordered"));
    };
    const auto job = makeJob();
    const CJobRecorder recorder(*job);
    executeOnThread(*job);
    verifyFailure(recorder, written);
    QVERIFY(recorder.getAll("error").constFirst().contains(QLatin1String("as ordered")));
    QCOMPARE(recorder.getAll("begin").size(), 1);
    QCOMPARE(m_script->calls.size(), failing); // nothing was done after it
}

void CDeviceFirmwareUpdateTest::everyExceptionBecomesAnError_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("out of memory") << 0;
    QTest::newRow("standard exception") << 1;
    QTest::newRow("something else") << 2;
    QTest::newRow("message without text") << 3;
    QTest::newRow("message of two lines with full stops") << 4;
}

void CDeviceFirmwareUpdateTest::everyExceptionBecomesAnError()
{
    QFETCH(int, kind);
    m_script->before = [kind](const QString &call) {
        if (call != QLatin1String("reset"))
            return;
        switch (kind) {
        case 0:
            throw std::bad_alloc();
        case 1:
            throw std::runtime_error("runtime trouble");
        case 2:
            throw 42;
        case 3:
            throw Core::Exception::BaseException(QStringLiteral(" \n "));
        default:
            throw Core::Exception::BaseException(QStringLiteral("One.\nTwo..."));
        }
    };
    const auto job = makeJob();
    const CJobRecorder recorder(*job);
    job->executeFirmwareUpdate();
    verifyFailure(recorder, kind != 0);
}

void CDeviceFirmwareUpdateTest::refusesBeforeTheFirstWrite_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("cause");
    QTest::newRow("status") << QStringLiteral("DeviceStatus") << QStringLiteral("5")
                            << QStringLiteral("reports status 5");
    QTest::newRow("other model") << QStringLiteral("DeviceModelName") << QStringLiteral("VX-1")
                                 << QStringLiteral("not for its model \"VX-1\"");
    QTest::newRow("other device version") << QStringLiteral("DeviceVersion") << QStringLiteral("R9")
                                          << QStringLiteral("not for its device version \"R9\"");
    QTest::newRow("too old") << QStringLiteral("DeviceFirmwareVersion") << QStringLiteral("1.0.9")
                             << QStringLiteral("\"1.0.9\" is below 1.1");
    QTest::newRow("unreadable version")
        << QStringLiteral("DeviceFirmwareVersion") << QStringLiteral("?")
        << QStringLiteral("\"?\" is below 1.1");
    QTest::newRow("the file's own precondition")
        << QStringLiteral("Ready") << QStringLiteral("0")
        << QStringLiteral("its feature \"Ready\" is \"0\" instead of \"1\"");
}

void CDeviceFirmwareUpdateTest::refusesBeforeTheFirstWrite()
{
    QFETCH(QString, feature);
    QFETCH(QString, value);
    QFETCH(QString, cause);
    m_entry.deviceVersions = QStringList{QStringLiteral("R1"), QStringLiteral("R2")};
    m_entry.minimumVersion = QStringLiteral("1.1");
    m_script->features.insert(feature, value);
    const auto job = makeJob();
    const CJobRecorder recorder(*job);
    job->executeFirmwareUpdate();
    verifyFailure(recorder, false);
    QVERIFY2(recorder.getAll("error").constFirst().contains(cause),
             qPrintable(recorder.getAll("error").constFirst()));
    QVERIFY(m_script->calls.filter(QStringLiteral("write")).isEmpty());
}

void CDeviceFirmwareUpdateTest::checksAgainJustBeforeTheFirstWrite()
{
    // What the step has found good turns bad afterwards.
    m_script->before = [this](const QString &call) {
        if (call == QLatin1String("read Ready") && m_script->calls.contains(call))
            m_script->features.insert(QStringLiteral("Ready"), QStringLiteral("0"));
    };
    const auto job = makeJob();
    const CJobRecorder recorder(*job);
    job->executeFirmwareUpdate();
    verifyFailure(recorder, false);
    QCOMPARE(recorder.getAll("stepDone"),
             QStringList(
                 {QStringLiteral("CheckPreconditions 1"), QStringLiteral("AcquireUpdateData 2")}));
}

void CDeviceFirmwareUpdateTest::checksAndProvesWithoutSuchSteps()
{
    const auto isUpload = [](const UpdateFile::CUpdateStep &step) {
        return step.kind == EFirmwareUpdateStep::FileUpload;
    };
    const auto upload = *std::find_if(m_entry.steps.cbegin(), m_entry.steps.cend(), isUpload);
    m_entry.steps = {upload};
    const auto job = makeJob();
    const CJobRecorder recorder(*job);
    job->executeFirmwareUpdate();
    // Nobody restarted the camera, so it cannot have the new firmware.
    verifyFailure(recorder, true);
    QVERIFY(recorder.getAll("error").constFirst().contains(
        QLatin1String("reports firmware version \"1.2.0\" instead of 2.0.0")));
    const int model = m_script->calls.indexOf(QStringLiteral("read DeviceModelName"));
    QVERIFY(model > 0);
    QVERIFY(model < m_script->calls.indexOf(QStringLiteral("upload FirmwareImage 1000")));

    init();
    m_entry.steps = {upload};
    m_entry.models = QStringList{QStringLiteral("Other")};
    const auto refused = makeJob();
    const CJobRecorder refusal(*refused);
    refused->executeFirmwareUpdate();
    verifyFailure(refusal, false);
    QVERIFY(m_script->uploaded.isEmpty());
}

void CDeviceFirmwareUpdateTest::saysWhichVersionTheCameraReports()
{
    m_entry.steps.removeLast(); // no assertion
    m_script->versionAfterReset = QStringLiteral("1.9.0");
    const auto job = makeJob();
    const CJobRecorder recorder(*job);
    job->executeFirmwareUpdate();
    verifyFailure(recorder, true);
    QVERIFY(recorder.getAll("error").constFirst().contains(
        QLatin1String("after the update it reports firmware version \"1.9.0\" instead of 2.0.0")));
    QCOMPARE(job->getFirmwareVersion(), QStringLiteral("1.9.0"));
}

void CDeviceFirmwareUpdateTest::failsWithoutItsFile_data()
{
    QTest::addColumn<QByteArray>("image"); // in the file; null: no file at all
    QTest::addColumn<bool>("withAcquisition");
    QByteArray damaged = makeImage(QStringLiteral("VX-1400M"), QStringLiteral("2.0.0"), 1000);
    damaged[999] = 'y';
    QTest::newRow("no file") << QByteArray() << true;
    QTest::newRow("wrong digest") << damaged << true;
    QTest::newRow("wrong digest, no step to find it") << damaged << false;
    QTest::newRow("too short") << damaged.left(999) << true;
}

void CDeviceFirmwareUpdateTest::failsWithoutItsFile()
{
    QFETCH(QByteArray, image);
    QFETCH(bool, withAcquisition);
    if (image.isNull())
        QVERIFY(QFile::remove(m_path));
    else
        writePayload(m_path, image);
    if (!withAcquisition)
        m_entry.steps.remove(1);
    const auto job = makeJob();
    const CJobRecorder recorder(*job);
    executeOnThread(*job);
    verifyFailure(recorder, false);
    QVERIFY(m_script->uploaded.isEmpty());
    QVERIFY(m_script->calls.filter(QStringLiteral("write")).isEmpty());
}

void CDeviceFirmwareUpdateTest::secondExecutionTouchesNothing_data()
{
    QTest::addColumn<bool>("firstSucceeds");
    QTest::newRow("after success") << true;
    QTest::newRow("after failure") << false;
}

void CDeviceFirmwareUpdateTest::secondExecutionTouchesNothing()
{
    QFETCH(bool, firstSucceeds);
    if (!firstSucceeds)
        m_script->features.insert(QStringLiteral("DeviceStatus"), QStringLiteral("1"));
    const auto job = makeJob();
    executeOnThread(*job);
    const QStringList calls = m_script->calls;
    const QString version = job->getFirmwareVersion();
    for (int i = 0; i < 2; ++i) {
        const CJobRecorder recorder(*job);
        executeOnThread(*job);
        QCOMPARE(recorder.getLines(),
                 QStringList(QStringLiteral("error ") + QString::fromLatin1(StoppedText)));
    }
    QCOMPARE(m_script->calls, calls);
    QCOMPARE(job->getFirmwareVersion(), version);
    QCOMPARE(m_activities->getUpdateCount(), 1);
}

void CDeviceFirmwareUpdateTest::cameraInUseIsNotTouched()
{
    m_activities->begin(QStringLiteral("id"), ECameraActivity::Acquiring);
    const auto job = makeJob();
    const CJobRecorder recorder(*job);
    job->executeFirmwareUpdate();
    QCOMPARE(recorder.getAll("error").size(), 1);
    QVERIFY(recorder.getAll("error").constFirst().contains(QLatin1String("acquiring images")));
    QVERIFY(m_script->calls.isEmpty());
    // Its acquisition goes on.
    QCOMPARE(m_activities->get(QStringLiteral("id")), ECameraActivity::Acquiring);
}

void CDeviceFirmwareUpdateTest::countsAsUpdatingWhileItRuns()
{
    const auto job = makeJob();
    QStringList idleAt;
    m_script->before = [this, &idleAt](const QString &call) {
        if (!m_activities->isUpdateRunning())
            idleAt.append(call);
    };
    bool runningAtEnd = false;
    connect(job.data(), &Plugin::CameraPool::IDeviceFirmwareUpdate::firmwareUpdateDone, this,
            [&] { runningAtEnd = m_activities->isUpdateRunning(); });
    job->executeFirmwareUpdate();
    QCOMPARE(idleAt, QStringList());
    QVERIFY(runningAtEnd);
    QVERIFY(!m_activities->isUpdateRunning());
}

void CDeviceFirmwareUpdateTest::throwingReceiversDoNoHarm()
{
    using Plugin::CameraPool::IDeviceFirmwareUpdate;
    const auto job = makeJob();
    const CJobRecorder recorder(*job);
    // Direct connections without Qt's event loop in between let exceptions through.
    connect(job.data(), &IDeviceFirmwareUpdate::firmwareUpdateProgressStepBegin, this,
            [](EFirmwareUpdateStep, unsigned, const QString &) { throw 1; });
    connect(job.data(), &IDeviceFirmwareUpdate::firmwareUpdateError, this,
            [](const QString &) { throw 2; });
    QTest::ignoreMessage(QtCriticalMsg,
                         "a receiver of the update's last signal has thrown an exception");
    job->executeFirmwareUpdate();
    verifyFailure(recorder, false);
}

void CDeviceFirmwareUpdateTest::versionCanBeReadMeanwhile()
{
    const auto job = makeJob();
    std::atomic<bool> uploading = false;
    std::atomic<bool> goOn = false;
    m_script->before = [&](const QString &call) {
        if (!call.startsWith(QLatin1String("reset")))
            return;
        uploading = true;
        while (!goOn)
            std::this_thread::yield();
    };
    std::atomic<bool> ended = false;
    std::thread thread([&] {
        job->executeFirmwareUpdate();
        ended = true;
    });
    while (!uploading)
        std::this_thread::yield();
    const QString versionMeanwhile = job->getFirmwareVersion();
    const QString targetMeanwhile = job->getFirmwareUpdateInfo()->getVersion();
    goOn = true;
    while (!ended)
        (void)job->getFirmwareVersion();
    thread.join();
    QCOMPARE(versionMeanwhile, QStringLiteral("1.2.0"));
    QCOMPARE(targetMeanwhile, QStringLiteral("2.0.0"));
    QCOMPARE(job->getFirmwareVersion(), QStringLiteral("2.0.0"));
}

void CDeviceFirmwareUpdateTest::lastReferenceMayGoOnTheWorker()
{
    for (const bool executed : {true, false}) {
        auto job = makeJob();
        const QWeakPointer<CDeviceFirmwareUpdate> guard = job;
        std::thread([worker = std::move(job), executed]() mutable {
            if (executed)
                worker->executeFirmwareUpdate();
            worker.clear();
        }).join();
        QVERIFY(guard.isNull());
        QVERIFY(!m_script->isAlive);
    }
}

void CDeviceFirmwareUpdateTest::directionFollowsTheVersions_data()
{
    QTest::addColumn<QString>("current");
    QTest::addColumn<EFirmwareUpdateDirection>("direction");
    QTest::newRow("older camera") << QStringLiteral("1.9") << EFirmwareUpdateDirection::Upgrade;
    QTest::newRow("newer camera") << QStringLiteral("2.0.1") << EFirmwareUpdateDirection::Downgrade;
    QTest::newRow("same version") << QStringLiteral("2.0") << EFirmwareUpdateDirection::Reinstall;
    QTest::newRow("unreadable") << QStringLiteral("unknown") << EFirmwareUpdateDirection::Upgrade;
}

void CDeviceFirmwareUpdateTest::directionFollowsTheVersions()
{
    QFETCH(QString, current);
    QFETCH(EFirmwareUpdateDirection, direction);
    m_currentVersion = current;
    QCOMPARE(makeJob()->getFirmwareUpdateDirection(), direction);
}

QTEST_GUILESS_MAIN(CDeviceFirmwareUpdateTest)
#include "tst_devicefirmwareupdate.moc"
