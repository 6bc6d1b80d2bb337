#include "viewer/update/devicefirmwareupdate.h"

#include "jobrecorder.h"
#include "updatefilebuilder.h"
#include "updatefixture.h"
#include "viewer/camera/cameraactivities.h"
#include "viewer/camera/cameraerror.h"
#include "viewer/camera/icameradevice.h"
#include "viewer/text/visibletext.h"
#include "viewer/update/firmwareupdateinfo.h"
#include "viewer/update/progressthrottle.h"
#include "viewer/update/updateestimate.h"
#include "viewer/update/updatehistory.h"
#include "viewer/update/updatejournal.h"
#include "viewer/updatefile/updatefilereader.h"

#include <QDir>
#include <QFile>
#include <QIODevice>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <limits>
#include <new>
#include <thread>

using namespace Viewer::Camera;
using namespace Viewer::Update;
using namespace Viewer::UpdateFile;
using namespace TestSupport;
using namespace std::chrono_literals;
using std::chrono::milliseconds;

// Two blanks, of which messages show one.
static const QString CAMERA_NAME = "Scripted  camera";

/// What a CScriptedDevice does and what was done to it; outlives the device, which a job owns.
struct CDeviceScript
{
    QHash<QString, QString> features; ///< by name
    QString versionAfterReset = "2.0.0";
    std::function<void(const QString &call)> before; ///< each operation but close(); may throw
    QStringList calls; ///< "open", "read A", "write A=b", "execute A", "upload A 400", "reset"
    QByteArray uploaded; ///< all bytes of all uploads
    QHash<QString, milliseconds> limits; ///< what each call was given last
    int refusesAtByte = -1; ///< of an upload
    bool isOpen = false;
};

/// A camera that is a script: no waiting, no surprises but the ones ordered.
class CScriptedDevice : public ICameraDevice
{
public:
    explicit CScriptedDevice(const std::shared_ptr<CDeviceScript> &script)
        : m_script(script)
    {
    }

    QString getName() const override { return "Left"; }

    void open(milliseconds limit) override
    {
        m_script->isOpen = true; // also when it fails then: close() has to follow
        note("open", limit);
    }

    void close() noexcept override { m_script->isOpen = false; }

    QString readFeature(const QString &name, milliseconds limit) override
    {
        note("read " + name, limit);
        return m_script->features.value(name);
    }

    void writeFeature(const QString &name, const QString &value, milliseconds limit) override
    {
        note("write " + name + "=" + value, limit);
    }

    void executeCommand(const QString &name, milliseconds limit) override
    {
        note("execute " + name, limit);
    }

    void uploadFile(const QString &fileName, QIODevice &source, qint64 size,
                    const ProgressFunction &progress, milliseconds limit) override
    {
        note("upload " + fileName + " " + QString::number(size), limit);
        while (m_script->uploaded.size() < size) {
            m_script->uploaded += source.read(10);
            progress(m_script->uploaded.size());
            if (m_script->uploaded.size() == m_script->refusesAtByte)
                throw CCameraError(CAMERA_NAME, Viewer::Text::CErrorText("no more"),
                                   CCameraError::EChange::None);
        }
    }

    void resetAndWait(milliseconds limit) override
    {
        note("reset", limit);
        m_script->features.insert("DeviceFirmwareVersion", m_script->versionAfterReset);
    }

    qint64 getUploadRate() const override { return 1000; }
    milliseconds getShortestResetLimit() const override { return 45s; }

private:
    void note(const QString &call, milliseconds limit)
    {
        if (limit <= milliseconds::zero())
            qFatal("%s without a time limit", qPrintable(call));
        if (m_script->before)
            m_script->before(call);
        m_script->calls.append(call);
        m_script->limits.insert(call, limit);
    }

    const std::shared_ptr<CDeviceScript> m_script;
};

class CDeviceFirmwareUpdateTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void announcesWhatItDoes();
    void everyFailingOperationGivesOneError();
    void everyExceptionBecomesAnError();
    void refusesBeforeTheFirstWrite();
    void showsWhatTheCameraSaysOnOneLine();
    void provesTheVersionWithoutSuchAStep();
    void touchesNeitherTwiceNorWhatIsInUse();
    void estimatesStayInTheirLimits();
    void passesProgressOnNowAndThen();
    void keepsAJournal();

