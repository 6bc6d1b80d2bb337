#include "support/camerakinds.h"
#include "support/privatebus.h"
#include "tests/viewer/update/updatefixture.h"
#include "viewer/update/updaterecord.h"
#include "viewer/update/workerevent.h"
#include "viewer/update/workertask.h"
#include "viewer/updatefile/updatearchive.h"
#include "viewer/updatefile/updatefilereader.h"

#include <QCborArray>
#include <QLocalServer>
#include <QProcess>
#include <QtTest>

#include <unistd.h>

using Viewer::Update::CWorkerEvent;
using Viewer::Update::CWorkerTask;

/// What the finished worker answers to tasks that nobody should give it, and when it keeps the
/// computer awake. Other updates by it are seen in the tests of the wizard and of the viewer.
class CCameraWorkerTest : public QObject
{
    Q_OBJECT

private slots:
    void refusesWhatIsNoTask_data();
    void refusesWhatIsNoTask();
    void tellsWhyItCannotBegin_data();
    void tellsWhyItCannotBegin();
    void refusesWhatIsNoEvent();
    void holdsOffSleepWhileItWrites_data();
    void holdsOffSleepWhileItWrites();
};

static CWorkerTask makeTask()
{
    CWorkerTask task;
    task.kind = "genicam";
    task.camera = QCborMap{{QStringLiteral("transport"), 7}};
    task.filePath = "/nowhere/update.guf";
    task.manifestDigest = QByteArray(32, 'x');
    task.language = "ja";
    return task;
}

/// An update, of a file in @p folder, that succeeds once it has a record.
static CWorkerTask makeSimulatedTask(const QTemporaryDir &folder)
{
    CWorkerTask task = makeTask();
    task.kind = "simulation";
    const Viewer::CameraPool::CCameraPool pool(TestSupport::makeCameraKinds({"--speed", "100"}));
    for (const auto &kind : pool.getKinds()) {
        if (const auto handle = kind->createHandle("gige-40012345"))
            task.camera = handle->describe();
    }
    task.filePath = folder.filePath("update.guf");
    TestSupport::writeUpdateFile(task.filePath, {"2.0.0"}, 20'000);
    using namespace Viewer::UpdateFile;
    task.manifestDigest = CUpdateFileReader::read(CUpdateArchive(task.filePath)).sha256;
    task.language = "en";
    return task;
}

static std::optional<CWorkerEvent> takeEvent(QByteArray &output)
{
    bool isBroken = false;
    return CWorkerEvent::takeFirst(output, isBroken);
}

/// All events but those of progress, as type and step, and all lines of a mock, without the time.
static QStringList readLog(const QString &path)
{
    QFile file(path);
    QByteArray log = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    QStringList lines;
    while (!log.isEmpty()) {
        if (log.at(0) >= '0' && log.at(0) <= '9') { // a time
            const int end = log.indexOf('\n');
            lines.append(log.left(end).mid(log.indexOf(' ') + 1));
            log.remove(0, end + 1);
            continue;
        }
        const auto event = takeEvent(log);
        if (!event)
            return lines << "neither an event nor a line";
        if (event->type != CWorkerEvent::EType::StepProgressed)
            lines.append(QString("%1 %2").arg(int(event->type)).arg(event->step));
    }
    return lines;
}

void CCameraWorkerTest::refusesWhatIsNoTask_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QString>("sentence");
    const auto row = [](const QByteArray &input, const char *sentence) {
        QTest::newRow(sentence) << input << QString(sentence);
    };
    const QCborMap task = makeTask().toCbor();
    const auto with = [&task](const char *field, const QCborValue &value) {
        QCborMap changed = task;
        changed.insert(QString(field), value);
        return QCborValue(changed).toCbor();
    };
    row("", "the task is cut off after 0 bytes");
    row(QCborValue(task).toCbor().chopped(1), "the task is cut off after");
    row("\xff", "the task is no CBOR");
    row(QCborValue(QCborArray{1}).toCbor(), "the task is no CBOR map");
    // A text that says that it has 2 GiB.
    row(QByteArray("\x7a\x7f\xff\xff\xff", 5), "the task has more than");
    row(with("protocol", 2), "the task is not of protocol 1");
    row(with("command", "stream"), "the task has no command that is known");
    row(with("camera", 5), "the task has no camera");
    row(with("file", "update.guf"), "the task has no absolute path");
    row(with("manifestSha256", "x"), "the task has no SHA-256");
    row(with("entry", -1), "the task has no entry");
}

void CCameraWorkerTest::refusesWhatIsNoTask()
{
    QFETCH(QByteArray, input);
    QFETCH(QString, sentence);
    QProcess worker;
    worker.start(WORKER, {"update"});
    worker.write(input);
    worker.closeWriteChannel();
    QVERIFY(worker.waitForFinished());
    QCOMPARE(worker.exitCode(), 2);
    QCOMPARE(worker.readAllStandardOutput(), QByteArray());
    const QString error = worker.readAllStandardError();
    QVERIFY2(error.startsWith("nuvexcameraworker: " + sentence) && error.count('\n') == 1,
             qPrintable(error));
}

