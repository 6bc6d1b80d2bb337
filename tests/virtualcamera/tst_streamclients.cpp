#include "support/loopbackonly.h"
#include "support/virtualcameraprocess.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QtTest>

using TestSupport::CVirtualCameraProcess;

namespace {

/// What @p tool of Aravis prints with @p arguments about the camera at @p address.
QString runTool(const QString &tool, const QStringList &arguments, const QHostAddress &address)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(tool, QStringList{"--name", address.toString()} + arguments);
    return process.waitForFinished() ? QString::fromUtf8(process.readAll())
                                     : "The tool does not start, or does not end.";
}

/// A number that arv-camera-test prints at its end; -1 when there is none.
qint64 findNumber(const QString &output, const char *name)
{
    const QRegularExpression line(QString::fromLatin1(name) + " *= (\\d+)");
    const QRegularExpressionMatch match = line.match(output);
    return match.hasMatch() ? match.captured(1).toLongLong() : -1;
}

} // namespace

/// The virtual camera with clients that we did not write. They begin with a broadcast, so they only
/// run where nobody else hears it.
class CStreamClientsTest : public QObject
{
    Q_OBJECT

private slots:
    void streams_data();
    void streams();
    void readsAndWritesFeatures();

private:
    const QHostAddress m_address = CVirtualCameraProcess::getOwnAddress(1);
};

#define SKIP_WITHOUT(TOOL)                                                                         \
    if (QStandardPaths::findExecutable(TOOL).isEmpty())                                            \
    QSKIP(TOOL " is missing: it is in Debian's aravis-tools or aravis-tools-cli.")

void CStreamClientsTest::streams_data()
{
    QTest::addColumn<QStringList>("fault");
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("as it is") << QStringList() << QStringList();
    QTest::newRow("packet size found by tests")
        << QStringList() << QStringList{"--packet-size-adjustment=always"};
    QTest::newRow("packets resent") << QStringList{"--lose-packet", "50"} << QStringList();
    QTest::newRow("packets swapped") << QStringList{"--swap-packets", "50"} << QStringList();
}

void CStreamClientsTest::streams()
{
    SKIP_IF_OTHERS_HEAR_IT();
    SKIP_WITHOUT("arv-camera-test-0.8");
    QFETCH(QStringList, fault);
    QFETCH(QStringList, arguments);
    CVirtualCameraProcess camera(m_address,
                                 QStringList{"--size", "320x240", "--fps", "50"} + fault);
    const QString output = runTool("arv-camera-test-0.8",
                                   QStringList{"--auto", "--duration=3"} + arguments, m_address);
    const QByteArray text = output.toUtf8();
    QVERIFY2(findNumber(output, "n_completed_buffers") >= 50, text);
    QVERIFY2(findNumber(output, "n_failures") == 0, text);
    QVERIFY2(findNumber(output, "n_missing_packets") == 0, text);
    const qint64 packetSize = findNumber(output, "gv packet size");
    QCOMPARE(packetSize > 8000, !arguments.isEmpty());
    const QStringList events = camera.getEvents();
    QVERIFY(events.contains("start acquisition 320x240 Mono8"));
    QVERIFY(events.contains("stop acquisition"));
    const QHash<QString, qint64> numbers = camera.end();
    const bool loses = fault.contains("--lose-packet");
    QCOMPARE(numbers["lostpackets"] > 0, loses);
    if (loses)
        QVERIFY2(findNumber(output, "n_resent_packets") > 0, text);
}

void CStreamClientsTest::readsAndWritesFeatures()
{
    SKIP_IF_OTHERS_HEAR_IT();
    SKIP_WITHOUT("arv-tool-0.8");
    const CVirtualCameraProcess camera(m_address, {"--pixel-format", "BayerRG12p"});
    const QString output
        = runTool("arv-tool-0.8",
                  {"control", "PixelFormat", "Width=640", "Height=480", "OffsetX=3456", "Width",
                   "PayloadSize", "ExposureTime=50000", "AcquisitionFrameRate", "Gain=30", "Gain",
                   "TriggerMode=On", "TestPattern=White"},
                  m_address);
    const QStringList lines = output.split('\n');
    QCOMPARE(lines,
             (QStringList{
                 "PixelFormat = BayerRG12p", "Width = 640 min:16 max:4096 inc:4",
                 "Height = 480 min:2 max:3000 inc:2", "OffsetX = 3456 min:0 max:3456 inc:4",
                 "Width = 640 min:16 max:640 inc:4", "PayloadSize = 460800 min:0 max:4294967295",
                 "ExposureTime = 50000 us min:10 max:1e+06",
                 "AcquisitionFrameRate = 20 Hz min:0.1 max:20",
                 "Gain write error: [Gain] [GainRegister] [GainRegister] GigEVision "
                 "write_memory error (invalid-parameter)",
                 "Gain = 0 dB min:0 max:24", "TriggerMode = On", "TestPattern = White", ""}));
}

QTEST_GUILESS_MAIN(CStreamClientsTest)
#include "tst_streamclients.moc"