private:
    [[nodiscard]] QSharedPointer<CDeviceFirmwareUpdate> makeJob(const QString &journalFolder
                                                                = {}) const;

    /// Executes @p job or a new one, which has to fail with one sentence that contains @p cause.
    void verifyFailure(const QString &cause, bool written,
                       QSharedPointer<CDeviceFirmwareUpdate> job = {});

    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath("update.guf");
    CUpdateManifest m_manifest;
    std::shared_ptr<CDeviceScript> m_script;
    std::shared_ptr<CCameraActivities> m_activities;
};

void CDeviceFirmwareUpdateTest::init()
{
    writeUpdateFile(m_path, {"2.0.0"}, 1000);
    m_manifest = CUpdateFileReader::read(m_path);
    m_activities = std::make_shared<CCameraActivities>();
    m_script = std::make_shared<CDeviceScript>();
    m_script->features = {{"DeviceModelName", "VX-1400M"},
                          {"DeviceVersion", "R2"},
                          {"DeviceFirmwareVersion", "1.2.0"},
                          {"DeviceStatus", "0"}};
}

QSharedPointer<CDeviceFirmwareUpdate>
CDeviceFirmwareUpdateTest::makeJob(const QString &journalFolder) const
{
    const auto manifest = QSharedPointer<CUpdateManifest>::create(m_manifest);
    QSharedPointer<CDeviceFirmwareUpdate> job(new CDeviceFirmwareUpdate(
        {"id", CAMERA_NAME, "1.2.0", "VX-1400M", "40012345", "10.0.0.1"},
        QSharedPointer<CFirmwareUpdateInfo>::create(manifest, 0, m_path),
        std::make_unique<CScriptedDevice>(m_script), m_activities, nullptr, journalFolder));
    job->setLogFinder([] { return QString("/logs/a.log"); });
    return job;
}

void CDeviceFirmwareUpdateTest::verifyFailure(const QString &cause, bool written,
                                              QSharedPointer<CDeviceFirmwareUpdate> job)
{
    if (!job)
        job = makeJob();
    const CJobRecorder recorder(*job);
    executeOnThread(*job);
    const QString text = recorder.getError();
    QVERIFY2(text.startsWith("Camera Scripted camera: ") && text.count("Camera") == 1,
             qPrintable(text));
    QVERIFY2(text.contains(cause), qPrintable(text));
    QVERIFY2(!Viewer::Text::hasUnprintable(text) && !text.endsWith('.'), qPrintable(text));
    QVERIFY2(text.size() < 400, qPrintable(text));
    QVERIFY2(text.endsWith("repeat it before the camera is used") == written, qPrintable(text));
    QCOMPARE(recorder.getAll("begin").size(), 1);
    QVERIFY(written || m_script->calls.filter(QRegularExpression("^(write|up|ex|res)")).isEmpty());
    QVERIFY(!m_script->isOpen);
    QCOMPARE(m_activities->get("id"), ECameraActivity::Idle);
}

void CDeviceFirmwareUpdateTest::announcesWhatItDoes()
{
    const auto job = makeJob();
    const CJobRecorder recorder(*job);
    job->executeFirmwareUpdate();
    QCOMPARE(recorder.getMilestones().join(", "),
             QString("begin 1063, step CheckPreconditions 1 Is it ready?, "
                     "stepDone CheckPreconditions 1, step AcquireUpdateData 2, "
                     "stepDone AcquireUpdateData 2, step FeatureWrite 4, stepDone FeatureWrite 4, "
                     "step FileUpload 1000, stepDone FileUpload 1000, step FeatureExecute 8, "
                     "stepDone FeatureExecute 8, step DeviceReset 16, stepDone DeviceReset 16, "
                     "step FeatureAssert 32, stepDone FeatureAssert 32, done"));
    const QStringList progress = recorder.getAll("progress");
    QCOMPARE(progress.constLast(), QString("FileUpload 100"));
    QVERIFY2(progress.size() < 50, "of each of the 100 blocks");
    QCOMPARE(m_script->calls.filter(QRegularExpression("^(?!read)")).join(", "),
             QString("open, write FirmwareUpdateMode=On, upload FirmwareImage 1000, "
                     "execute FirmwareActivate, reset"));
    QCOMPARE(m_script->calls.constLast(), QString("read DeviceFirmwareVersion"));
    // By the step, and once more before the first write.
    QCOMPARE(m_script->calls.count("read DeviceModelName"), 2);
    QCOMPARE(m_script->uploaded.size(), 1000);
    QVERIFY(m_script->uploaded.startsWith("model: VX-1400M\nversion: 2.0.0\n\nxxx"));
    const std::pair<const char *, milliseconds> limits[]
        = {{"open", 10s},
           {"read DeviceStatus", 5s},
           {"write FirmwareUpdateMode=On", getTimeLimit(4ms)},
           {"upload FirmwareImage 1000", getTimeLimit(1s)},
           {"execute FirmwareActivate", getTimeLimit(8ms)},
           {"reset", 45s}}; // although the file promises 16 ms
    for (const auto &[call, limit] : limits)
        QCOMPARE(m_script->limits.value(call).count(), limit.count());
    QCOMPARE(job->getFirmwareVersion(), QString("2.0.0"));
}

