#include "testframes.h"
#include "viewer/image/frameconverter.h"
#include "viewer/image/framerecorder.h"

#include <QDir>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <csignal>
#include <future>
#include <sys/resource.h>

using namespace Viewer::Image;
using TestFrames::makeFrame;

class CFrameRecorderTest : public QObject
{
    Q_OBJECT

private slots:
    void writesWhatTheSensorGave_data();
    void writesWhatTheSensorGave();
    void endsWithTheFirstFault_data();
    void endsWithTheFirstFault();
    void losesWhatFindsNoRoom_data();
    void losesWhatFindsNoRoom();
};

void CFrameRecorderTest::writesWhatTheSensorGave_data()
{
    QTest::addColumn<QString>("format");
    for (const char *format : {"Mono8", "Mono12p", "BayerRG10Packed", "Mono16", "BGR8", "YUV422_8"})
        QTest::newRow(format) << QString(format);
}

void CFrameRecorderTest::writesWhatTheSensorGave()
{
    QFETCH(QString, format);
    const QTemporaryDir folder;
    CRecording recording;
    recording.camera = QString::fromUtf8("Größe: 5/7\n카메라");
    recording.folder = folder.path();
    CFrameRecorder recorder(recording);
    CFrame frame = makeFrame(format, 38, 21, 3);
    for (int i = 0; i < 3; ++i) // the same number each time, but a file of its own
        recorder.record(frame);
    QCOMPARE(frame.memory.use_count(), 1); // the camera gets its memory back at once
    frame.width = -1;
    recorder.record(frame);
    recorder.stop();
    recorder.record(makeFrame(format, 38, 21, 3));
    QCOMPARE(recorder.getWrittenCount(), 3u);
    QCOMPARE(recorder.getLostCount(), 1u);

    const QStringList names = QDir(folder.path()).entryList(QDir::Files);
    QCOMPARE(names.size(), 3);
    for (const QString &name : names) {
        const QRegularExpression scheme(
            QString::fromUtf8("^Größe__5_7_카메라_\\d{8}_\\d{6}_\\d{3}_000042\\.png$"));
        QVERIFY2(scheme.match(name).hasMatch(), qPrintable(name));
        const QImage image(folder.filePath(name));
        QImage expected = CFrameConverter().toFullDepth(makeFrame(format, 38, 21)).image;
        QCOMPARE(image.text("Camera"), QString::fromUtf8("Größe: 5/7?카메라"));
        QCOMPARE(image.text("FrameNumber"), "42");
        QCOMPARE(image.text("Timestamp"), "1234567890123");
        QCOMPARE(image.text("PixelFormat"), format);
        QCOMPARE(image.text("SignificantBits"), QString::number(TestFrames::getBits(format)));
        // Qt reads three colours as RGB32.
        if (expected.format() == QImage::Format_RGB888)
            expected = expected.convertToFormat(QImage::Format_RGB32);
        QCOMPARE(image.format(), expected.format());
        QVERIFY(image == expected);
    }
}

void CFrameRecorderTest::endsWithTheFirstFault_data()
{
    QTest::addColumn<bool>("isFull");
    QTest::addColumn<QString>("cause");
    QTest::newRow("folder gone") << false << "No such file or directory";
    QTest::newRow("disk full") << true << "there is room for 512 of its ";
}

void CFrameRecorderTest::endsWithTheFirstFault()
{
    QFETCH(bool, isFull);
    QFETCH(QString, cause);
    QTemporaryDir folder;
    CRecording recording;
    recording.camera = "camera";
    recording.folder = folder.path();
    CFrameRecorder recorder(recording);
    QSignalSpy failed(&recorder, &CFrameRecorder::failed);

    rlimit limit = {};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit tight = {512, limit.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    if (isFull)
        setrlimit(RLIMIT_FSIZE, &tight);
    else
        folder.remove();
    for (int i = 0; i < 5; ++i)
        recorder.record(makeFrame("Mono8", 100, 100));
    recorder.stop();
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, handler);

    QCOMPARE(recorder.getWrittenCount(), 0u);
    QVERIFY(recorder.getLostCount() > 0);
    QCoreApplication::processEvents();
    QCOMPARE(failed.count(), 1);
    const QString text = failed.first().first().toString();
    QVERIFY2(text.startsWith("the file \"" + folder.path() + "/camera_"), qPrintable(text));
    QVERIFY2(text.contains(cause), qPrintable(text));
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

void CFrameRecorderTest::losesWhatFindsNoRoom_data()
{
    QTest::addColumn<bool>("isStuck");
    QTest::addColumn<QString>("fault");
    QTest::newRow("slow disk") << false << "";
    QTest::newRow("disk that refuses two at once") << false << "no";
    QTest::newRow("disk that never answers") << true << "";
}

void CFrameRecorderTest::losesWhatFindsNoRoom()
{
    QFETCH(bool, isStuck);
    QFETCH(QString, fault);
    struct CDisk
    {
        std::promise<void> released;
        std::shared_future<void> isReleased = released.get_future();
        std::atomic<int> asked = 0;
        std::atomic<int> answered = 0;
    };
    const auto disk = std::make_shared<CDisk>(); // a thread that was left to itself still has it
    CRecording recording;
    recording.maximumWaiting = 2 * 100;
    recording.stopTimeMs = isStuck ? 0 : 60000;
    recording.writer = [disk, fault](const QString &, const QByteArray &) {
        ++disk->asked;
        disk->isReleased.wait();
        ++disk->answered;
        return Viewer::Text::CErrorText(fault);
    };
    CFrameRecorder recorder(recording);
    QSignalSpy failed(&recorder, &CFrameRecorder::failed);
    for (int i = 0; i < 5; ++i)
        recorder.record(makeFrame("Mono8", 10, 10));
    QCOMPARE(recorder.getLostCount(), 3u);
    QTRY_COMPARE(disk->asked.load(), 2);
    if (isStuck)
        recorder.stop();
    disk->released.set_value();
    if (!isStuck)
        recorder.stop();
    const bool isWritten = !isStuck && fault.isEmpty();
    QCOMPARE(recorder.getWrittenCount(), isWritten ? 2u : 0u);
    QCOMPARE(recorder.getLostCount(), isWritten ? 3u : 5u);
    QTRY_COMPARE(disk->answered.load(), 2);
    QCoreApplication::processEvents();
    QCOMPARE(failed.count(), fault.isEmpty() ? 0 : 1);
}

QTEST_GUILESS_MAIN(CFrameRecorderTest)
#include "tst_framerecorder.moc"
