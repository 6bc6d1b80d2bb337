#include "support/loopbackonly.h"
#include "support/streamtask.h"
#include "support/virtualcameraprocess.h"
#include "viewer/image/frameconverter.h"
#include "viewer/image/framevalues.h"
#include "viewer/stream/camerastream.h"
#include "virtualcamera/pattern.h"

#include <QSignalSpy>
#include <QtTest>

#include <cstring>

using namespace Viewer::Stream;
using TestSupport::CVirtualCameraProcess;
using Viewer::Camera::CStreamStatistics;
using Viewer::Image::CFrame;
using Viewer::Text::CErrorText;

/// What comes of a virtual camera's stream through the worker.
class CVirtualStreamTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void bringsEachPixel_data();
    void bringsEachPixel();
    void losesNoFrame();
    void tellsWhatTheNetworkLoses_data();
    void tellsWhatTheNetworkLoses();
    void showsNoFrameWithoutItsPixels();
    void startsAgainForAnotherFormat_data();
    void startsAgainForAnotherFormat();
    void tellsThatTheCameraHasGone_data();
    void tellsThatTheCameraHasGone();

private:
    void open(const QStringList &arguments);

    std::unique_ptr<CVirtualCameraProcess> m_camera;
    std::unique_ptr<CCameraStream> m_stream;
    int m_frameCount = 0;
    quint64 m_lastNumber = 0;
    quint64 m_missing = 0; ///< numbers between those of frames
    std::function<void(const CFrame &frame)> m_look;
    CStreamStatistics m_statistics;
    CErrorText m_end;
};

void CVirtualStreamTest::init()
{
    if (CVirtualCameraProcess::isOnUsb())
        SKIP_IF_OTHERS_HEAR_IT();
    m_stream.reset();
    m_camera.reset();
    m_frameCount = 0;
    m_lastNumber = m_missing = 0;
    m_look = nullptr;
    m_statistics = {};
    m_end = {};
}

void CVirtualStreamTest::open(const QStringList &arguments)
{
    const QHostAddress address = CVirtualCameraProcess::getOwnAddress(1);
    m_camera = std::make_unique<CVirtualCameraProcess>(
        address, QStringList{"--size", "320x240"} + arguments);
    m_stream = std::make_unique<CCameraStream>(
        WORKER,
        TestSupport::makeStreamTask(QStringList{"--no-simulation"}
                                    + CVirtualCameraProcess::getSearchOptions(address)),
        "It");
    connect(m_stream.get(), &CCameraStream::opened, m_stream.get(), &CCameraStream::start);
    connect(m_stream.get(), &CCameraStream::frameReady, this, [this](const CFrame &frame) {
        if (++m_frameCount > 1)
            m_missing += frame.number - m_lastNumber - 1;
        m_lastNumber = frame.number;
        if (m_look)
            m_look(frame);
    });
    connect(m_stream.get(), &CCameraStream::statisticsChanged, this,
            [this](const CStreamStatistics &statistics) { m_statistics = statistics; });
    connect(m_stream.get(), &CCameraStream::ended, this,
            [this](const CErrorText &error) { m_end = error; });
}

void CVirtualStreamTest::bringsEachPixel_data()
{
    QTest::addColumn<QString>("format");
    using VirtualCamera::EColours;
    // Each depth and each layout; what the colours of Bayer patterns are is told with the code
    // only.
    for (const VirtualCamera::CPixelFormat &format : VirtualCamera::PIXEL_FORMATS) {
        if (format.colours < EColours::BayerGr || format.colours > EColours::BayerBg)
            QTest::newRow(format.name) << QString(format.name);
    }
}

void CVirtualStreamTest::bringsEachPixel()
{
    QFETCH(QString, format);
    open({"--pixel-format", format});
    const auto &expected = *VirtualCamera::findPixelFormat(format.toUtf8());
    quint32 code = 0;
    int wrong = 0;
    m_look = [&](const CFrame &frame) {
        code = frame.pixelFormat;
        wrong = 0;
        for (int i = 0; i < 320 * 240; ++i) {
            const VirtualCamera::CPixel pixel
                = VirtualCamera::computePixel(quint32(frame.number), i % 320, i / 320, expected);
            const QVector<int> values = Viewer::Image::getPixel(frame, i % 320, i / 320);
            wrong += values.isEmpty() || !std::equal(values.begin(), values.end(), pixel.begin());
        }
        m_look = nullptr;
    };
    QTRY_VERIFY(code != 0);
    QCOMPARE(code, expected.code);
    QCOMPARE(wrong, 0);
}

void CVirtualStreamTest::losesNoFrame()
{
    // The camera on Ethernet sends nothing while it makes up an answer.
    const bool isSlow = CVirtualCameraProcess::isOnUsb();
    open({"--fps", "25", "--answer-ms", isSlow ? "40" : "0"});
    QTRY_VERIFY_WITH_TIMEOUT(m_frameCount > 0, 20000);
    bool isRead = false;
    connect(m_stream.get(), &CCameraStream::featuresRead, this, [&isRead] { isRead = true; });
    const int before = m_frameCount;
    m_stream->readFeatures({});
    QTRY_VERIFY_WITH_TIMEOUT(isRead, 20000);
    // More than there are slots.
    QVERIFY2(!isSlow || m_frameCount - before > 32, qPrintable(QString::number(m_frameCount)));
    QTRY_VERIFY(m_frameCount >= 50 && m_statistics.frames > 0);
    QCOMPARE(m_missing, quint64(0));
    QCOMPARE(m_statistics.incompleteFrames, qint64(0));
}