void CDeviceFirmwareUpdateTest::everyFailingOperationGivesOneError()
{
    makeJob()->executeFirmwareUpdate();
    const QStringList calls = m_script->calls;
    QVERIFY(calls.size() > 10);
    const int firstWrite = calls.indexOf("write FirmwareUpdateMode=On");
    for (const auto change : {CCameraError::EChange::Possible, CCameraError::EChange::None}) {
        for (int failing = 0; failing < calls.size(); ++failing) {
            init();
            m_script->before = [this, failing, change](const QString &call) {
                if (m_script->calls.size() == failing)
                    throw CCameraError(CAMERA_NAME, Viewer::Text::CErrorText("no " + call), change);
            };
            const bool refusesFirst
                = failing == firstWrite && change == CCameraError::EChange::None;
            verifyFailure("no " + calls.at(failing), failing >= firstWrite && !refusesFirst);
            QCOMPARE(m_script->calls, calls.mid(0, failing)); // nothing was done after it
        }
    }
    // A camera may refuse the rest of a file of which it has taken a block.
    init();
    m_manifest.updates.first().steps.remove(2); // the write before the upload
    m_script->refusesAtByte = 10;
    verifyFailure("no more", true);
}

void CDeviceFirmwareUpdateTest::everyExceptionBecomesAnError()
{
    using Core::Exception::BaseException;
    const auto verify = [this](const char *cause, const std::function<void()> &fail) {
        init();
        m_script->before = [&fail](const QString &call) {
            if (call == "reset")
                fail();
        };
        verifyFailure(cause, true);
    };
    verify("out of memory", [] { throw std::bad_alloc(); });
    verify("unknown reason", [] { throw 42; });
    verify("unknown reason", [] { throw BaseException(" \n "); });
    verify("One. Two;", [] { throw BaseException("One.\nTwo..."); });
}

void CDeviceFirmwareUpdateTest::refusesBeforeTheFirstWrite()
{
    const auto verify = [this](const char *cause, const char *feature, const char *value) {
        auto &entry = m_manifest.updates.first();
        entry.deviceVersions = QStringList{"R1", "R2"};
        entry.minimumVersion = "1.1";
        m_script->features.insert(feature, value);
        verifyFailure(cause, false);
        entry.steps.remove(0, 2); // they only look; the outcome is the same without
        verifyFailure(cause, false);
        init();
    };
    verify("reports status 5", "DeviceStatus", "5");
    verify("not for its model \"VX-1\"", "DeviceModelName", "VX-1");
    verify("not for its device version \"R9\"", "DeviceVersion", "R9");
    verify("version 1.1 or later, but the camera has \"1.0.9\"", "DeviceFirmwareVersion", "1.0.9");
    verify("version 1.1 or later, but the camera has \"?\"", "DeviceFirmwareVersion", "?");
    for (const int size : {999, 1000}) { // too short; wrong digest
        writeFile(m_path, makeArchive({{"firmware-2.0.0.img", QByteArray(size, 'x')}}));
        verify("firmware-2.0.0.img", "", "");
    }
    QVERIFY(QFile::remove(m_path));
    verify("update.guf", "", "");
    m_manifest.updates.first().steps[0].preconditions.append(CFeatureValue{"Ready", "1"});
    verifyFailure("its feature \"Ready\" is \"\" instead of \"1\"", false);
    init();
    // What the step has found good turns bad afterwards.
    m_script->before = [this](const QString &call) {
        if (call == "read DeviceModelName" && m_script->calls.contains(call))
            m_script->features.insert("DeviceModelName", "Other");
    };
    verifyFailure("not for its model \"Other\"", false);
}

