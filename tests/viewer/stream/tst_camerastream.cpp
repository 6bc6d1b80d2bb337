#include "support/camerakinds.h"
#include "viewer/stream/camerastream.h"
#include "viewer/stream/framememory.h"
#include "viewer/stream/framewindow.h"

#include <QDeadlineTimer>
#include <QSignalSpy>
#include <QtTest>

#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>

using namespace Viewer::Stream;
using Viewer::Camera::CFeatureInfo;
using Viewer::Camera::CFrameInfo;
using Viewer::Image::CFrame;
using Viewer::Text::CErrorText;

/// Images from a simulated camera in a process of its own, and what happens to that.
class CCameraStreamTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void showsImagesUntilItEnds();
    void aSlowViewerMissesImagesOnly();
    void readsAndWritesFeatures();
    void tellsHowItsProcessEnded_data();
    void tellsHowItsProcessEnded();
    void readsNothingBehindTheMemory_data();
    void readsNothingBehindTheMemory();
    void refusesWhatIsNoMemory();

private:
    void open(const QString &program = WORKER);

    Viewer::Camera::CCameraKinds m_kinds;
    std::shared_ptr<Viewer::Camera::ICameraHandle> m_handle;
    std::unique_ptr<CCameraStream> m_stream;
    QVector<CFrame> m_frames; ///< those that are kept
    int m_frameCount = 0;
    bool m_keepsFrames = false;
    std::optional<CErrorText> m_end;
};

void CCameraStreamTest::init()
{
    m_stream.reset();
    m_frames.clear();
    m_frameCount = 0;
    m_keepsFrames = false;
    m_end.reset();
    m_kinds = TestSupport::makeCameraKinds({});
    for (const auto &kind : m_kinds) {
        kind->start();
        if (kind->getName() == "simulation")
            m_handle = kind->createHandle("gige-40012345");
    }
}

void CCameraStreamTest::open(const QString &program)
{
    m_stream = std::make_unique<CCameraStream>(
        program, CStreamTask{"simulation", m_handle->describe(), "en"}, "Line 1 left");
    connect(m_stream.get(), &CCameraStream::opened, m_stream.get(), &CCameraStream::start);
    connect(m_stream.get(), &CCameraStream::frameReady, this, [this](const CFrame &frame) {
        ++m_frameCount;
        if (m_keepsFrames)
            m_frames.append(frame);
    });
    connect(m_stream.get(), &CCameraStream::ended, this,
            [this](const CErrorText &error) { m_end = error; });
}

void CCameraStreamTest::showsImagesUntilItEnds()
{
    open();
    m_keepsFrames = true;
    QTRY_VERIFY(m_frameCount >= 3);
    m_keepsFrames = false;
    m_frames.resize(3);
    QVector<QByteArray> pictures;
    for (const CFrame &frame : qAsConst(m_frames)) {
        QCOMPARE(frame.width, 640);
        QCOMPARE(frame.height, 480);
        QCOMPARE(frame.size, qint64(640) * 480 * 3);
        pictures.append(QByteArray(reinterpret_cast<const char *>(frame.data), int(frame.size)));
        QVERIFY(pictures.count(pictures.last()) == 1);
    }
    // It moves, but only by a part of its width.
    QVERIFY(pictures.at(0).contains(pictures.at(1).left(640)));
    m_stream->stop();
    QSignalSpy stopped(m_stream.get(), &CCameraStream::stopped);
    QVERIFY(stopped.wait());
    const int count = m_frameCount;
    m_stream->start();
    QTRY_VERIFY(m_frameCount > count);
    m_stream->end();
    m_stream->waitForEnd(QDeadlineTimer(5000));
    QVERIFY(m_end && m_end->isEmpty());
    // What is kept can still be looked at.
    for (int i = 0; i < pictures.size(); ++i)
        QCOMPARE(std::memcmp(m_frames.at(i).data, pictures.at(i).constData(),
                             size_t(pictures.at(i).size())),
                 0);
}

void CCameraStreamTest::aSlowViewerMissesImagesOnly()
{
    open();
    m_keepsFrames = true;
    qint64 skipped = 0;
    connect(m_stream.get(), &CCameraStream::statisticsChanged, this,
            [&skipped](const auto &, qint64 count) { skipped = count; });
    m_stream->writeFeature("AcquisitionFrameRate", "100");
    QTRY_VERIFY(skipped > 0);
    const int count = m_frameCount;
    QCOMPARE(m_frames.size(), count);
    m_frames.clear();
    QTRY_VERIFY(m_frameCount > count);
}

