#include "viewer/appcore/commandline.h"

#include <QtTest>

using Viewer::AppCore::CCommandLine;
using EResult = CCommandLine::EResult;

class CCommandLineTest : public QObject
{
    Q_OBJECT

private slots:
    void refusesWhatMakesNoSense_data();
    void refusesWhatMakesNoSense();
    void demonstrationIsQuickUnlessTold();
};

void CCommandLineTest::refusesWhatMakesNoSense_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const QStringList &arguments, const char *message) {
        QTest::newRow(name) << arguments << message;
    };
    row("unknown option", {"--nothing"}, "nothing");
    row("value missing", {"--cameras"}, "cameras");
    row("stray argument", {"file.guf"}, "file.guf");
    row("unknown language", {"--language", "de"}, "\"de\"");
    row("speed is a word", {"--speed", "fast"}, "\"fast\"");
    row("speed is zero", {"--speed", "0"}, "\"0\"");
    row("speed is not a number", {"--speed", "nan"}, "\"nan\"");
    row("no folder for pictures", {"--demo", ""}, "folder");
}

void CCommandLineTest::refusesWhatMakesNoSense()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, message);
    CCommandLine commandLine;
    QVERIFY(commandLine.parse(QStringList("nuvexviewer") + arguments) == EResult::Error);
    QVERIFY2(commandLine.getMessage().contains(message), qPrintable(commandLine.getMessage()));
}

void CCommandLineTest::demonstrationIsQuickUnlessTold()
{
    CCommandLine quick;
    QVERIFY(quick.parse({"nuvexviewer", "--demo", "out"}) == EResult::Start);
    QVERIFY(quick.getOptions().pool.speedFactor > 1.0);
    CCommandLine told;
    QVERIFY(told.parse({"nuvexviewer", "--demo", "out", "--speed", "1", "--language", "zh",
                        "--reset-cameras"})
            == EResult::Start);
    QCOMPARE(told.getOptions().pool.speedFactor, 1.0);
    QCOMPARE(told.getOptions().language, "zh");
    QVERIFY(told.getOptions().pool.resetCameras);
}

QTEST_GUILESS_MAIN(CCommandLineTest)

#include "tst_commandline.moc"