void CDeviceFirmwareUpdateTest::showsWhatTheCameraSaysOnOneLine()
{
    const QString hostile = QString::fromUtf8("1\x1b[31m\u202Eabc\n");
    const QString shown = "1?[31m?abc";
    const QString endless = QString(5000, 'x') + '\n';
    for (const char *feature : {"DeviceStatus", "DeviceModelName", "DeviceVersion", "Ready"}) {
        for (const QString &value : {hostile, endless}) {
            init();
            auto &entry = m_manifest.updates.first();
            entry.deviceVersions = QStringList{"R2"};
            entry.steps[0].preconditions.append(CFeatureValue{"Ready", "1"});
            m_script->features.insert(feature, value);
            verifyFailure(value == hostile ? shown : QString(80, 'x'), false);
        }
    }
    for (const QString &value : {hostile, endless}) {
        init();
        m_script->versionAfterReset = value;
        m_manifest.updates.first().steps.removeLast();
        const auto job = makeJob();
        const QString version = value == hostile ? shown + '?' : QString(80, 'x') + "...";
        verifyFailure("firmware version \"" + version + "\" instead", true, job);
        QCOMPARE(job->getFirmwareVersion(), version);
    }
    init();
    m_script->before = [](const QString &) {
        throw CCameraError(CAMERA_NAME, Viewer::Text::CErrorText("a\u202Eb"));
    };
    verifyFailure("a?b", false);
    init();
    m_script->features.insert("DeviceStatus", "0\n"); // compared as it is
    verifyFailure("reports status 0?", false);
}

void CDeviceFirmwareUpdateTest::provesTheVersionWithoutSuchAStep()
{
    m_manifest.updates.first().steps.removeLast(); // no assertion
    m_script->versionAfterReset = "1.9.0";
    const auto job = makeJob();
    verifyFailure("it reports firmware version \"1.9.0\" instead of 2.0.0", true, job);
    QCOMPARE(job->getFirmwareVersion(), QString("1.9.0"));
}

void CDeviceFirmwareUpdateTest::touchesNeitherTwiceNorWhatIsInUse()
{
    for (const char *status : {"0", "1"}) { // after success, after failure
        init();
        m_script->features.insert("DeviceStatus", status);
        const auto job = makeJob();
        executeOnThread(*job);
        const QStringList calls = m_script->calls;
        const QString version = job->getFirmwareVersion();
        for (int i = 0; i < 2; ++i) {
            const CJobRecorder recorder(*job);
            executeOnThread(*job);
            QCOMPARE(recorder.getMilestones(),
                     QStringList(
                         "error The series of updates was stopped before this camera; it was not "
                         "touched and keeps its version"));
        }
        QCOMPARE(m_script->calls, calls);
        QCOMPARE(job->getFirmwareVersion(), version);
        QCOMPARE(m_activities->getUpdateCount(), 1);
    }
    init();
    m_activities->begin("id", ECameraActivity::Acquiring);
    const auto job = makeJob();
    const CJobRecorder recorder(*job);
    job->executeFirmwareUpdate();
    QVERIFY(recorder.getError().contains("acquiring images"));
    QVERIFY(m_script->calls.isEmpty());
    QCOMPARE(m_activities->get("id"), ECameraActivity::Acquiring); // it goes on
}

void CDeviceFirmwareUpdateTest::estimatesStayInTheirLimits()
{
    const milliseconds longest(std::numeric_limits<int>::max());
    CUpdateStep step;
    QVERIFY(estimateStep(step, 0) >= 1ms); // whatever kind it is
    step.kind = Plugin::CameraPool::EFirmwareUpdateStep::FileUpload;
    step.payload.size = std::numeric_limits<qint64>::max();
    CUpdateEntry entry;
    entry.steps = {step, step};
    QCOMPARE(estimateEntry(entry, 1).count(), longest.count());
    QVERIFY(getTimeLimit(longest) > longest && getTimeLimit(1ms) >= 30s);
}