void CCameraStreamTest::readsAndWritesFeatures()
{
    open();
    std::optional<QVector<CFeatureInfo>> features;
    connect(m_stream.get(), &CCameraStream::featuresRead, this,
            [&features](const auto &answer) { features = answer; });
    QSignalSpy refused(m_stream.get(), &CCameraStream::refused);
    const auto ask = [&](const QStringList &names) {
        features.reset();
        m_stream->readFeatures(names);
        const bool isAnswered = QTest::qWaitFor([&] { return features.has_value(); });
        return isAnswered ? *features : QVector<CFeatureInfo>();
    };
    QVERIFY(ask({}).size() > 5);
    m_stream->writeFeature("AcquisitionFrameRate", "50");
    const auto rate = ask({"AcquisitionFrameRate", "Nothing"});
    QCOMPARE(rate.size(), 1);
    QCOMPARE(rate.first().value, QString("50"));
    QCOMPARE(rate.first().unit, QString("Hz"));
    QVERIFY(rate.first().isWritable && rate.first().maximum == 100);
    m_stream->writeFeature("Width", "5");
    QVERIFY(refused.wait());
    QCOMPARE(refused.last().at(0).toString(),
             QString("Camera Line 1 left: its feature \"Width\" could not be set to \"5\""));
    QTRY_VERIFY(m_frameCount > 2);
    QVERIFY(!m_end);
}

void CCameraStreamTest::tellsHowItsProcessEnded_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("error");
    QTest::newRow("killed") << WORKER << "the camera program ended unexpectedly (signal 9)";
    QTest::newRow("missing") << "/nowhere/worker"
                             << "\"/nowhere/worker\" cannot be started";
    QTest::newRow("another") << "/bin/true"
                             << "ended unexpectedly (exit code 0)";
    QTest::newRow("babbling") << "/usr/bin/yes"
                              << "says something that is not understood";
}

void CCameraStreamTest::tellsHowItsProcessEnded()
{
    QFETCH(QString, program);
    QFETCH(QString, error);
    open(program);
    if (program == WORKER) {
        QTRY_VERIFY(m_frameCount > 0);
        kill(pid_t(m_stream->getProcessId()), SIGKILL);
    }
    QTRY_VERIFY(m_end);
    QVERIFY2(m_end->getEnglish().startsWith("Camera Line 1 left: ")
                 && m_end->getEnglish().contains(error),
             qPrintable(m_end->getEnglish()));
}

void CCameraStreamTest::readsNothingBehindTheMemory_data()
{
    QTest::addColumn<int>("slot");
    QTest::addColumn<qint64>("size");
    QTest::addColumn<bool>("isGood");
    QTest::newRow("all of the last slot") << 2 << qint64(4096) << true;
    QTest::newRow("nothing") << 0 << qint64(0) << true;
    QTest::newRow("slot behind the last") << 3 << qint64(1) << false;
    QTest::newRow("slot before the first") << -1 << qint64(1) << false;
    QTest::newRow("longer than a slot") << 0 << qint64(4097) << false;
    QTest::newRow("negative") << 0 << qint64(-1) << false;
}

void CCameraStreamTest::readsNothingBehindTheMemory()
{
    QFETCH(int, slot);
    QFETCH(qint64, size);
    QFETCH(bool, isGood);
    const CFrameMemory memory(3, 100);
    QCOMPARE(memory.getSlotSize(), qint64(4096));
    QVector<int> released;
    QString fault;
    const auto window = CFrameWindow::open(
        getpid(), memory.getDescriptor(), 3, 4096, [&](int of) { released.append(of); }, fault);
    QVERIFY2(window, qPrintable(fault));
    memory.getData()[2 * 4096] = 7;
    CFrameInfo info;
    info.slot = slot;
    info.size = size;
    auto frame = window->getFrame(info);
    QCOMPARE(bool(frame), isGood);
    if (slot == 2)
        QCOMPARE(int(*frame->data), 7);
    frame.reset();
    QCOMPARE(released, isGood ? QVector<int>{slot} : QVector<int>());
}

void CCameraStreamTest::refusesWhatIsNoMemory()
{
    const auto opens = [](int descriptor, int slots_, qint64 size) {
        QString fault;
        const bool isOpen = CFrameWindow::open(
                                getpid(), descriptor, slots_, size, [](int) {}, fault)
            != nullptr;
        return isOpen || fault.isEmpty();
    };
    const CFrameMemory memory(3, 4096);
    QVERIFY(!opens(memory.getDescriptor(), 4, 4096));
    QVERIFY(!opens(memory.getDescriptor(), 0, 4096));
    QVERIFY(!opens(memory.getDescriptor(), 1000, qint64(1) << 60));
    QVERIFY(!opens(12345, 1, 4096));
    // It could become shorter while somebody reads it.
    const int loose = memfd_create("loose", 0);
    QVERIFY(ftruncate(loose, 4096) == 0);
    QVERIFY(!opens(loose, 1, 4096));
    close(loose);
    int ends[2];
    QVERIFY(pipe(ends) == 0);
    QVERIFY(!opens(ends[0], 1, 4096));
    close(ends[0]);
    close(ends[1]);
}

QTEST_GUILESS_MAIN(CCameraStreamTest)
#include "tst_camerastream.moc"
