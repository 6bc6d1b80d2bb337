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
    void demonstrationFailsWithoutItsPictures();
    void refusesToStart_data();
    void refusesToStart();
    void startsWithoutAPluginThatIsNotRequired();

private:
    void run(const QStringList &arguments);
    QString writeFile(const QString &name, const QByteArray &content) const;

    std::unique_ptr<QTemporaryDir> m_home;
    QString m_output;
    QString m_errors;
    int m_exitCode = -1;
};

void CNuvexViewerTest::init()
{
    m_home = std::make_unique<QTemporaryDir>();
}

void CNuvexViewerTest::run(const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", m_home->path());
    environment.insert("XDG_CONFIG_HOME", m_home->filePath("config"));
    environment.insert("XDG_DATA_HOME", m_home->filePath("data"));
    environment.insert("TMPDIR", m_home->path());
    // The wizard's state machine lives until the process ends, which a leak checker takes for a
    // leak; the test of the viewer without a plug-in looks for leaks of the viewer's own.
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_home->path());
    process.start(VIEWER, arguments);
    QVERIFY2(process.waitForFinished(ProgramTime), "the viewer did not end");
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    m_exitCode = process.exitCode();
    m_output = QString::fromUtf8(process.readAllStandardOutput());
    m_errors = QString::fromUtf8(process.readAllStandardError());
}

QString CNuvexViewerTest::writeFile(const QString &name, const QByteArray &content) const
{
    QFile file(m_home->filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        return {};
    return file.fileName();
}

void CNuvexViewerTest::demonstrationUpdatesThenReinstalls()
{
    const QStringList arguments{"--samples", SAMPLES, "--speed", "100", "--demo", "pictures"};
    run(arguments);
    QVERIFY2(m_exitCode == 0, qPrintable(m_output + m_errors));
    for (const char *picture : {"step1", "step2", "step3", "step4", "step5", "viewer"})
        QVERIFY(QFile::exists(m_home->filePath("pictures/%1.png").arg(picture)));
    QVERIFY2(m_output.contains("Successful updates: 6"), qPrintable(m_output));
    QCOMPARE(m_output.count("1.2.0 -> 2."), 6);
    QVERIFY(!m_output.contains("reinstalled"));
    const QString log = m_output.section("Log: ", 1).section('\n', 0, 0);
    QVERIFY2(QFile::exists(log), qPrintable(log));

    run(arguments);
    QVERIFY2(m_exitCode == 0, qPrintable(m_output + m_errors));
    QCOMPARE(m_output.count("(reinstalled)"), 6);
}

void CNuvexViewerTest::demonstrationFailsWithTheUpdate()
{
    QFile source(DEFAULT_CAMERAS);
    QVERIFY(source.open(QIODevice::ReadOnly));
    QByteArray description = source.readAll();
    // The first camera of the model comes back with the firmware that it had before.
    const QByteArray serial("\"serialNumber\": \"40012345\",");
    QVERIFY(description.contains(serial));
    description.replace(serial, serial + " \"faults\": {\"returnsWithOldVersion\": true},");
    run({"--samples", SAMPLES, "--speed", "100", "--demo", "pictures", "--cameras",
         writeFile("cameras.json", description)});
    QCOMPARE(m_exitCode, 1);
    QVERIFY2(m_output.contains("Failed updates: 1"), qPrintable(m_output + m_errors));
    QVERIFY(m_output.contains("Skipped updates: 5"));
}

void CNuvexViewerTest::demonstrationFailsWithoutItsPictures()
{
    // A folder where the picture should go.
    QVERIFY(QDir(m_home->path()).mkpath("pictures/step4.png"));
    run({"--samples", SAMPLES, "--speed", "100", "--demo", "pictures"});
    QCOMPARE(m_exitCode, 1);
    QVERIFY2(m_errors.contains("step4.png"), qPrintable(m_errors));
    QVERIFY2(m_output.contains("Successful updates: 6"), qPrintable(m_output));
}

void CNuvexViewerTest::refusesToStart_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("required plug-in cannot start")
        << QStringList{"--plugins", REQUIRED_PLUGIN_FOLDER} << 1 << "\"required_missing\"";
    QTest::newRow("faulty camera description")
        << QStringList{"--cameras", "faulty.json"} << 1 << "faulty.json\", line 2";
    QTest::newRow("missing camera description")
        << QStringList{"--cameras", "nowhere.json"} << 1 << "nowhere.json";
    QTest::newRow("unknown option") << QStringList{"--nothing"} << 2 << "nothing";
    QTest::newRow("demonstration without update files")
        << QStringList{"--demo", "pictures"} << 1 << "no update file";
}

void CNuvexViewerTest::refusesToStart()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, exitCode);
    QFETCH(const QString, sentence);
    writeFile("faulty.json", "{\n  nonsense\n}\n");
    run(arguments);
    QVERIFY2(m_errors.contains(sentence), qPrintable(m_errors));
    QCOMPARE(m_exitCode, exitCode);
}

void CNuvexViewerTest::startsWithoutAPluginThatIsNotRequired()
{
    run({"--plugins", OTHER_PLUGIN_FOLDER, "--samples", SAMPLES, "--speed", "100", "--demo",
         "pictures"});
    QCOMPARE(m_exitCode, 0);
    QVERIFY2(m_errors.contains("\"wrong_interface\""), qPrintable(m_errors));
}

QTEST_GUILESS_MAIN(CNuvexViewerTest)

#include "tst_nuvexviewer.moc"
