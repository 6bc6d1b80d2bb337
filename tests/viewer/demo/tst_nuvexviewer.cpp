#include "viewer/appcore/logsummary.h"
#include "viewer/text/language.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

using Viewer::AppCore::CLogSummary;

static constexpr int PROGRAM_TIME = 90000; // milliseconds; far more than it needs

/// Runs the finished viewer in a home of its own.
class CNuvexViewerTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void demonstrationUpdatesThenReinstalls();
    void demonstrationUpdatesAModelOnTwoLayers();
    void demonstrationFailsWithTheUpdate();
    void refusesToStart();
    void answersInTheLanguageAskedFor();
    void signalsCloseTheViewer_data();
    void signalsCloseTheViewer();
    void signalsWaitForTheUpdate();
    void worksWithoutAFolderForLogs();

private:
    /// Writes the default cameras to "cameras.json", with @p after in place of @p before.
    void writeCameras(const QByteArray &before, const QByteArray &after) const;
    void run(const QStringList &arguments, int exitCode, const QString &sentence);
    QStringList findLogs() const;

    const QStringList m_demonstration{"--samples=" SAMPLES, "--speed=100", "--demo=pictures"};
    QTemporaryDir m_folder;
    QDir m_home;
    QString m_output;
};

void CNuvexViewerTest::init()
{
    m_home.setPath(m_folder.filePath(QTest::currentTestFunction()));
    QVERIFY(m_home.mkpath("."));
    for (const char *variable :
         {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "TMPDIR"})
        qputenv(variable, m_home.path().toUtf8());
    // The wizard's state machine lives until the process ends, which a leak checker takes for a
    // leak; the test of the viewer without a plug-in looks for leaks of the viewer's own.
    qputenv("ASAN_OPTIONS", "detect_leaks=0");
}

void CNuvexViewerTest::writeCameras(const QByteArray &before, const QByteArray &after) const
{
    QFile source(DEFAULT_CAMERAS);
    QFile description(m_home.filePath("cameras.json"));
    QVERIFY(source.open(QIODevice::ReadOnly) && description.open(QIODevice::WriteOnly));
    const QByteArray cameras = source.readAll();
    QCOMPARE(cameras.count(before), 1);
    description.write(QByteArray(cameras).replace(before, after));
}

void CNuvexViewerTest::run(const QStringList &arguments, int exitCode, const QString &sentence)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setWorkingDirectory(m_home.path());
    process.start(VIEWER, arguments);
    QVERIFY2(process.waitForFinished(PROGRAM_TIME), "the viewer did not end");
    m_output = QString::fromUtf8(process.readAll());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QVERIFY2(process.exitCode() == exitCode, qPrintable(m_output));
    QVERIFY2(m_output.contains(sentence), qPrintable(m_output));
}

static QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// In the folders of viewers.
QStringList CNuvexViewerTest::findLogs() const
{
    QStringList logs;
    QDirIterator entries(m_home.filePath("nuvexviewer/logs"), {"NuvexFirmwareUpdaterGUI_*.log"},
                         QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext())
        logs.append(entries.next());
    return logs;
}

void CNuvexViewerTest::demonstrationUpdatesThenReinstalls()
{
    run(m_demonstration, 0, "Successful updates: 6");
    for (const char *picture : {"step1", "step2", "step3", "step4", "step5", "viewer"})
        QVERIFY(QFile::exists(m_home.filePath("pictures/%1.png").arg(picture)));
    QCOMPARE(m_output.count("1.2.0 -> 2."), 6);
    QVERIFY(!m_output.contains("reinstalled"));
    QCOMPARE(findLogs(), QStringList(m_output.section("Log: ", 1).section('\n', 0, 0)));
    const CLogSummary summary = CLogSummary::parse(readFile(findLogs().constFirst()));
    QCOMPARE(summary.outcome, CLogSummary::EOutcome::Successful);
    QCOMPARE(summary.updatedCount, 6);
    QCOMPARE(summary.cameraNames.size(), 6);

    // A plug-in that is not required and fails does not end the start.
    run(m_demonstration + QStringList{"--plugins", OTHER_PLUGIN_FOLDER}, 0, "\"wrong_interface\"");
    QCOMPARE(m_output.count("(reinstalled)"), 6);
}

void CNuvexViewerTest::demonstrationUpdatesAModelOnTwoLayers()
{
    // The last two cameras of the model stand on a layer of their own.
    const QByteArray id("\"id\": \"gige-40012360\"");
    const QByteArray between(",\n        {\n          ");
    writeCameras(between + id,
                 R"(]}, {"id": "gige-1", "displayName": "GigE Vision 2", "cameras": [{)" + id);
    run(m_demonstration + QStringList{"--cameras", "cameras.json"}, 0, "Successful updates: 6");
}

void CNuvexViewerTest::demonstrationFailsWithTheUpdate()
{
    // The first camera of the model comes back with the firmware that it had before.
    const QByteArray serial("\"serialNumber\": \"40012345\",");
    writeCameras(serial, serial + " \"faults\": {\"returnsWithOldVersion\": true},");
    run(m_demonstration + QStringList{"--cameras", "cameras.json", "--language", "ko"}, 1, "5");
    const CLogSummary summary = CLogSummary::parse(readFile(findLogs().value(0)));
    QCOMPARE(summary.outcome, CLogSummary::EOutcome::Failed);
    QCOMPARE(summary.updatedCount, 0);
    QCOMPARE(summary.cameraCount, 6);
}

