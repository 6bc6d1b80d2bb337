#include "viewer/appcore/commandline.h"

#include <QDir>
#include <QtTest>

using Viewer::AppCore::CCommandLine;
using EResult = CCommandLine::EResult;

Q_DECLARE_METATYPE(EResult)

class CCommandLineTest : public QObject
{
    Q_OBJECT

private slots:
    void answers_data();
    void answers();
    void readsEverything();
    void defaults();
    void demonstrationIsQuickUnlessToldOtherwise();
};

void CCommandLineTest::answers_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<EResult>("result");
    QTest::addColumn<QString>("message");
    QTest::newRow("help") << QStringList{"--help"} << EResult::Message << "--reset-cameras";
    QTest::newRow("version") << QStringList{"--version"} << EResult::Message << "nuvexviewer";
    QTest::newRow("unknown option") << QStringList{"--nothing"} << EResult::Error << "nothing";
    QTest::newRow("value missing") << QStringList{"--cameras"} << EResult::Error << "cameras";
    QTest::newRow("stray argument") << QStringList{"file.guf"} << EResult::Error << "file.guf";
    QTest::newRow("unknown language")
        << QStringList{"--language", "de"} << EResult::Error << "\"de\"";
    QTest::newRow("empty language") << QStringList{"--language", ""} << EResult::Error << "\"\"";
    QTest::newRow("speed is a word")
        << QStringList{"--speed", "fast"} << EResult::Error << "\"fast\"";
    QTest::newRow("speed is zero") << QStringList{"--speed", "0"} << EResult::Error << "\"0\"";
    QTest::newRow("speed is not a number")
        << QStringList{"--speed", "nan"} << EResult::Error << "\"nan\"";
    QTest::newRow("no folder for pictures")
        << QStringList{"--demo", ""} << EResult::Error << "folder";
}

void CCommandLineTest::answers()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const EResult, result);
    QFETCH(const QString, message);
    CCommandLine commandLine;
    QCOMPARE(commandLine.parse(QStringList("nuvexviewer") + arguments), result);
    QVERIFY2(commandLine.getMessage().contains(message), qPrintable(commandLine.getMessage()));
}

void CCommandLineTest::readsEverything()
{
    CCommandLine commandLine;
    QCOMPARE(commandLine.parse({"nuvexviewer", "--cameras", "c.json", "--reset-cameras", "--speed",
                                "2.5", "--plugins", "/p1", "--plugins", "p2", "--language", "zh",
                                "--samples", "/s", "--demo", "out"}),
             EResult::Start);
    const auto &options = commandLine.getOptions();
    QCOMPARE(options.pool.descriptionFile, QDir::current().filePath("c.json"));
    QVERIFY(options.pool.resetCameras);
    QCOMPARE(options.pool.speedFactor, 2.5);
    QCOMPARE(options.pluginDirectories, QStringList({"/p1", QDir::current().filePath("p2")}));
    QCOMPARE(options.language, "zh");
    QCOMPARE(options.samplesDirectory, "/s");
    QCOMPARE(options.demoDirectory, QDir::current().filePath("out"));
}

void CCommandLineTest::defaults()
{
    CCommandLine commandLine;
    QCOMPARE(commandLine.parse({"nuvexviewer"}), EResult::Start);
    const auto &options = commandLine.getOptions();
    QCOMPARE(options.pool.descriptionFile, QString());
    QCOMPARE(options.pool.speedFactor, 1.0);
    QVERIFY(!options.pool.resetCameras);
    QVERIFY(options.demoDirectory.isEmpty());
    QVERIFY(options.language.isEmpty());
}

void CCommandLineTest::demonstrationIsQuickUnlessToldOtherwise()
{
    CCommandLine quick;
    QCOMPARE(quick.parse({"nuvexviewer", "--demo", "out"}), EResult::Start);
    QVERIFY(quick.getOptions().pool.speedFactor > 1.0);
    CCommandLine told;
    QCOMPARE(told.parse({"nuvexviewer", "--demo", "out", "--speed", "1"}), EResult::Start);
    QCOMPARE(told.getOptions().pool.speedFactor, 1.0);
}

QTEST_MAIN(CCommandLineTest)

#include "tst_commandline.moc"
