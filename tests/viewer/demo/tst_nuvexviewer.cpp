#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

static constexpr int ProgramTime = 90000; // milliseconds; far more than it needs

/// Runs the finished viewer in a home of its own.
class CNuvexViewerTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void demonstrationUpdatesThenReinstalls();
    void demonstrationFailsWithTheUpdate();
    void refusesToStart();

private:
    void run(const QStringList &arguments, int exitCode, const QString &sentence);

    const QStringList m_demonstration{"--samples=" SAMPLES, "--speed=100", "--demo=pictures"};
    QTemporaryDir m_folder;
    QDir m_home;
    QString m_output;
};

void CNuvexViewerTest::init()
{
    m_home.setPath(m_folder.filePath(QTest::currentTestFunction()));
    QVERIFY(m_home.mkpath("."));
    for (const char *variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "TMPDIR"})
        qputenv(variable, m_home.path().toUtf8());
    // The wizard's state machine lives until the process ends, which a leak checker takes for a
    // leak; the test of the viewer without a plug-in looks for leaks of the viewer's own.
    qputenv("ASAN_OPTIONS", "detect_leaks=0");
}

void CNuvexViewerTest::run(const QStringList &arguments, int exitCode, const QString &sentence)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setWorkingDirectory(m_home.path());
    process.start(VIEWER, arguments);
    QVERIFY2(process.waitForFinished(ProgramTime), "the viewer did not end");
    m_output = QString::fromUtf8(process.readAll());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QVERIFY2(process.exitCode() == exitCode, qPrintable(m_output));
    QVERIFY2(m_output.contains(sentence), qPrintable(m_output));
}

void CNuvexViewerTest::demonstrationUpdatesThenReinstalls()
{
    run(m_demonstration, 0, "Successful updates: 6");
    for (const char *picture : {"step1", "step2", "step3", "step4", "step5", "viewer"})
        QVERIFY(QFile::exists(m_home.filePath("pictures/%1.png").arg(picture)));
    QCOMPARE(m_output.count("1.2.0 -> 2."), 6);
    QVERIFY(!m_output.contains("reinstalled"));
    const QString log = m_output.section("Log: ", 1).section('\n', 0, 0);
    QVERIFY2(QFile::exists(log), qPrintable(log));

    // A plug-in that is not required and fails does not end the start.
    run(m_demonstration + QStringList{"--plugins", OTHER_PLUGIN_FOLDER}, 0, "\"wrong_interface\"");
    QCOMPARE(m_output.count("(reinstalled)"), 6);
}

void CNuvexViewerTest::demonstrationFailsWithTheUpdate()
{
    // The first camera of the model comes back with the firmware that it had before.
    const QByteArray serial("\"serialNumber\": \"40012345\",");
    QFile source(DEFAULT_CAMERAS);
    QFile description(m_home.filePath("cameras.json"));
    QVERIFY(source.open(QIODevice::ReadOnly) && description.open(QIODevice::WriteOnly));
    description.write(source.readAll().replace(
        serial, serial + " \"faults\": {\"returnsWithOldVersion\": true},"));
    description.close();
    run(m_demonstration + QStringList{"--cameras", "cameras.json"}, 1, "Failed updates: 1");
    QVERIFY(m_output.contains("Skipped updates: 5"));
}

void CNuvexViewerTest::refusesToStart()
{
    run({"--plugins", REQUIRED_PLUGIN_FOLDER}, 1, "\"required_missing\"");
    run({"--cameras", "nowhere.json"}, 1, "nowhere.json");
    run({"--demo", "pictures"}, 1, "no update file");
    run({"--nothing"}, 2, "nothing");
    run({"--cameras"}, 2, "cameras");
    run({"--plugins", ""}, 2, "plug-ins");
    run({"file.guf"}, 2, "file.guf");
    run({"--language=de"}, 2, "\"de\"");
    for (const char *speed : {"fast", "0", "nan"})
        run({"--speed", speed}, 2, QString("\"%1\"").arg(speed));
}

QTEST_GUILESS_MAIN(CNuvexViewerTest)

#include "tst_nuvexviewer.moc"