void CVirtualStreamTest::tellsWhatTheNetworkLoses_data()
{
    QTest::addColumn<QStringList>("fault");
    QTest::addColumn<bool>("isRecovered");
    QTest::newRow("resent") << QStringList{"--lose-packet", "30"} << true;
    QTest::newRow("not resent") << QStringList{"--lose-packet", "30", "--no-resend"} << false;
    QTest::newRow("stops") << QStringList{"--stop-in-frame", "20"} << false;
}

void CVirtualStreamTest::tellsWhatTheNetworkLoses()
{
    QFETCH(QStringList, fault);
    QFETCH(bool, isRecovered);
    open(QStringList{"--fps", "25"} + fault);
    QTRY_VERIFY_WITH_TIMEOUT(isRecovered ? m_statistics.resentPackets > 0 && m_frameCount >= 30
                                         : m_statistics.incompleteFrames > 0,
                             20000);
    QVERIFY(m_frameCount > 0);
    QVERIFY(!isRecovered || m_missing == 0);
    QVERIFY(m_end.isEmpty());
}

void CVirtualStreamTest::showsNoFrameWithoutItsPixels()
{
    open({"--fps", "50", "--wrong-leader-size", "3", "--wrong-trailer-size", "4"});
    int faults = 0;
    m_look = [&](const CFrame &frame) {
        faults += frame.height > 240
            || Viewer::Image::CFrameConverter().toDisplay(frame).image.isNull();
    };
    QTRY_VERIFY(m_statistics.incompleteFrames > 2 && m_statistics.frames > 2);
    QCOMPARE(faults, 0);
    QVERIFY(m_end.isEmpty());
}

void CVirtualStreamTest::startsAgainForAnotherFormat_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("isGood");
    QTest::addColumn<int>("starts");
    QTest::newRow("more bytes") << "PixelFormat"
                                << "RGB8" << true << 1;
    QTest::newRow("more pixels") << "Width"
                                 << "640" << true << 1;
    QTest::newRow("refused") << "Width"
                             << "20000" << false << 1;
    QTest::newRow("not locked") << "ExposureTime"
                                << "500" << true << 0;
}

void CVirtualStreamTest::startsAgainForAnotherFormat()
{
    QFETCH(QString, name);
    QFETCH(QString, value);
    QFETCH(bool, isGood);
    QFETCH(int, starts);
    open({"--fps", "50"});
    QVector<CFrame> kept;
    m_look = [&](const CFrame &frame) { kept.append(frame); };
    QTRY_VERIFY(kept.size() > 2);
    m_look = nullptr;
    QSignalSpy started(m_stream.get(), &CCameraStream::started);
    QSignalSpy refused(m_stream.get(), &CCameraStream::refused);
    Viewer::Camera::CFeatureInfo feature;
    connect(m_stream.get(), &CCameraStream::featuresRead, this,
            [&feature](const auto &features) { feature = features.value(0); });
    m_stream->writeFeature(name, value);
    m_stream->readFeatures({name});
    QTRY_COMPARE(feature.name, name);
    QCOMPARE(started.size(), starts);
    QCOMPARE(refused.size(), int(!isGood));
    QCOMPARE(feature.value == value, isGood);
    QCOMPARE(feature.isLockedByImages, starts > 0);
    // Who lets go of images in memory that has gone takes nothing from those in the new one.
    QVector<QPair<CFrame, QByteArray>> fresh;
    CFrame last;
    m_frameCount = 0;
    m_look = [&](const CFrame &frame) {
        last = frame;
        const auto *const bytes = reinterpret_cast<const char *>(frame.data);
        if (fresh.size() < 3)
            fresh.append({frame, QByteArray(bytes, int(frame.size))});
        if (fresh.size() == 3)
            kept.clear();
    };
    QTRY_VERIFY(m_frameCount > 40);
    for (const auto &[frame, bytes] : qAsConst(fresh))
        QVERIFY(std::memcmp(frame.data, bytes.constData(), size_t(bytes.size())) == 0);
    QCOMPARE(last.width, value == "640" ? 640 : 320);
    QCOMPARE(last.pixelFormat, value == "RGB8" ? 0x02180014U : 0x01080001U);
    QVERIFY(m_end.isEmpty());
}

void CVirtualStreamTest::tellsThatTheCameraHasGone_data()
{
    QTest::addColumn<QStringList>("fault");
    if (CVirtualCameraProcess::isOnUsb())
        QTest::newRow("unplugged in a frame") << QStringList{"--unplug-in-frame", "20"};
    else
        QTest::newRow("ended") << QStringList();
}

void CVirtualStreamTest::tellsThatTheCameraHasGone()
{
    QFETCH(QStringList, fault);
    open(fault);
    QTRY_VERIFY(m_frameCount > 0);
    if (fault.isEmpty())
        m_camera->end();
    QTRY_VERIFY_WITH_TIMEOUT(!m_end.isEmpty(), 20000);
    QVERIFY2(m_end.getEnglish().contains("the connection was lost; check its cable"),
             qPrintable(m_end.getEnglish()));
}

QTEST_GUILESS_MAIN(CVirtualStreamTest)
#include "tst_virtualstream.moc"
