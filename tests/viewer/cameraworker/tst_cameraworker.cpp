#include "viewer/update/workerevent.h"
#include "viewer/update/workertask.h"

#include <QCborArray>
#include <QProcess>
#include <QtTest>

#include <unistd.h>

using Viewer::Update::CWorkerEvent;
using Viewer::Update::CWorkerTask;

/// What the finished worker answers to tasks that nobody should give it. Updates by it are seen in
/// the tests of the wizard and of the viewer.
class CCameraWorkerTest : public QObject
{
    Q_OBJECT

private slots:
    void refusesWhatIsNoTask_data();
    void refusesWhatIsNoTask();
    void tellsWhyItCannotBegin_data();
    void tellsWhyItCannotBegin();
    void refusesWhatIsNoEvent();
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
}

void CCameraWorkerTest::tellsWhyItCannotBegin()
{
    QFETCH(QString, kind);
    CWorkerTask task = makeTask();
    task.kind = kind;
    QProcess worker;
    worker.start(WORKER, {"update"});
    worker.write(QCborValue(task.toCbor()).toCbor());
    QVERIFY(worker.waitForFinished());
    QCOMPARE(worker.exitCode(), 1);
    QByteArray output = worker.readAllStandardOutput();
    bool isBroken = false;
    QCOMPARE(CWorkerEvent::takeFirst(output, isBroken)->type, CWorkerEvent::EType::Hello);
    const auto last = CWorkerEvent::takeFirst(output, isBroken);
    QVERIFY(last && last->type == CWorkerEvent::EType::Failed);
    QCOMPARE(last->error, "the update program does not know a camera of this kind");
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

QTEST_GUILESS_MAIN(CCameraWorkerTest)
#include "tst_cameraworker.moc"