void CDeviceFirmwareUpdateTest::passesProgressOnNowAndThen()
{
    const CProgressThrottle::Clock::time_point start;
    CProgressThrottle throttle(start);
    QStringList passed;
    const auto report = [&](int time, double percent) {
        if (throttle.passes(percent, start + milliseconds(time)))
            passed.append(QString::number(percent));
    };
    for (int time = 0; time <= 500; time += 20) // a percent each
        report(time, time / 20.0);
    report(900, 25.9); // the same percent
    report(901, 26);
    report(950, 100);
    report(2000, 100);
    QCOMPARE(passed.join(' '), QString("5 10 15 20 25 26 100"));
}

void CDeviceFirmwareUpdateTest::keepsAJournal()
{
    const QString folder = m_folder.filePath("updates");
    QStringList lines;
    m_script->before = [&](const QString &call) {
        const CJournalEntry entry = readJournals(folder).entries.value(0);
        const CUpdateRecord &record = entry.record;
        lines.append(QString("%1 %2/%3 %4%5")
                         .arg(call.section(' ', 0, 0))
                         .arg(record.step)
                         .arg(record.stepCount)
                         .arg(record.stepName, record.hasWritten ? " written" : ""));
        if (call == "reset") {
            QVERIFY(entry.isRunning);
            QCOMPARE(
                (QStringList{record.cameraId, record.modelName, record.serialNumber, record.address,
                             record.oldVersion, record.newVersion, record.filePath}),
                (QStringList{"id", "VX-1400M", "40012345", "10.0.0.1", "1.2.0", "2.0.0", m_path}));
            QCOMPARE(record.manifestDigest, m_manifest.sha256);
            QCOMPARE(m_manifest.sha256.size(), 32);
        }
    };
    makeJob(folder)->executeFirmwareUpdate();
    lines.removeDuplicates();
    // What changes the camera is on the disk before it is done.
    QCOMPARE(lines.join(", "),
             QString("open 0/7 , read 1/7 CheckPreconditions, read 3/7 FeatureWrite, "
                     "write 3/7 FeatureWrite written, upload 4/7 FileUpload written, "
                     "execute 5/7 FeatureExecute written, reset 6/7 DeviceReset written, "
                     "read 7/7 FeatureAssert written"));
    QCOMPARE(QDir(folder).entryList(QDir::Files), QStringList("history.jsonl"));
    const auto getHistory
        = [&folder] { return CUpdateHistory(CUpdateHistory::getPath(folder)).read().records; };
    QCOMPARE(getHistory().value(0).logPath, QString("/logs/a.log"));

    // An interrupted update is told until another one has written to the camera.
    CUpdateRecord leftBehind;
    leftBehind.cameraId = "id";
    leftBehind.begin = QDateTime::currentDateTimeUtc();
    CUpdateJournal(folder, leftBehind).beginWriting();
    init();
    m_script->features["DeviceModelName"] = "VX-2";
    verifyFailure("VX-2", false, makeJob(folder));
    QVERIFY(readJournals(folder).entries.value(0).record.hasWritten);
    init();
    makeJob(folder)->executeFirmwareUpdate();
    QVERIFY(readJournals(folder).entries.isEmpty());
    QCOMPARE(getHistory().value(0).outcome, EUpdateOutcome::Updated);
    QCOMPARE(getHistory().value(1).outcome, EUpdateOutcome::Interrupted);
    QCOMPARE(getHistory().size(), 4);

    init();
    CUpdateRecord other;
    other.cameraId = "id";
    other.begin = QDateTime::currentDateTimeUtc();
    const CUpdateJournal elsewhere(folder, other);
    verifyFailure("it is already being updated", false, makeJob(folder));
    QCOMPARE(m_script->calls, QStringList());
    QCOMPARE(readJournals(folder).entries.size(), 1);
}

QTEST_GUILESS_MAIN(CDeviceFirmwareUpdateTest)
#include "tst_devicefirmwareupdate.moc"