void CNuvexViewerTest::refusesToStart()
{
    run({"--plugins", REQUIRED_PLUGIN_FOLDER}, 1, "\"required_missing\"");
    run({"--cameras", "nowhere.json"}, 1, "nowhere.json");
    run({"--demo", "pictures"}, 1, "no update file");
    run({"--nothing"}, 2, "nothing");
    run({"--cameras"}, 2, "cameras");
    run({"--plugins", ""}, 2, "plug-ins");
    run({"a.guf", "b.guf"}, 2, "\"a.guf\" and \"b.guf\"");
    run({"--language=de"}, 2, "\"de\"");
    for (const char *speed : {"fast", "0", "nan"})
        run({"--speed", speed}, 2, QString("\"%1\"").arg(speed));
    // Without Qt's abort.
    run({"-platform", "%s%n"}, 2, "\"%s%n\"");
    run({"-stylesheet", "/dev/zero"}, 2, "/dev/zero");
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("DISPLAY", ":nowhere");
    run({}, 1, "could not connect to display :nowhere");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QVERIFY2(QDir(m_home.filePath("nuvexviewer/logs")).isEmpty(), "a folder without a log is left");
}

void CNuvexViewerTest::signalsCloseTheViewer_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGHUP") << SIGHUP;
    QTest::newRow("SIGINT") << SIGINT;
}

void CNuvexViewerTest::signalsCloseTheViewer()
{
    QFETCH(int, signal);
    QProcess viewer;
    viewer.start(VIEWER, {"--no-simulation"});
    const QDir logs(m_home.filePath("nuvexviewer/logs"));
    QTRY_VERIFY_WITH_TIMEOUT(!logs.isEmpty(QDir::Dirs | QDir::NoDotAndDotDot), PROGRAM_TIME);
    kill(static_cast<pid_t>(viewer.processId()), signal);
    QVERIFY(viewer.waitForFinished(PROGRAM_TIME));
    QCOMPARE(viewer.exitStatus(), QProcess::NormalExit);
    QCOMPARE(viewer.exitCode(), 0);
    QVERIFY2(logs.isEmpty(), "a folder without a log is left");
}

void CNuvexViewerTest::signalsWaitForTheUpdate()
{
    QProcess viewer;
    viewer.setProcessChannelMode(QProcess::MergedChannels);
    viewer.setWorkingDirectory(m_home.path());
    viewer.start(VIEWER, {"--samples=" SAMPLES, "--speed=10", "--demo=pictures"});
    QByteArray output;
    const auto waitFor = [&viewer, &output](const char *text, int count) {
        while (output.count(text) < count && viewer.waitForReadyRead(PROGRAM_TIME))
            output += viewer.readAll();
        return output.count(text) == count;
    };
    QVERIFY2(waitFor("Step 4", 1), output);
    const auto process = static_cast<pid_t>(viewer.processId());
    int count = 0;
    for (const int signal : {SIGTERM, SIGTERM, SIGHUP, SIGINT}) {
        kill(process, signal);
        QVERIFY2(waitFor("closes by itself", ++count), output);
    }
    QVERIFY2(output.contains("nuvexviewer: A firmware update is running."), output);
    // As with a terminal that is closed: nobody reads on.
    viewer.closeReadChannel(QProcess::StandardOutput);
    kill(process, SIGTERM);
    QVERIFY(viewer.waitForFinished(PROGRAM_TIME));
    QCOMPARE(viewer.exitStatus(), QProcess::NormalExit);
    // The update of all cameras went on, the demonstration behind it did not.
    QCOMPARE(viewer.exitCode(), 1);
    const CLogSummary summary = CLogSummary::parse(readFile(findLogs().value(0)));
    QCOMPARE(summary.outcome, CLogSummary::EOutcome::Successful);
    QCOMPARE(summary.updatedCount, 6);
}

void CNuvexViewerTest::worksWithoutAFolderForLogs()
{
    QFile file(m_home.filePath("nuvexviewer"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    run(m_demonstration, 0, "Logs of firmware updates are not kept");
    QVERIFY2(m_output.contains("nuvexviewer/logs\" cannot be used: Not a directory."),
             qPrintable(m_output));
    const QString log = m_output.section("Log: ", 1).section('\n', 0, 0);
    QVERIFY2(!log.isEmpty() && !QFile::exists(log), qPrintable(log));
    QVERIFY(!QFile::exists('/' + QFileInfo(log).fileName()));
    QVERIFY(m_home.entryList({"*.log"}).isEmpty());
}

void CNuvexViewerTest::answersInTheLanguageAskedFor()
{
    static const QRegularExpression names("\\S*nuvexviewer|--[a-z-]+|USB");
    static const QRegularExpression word("[A-Za-z]{3}.*");
    for (const Viewer::Text::CLanguageEntry &language : Viewer::Text::CLanguage::getEntries()) {
        if (language.code == "en")
            continue;
        run({"--help", "--language", language.code}, 0, "--camera-address");
        m_output.remove(Viewer::Text::CLanguage::getCodeList());
        QCOMPARE(word.match(m_output.remove(names)).captured(), QString());
    }
    run({"--language=ja", "--nothing"}, 2, "オプション");
    run({"--language=ja", "--speed=fast"}, 2, "「fast」");
    run({"--language=de", "--help"}, 2, "\"de\"");
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    for (const char *variable : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        qunsetenv(variable);
    run({"--language=ja"}, 1, "ディスプレイがありません");
    qputenv("QT_QPA_PLATFORM", platform);
}

QTEST_GUILESS_MAIN(CNuvexViewerTest)

#include "tst_nuvexviewer.moc"