void CCameraWorkerTest::tellsWhyItCannotBegin_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("a kind that nobody knows") << "paper";
    QTest::newRow("a camera that is none") << "genicam";
    QTest::newRow("a simulated camera that is none") << "simulation";
    QTest::newRow("a file that nobody has signed") << "unsigned";
}

void CCameraWorkerTest::tellsWhyItCannotBegin()
{
    QFETCH(QString, kind);
    const QTemporaryDir folder;
    CWorkerTask task = makeTask();
    task.kind = kind;
    QString error = "the update program does not know a camera of this kind";
    if (kind == "unsigned") {
        task = makeSimulatedTask(folder);
        task.language = "ja";
        task.requiresSignature = true;
        error = "Update file " + task.filePath
            + ": it is not signed; only update files of trusted makers can be used here";
    }
    QProcess worker;
    worker.start(WORKER, {"update"});
    worker.write(QCborValue(task.toCbor()).toCbor());
    QVERIFY(worker.waitForFinished());
    QCOMPARE(worker.exitCode(), 1);
    QByteArray output = worker.readAllStandardOutput();
    QCOMPARE(takeEvent(output)->type, CWorkerEvent::EType::Hello);
    const auto last = takeEvent(output);
    QVERIFY(last && last->type == CWorkerEvent::EType::Failed);
    QCOMPARE(last->error, error);
    QVERIFY(last->localizedError != last->error && !last->localizedError.isEmpty());
    QVERIFY(!last->hasWritten);
}

void CCameraWorkerTest::refusesWhatIsNoEvent()
{
    CWorkerEvent event;
    event.type = CWorkerEvent::EType::StepProgressed;
    event.step = 3;
    event.percent = 63;
    const QCborMap sound = event.toCbor();
    QCOMPARE(CWorkerEvent::fromCbor(sound)->step, 3);
    QCOMPARE(CWorkerEvent::fromCbor(sound)->percent, 63.0);
    for (const auto &[field, value] : QVector<QPair<QString, QCborValue>>{{"event", 6},
                                                                          {"event", "x"},
                                                                          {"step", -1},
                                                                          {"percent", 101.0},
                                                                          {"percent", qQNaN()}}) {
        QCborMap changed = sound;
        changed.insert(field, value);
        QVERIFY2(!CWorkerEvent::fromCbor(changed), qPrintable(field));
    }
    QVERIFY(!CWorkerEvent::fromCbor({}));
}

void CCameraWorkerTest::holdsOffSleepWhileItWrites_data()
{
    QTest::addColumn<QString>("logind");
    QTest::addColumn<QString>("asked"); // a line of the log
    QTest::addColumn<QString>("dropped");
    const QString asked
        = "Inhibit \"sleep:shutdown:handle-lid-switch\" \"Nuvex Viewer\" \"The firmware of camera "
          "Line 1 left is being updated.\" \"block\"";
    QTest::newRow("granted") << R"({"refuses": false})" << asked << "dropped";
    QTest::newRow("refused") << R"({"refuses": true})" << asked << QString();
    QTest::newRow("no logind") << QString() << QString() << QString();
    QTest::newRow("no bus") << "none" << QString() << QString();
    QTest::newRow("a bus that never answers") << "silent" << QString() << QString();
}

void CCameraWorkerTest::holdsOffSleepWhileItWrites()
{
    QFETCH(QString, logind);
    QFETCH(QString, asked);
    QFETCH(QString, dropped);
    const QString missing = TestSupport::CPrivateBus::findMissing();
    if (!missing.isEmpty())
        QSKIP(qPrintable(missing));
    TestSupport::CPrivateBus bus;
    if (logind.startsWith('{'))
        bus.addMock("org.freedesktop.login1", {"--template", LOGIND, "--parameters", logind});
    const QTemporaryDir folder;
    QByteArray address = bus.getAddress();
    QLocalServer silent;
    if (logind == "none" || logind == "silent")
        address = "unix:path=" + folder.filePath("bus").toLocal8Bit();
    QVERIFY(logind != "silent" || silent.listen(folder.filePath("bus")));

    CWorkerTask task = makeSimulatedTask(folder);
    Viewer::Update::CUpdateRecord record;
    record.begin = QDateTime::currentDateTimeUtc();
    task.record = toJson(record);

    QProcess worker;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SYSTEM_BUS_ADDRESS", address);
    worker.setProcessEnvironment(environment);
    // Events and the lines of logind come into one file in the order in which they happen.
    worker.setStandardOutputFile(bus.getLogPath(), QIODevice::Append);
    worker.start(WORKER, {"update"});
    worker.write(QCborValue(task.toCbor()).toCbor());
    QVERIFY(worker.waitForFinished());
    QCOMPARE(worker.readAllStandardError(), QByteArray()); // where sanitizers tell what they found
    QCOMPARE(worker.exitCode(), 0);
    QStringList expected{"0 0", "1 0", "3 0", "1 1", "3 1", "1 2", asked, "3 2", "1 3",
                         "3 3", "1 4", "3 4", "1 5", "3 5", "1 6", "3 6", "4 0", dropped};
    expected.removeAll({});
    QTRY_COMPARE(readLog(bus.getLogPath()), expected);
}

QTEST_GUILESS_MAIN(CCameraWorkerTest)
#include "tst_cameraworker.moc"
