#include "viewer/demo/watchdog.h"

#include <QCoreApplication>
#include <QProcess>
#include <QtTest>

#include <future>

using Viewer::Demo::CWatchdog;

class CWatchdogTest : public QObject
{
    Q_OBJECT

private slots:
    void endsAHangingProcess();
    void canBeCalledOff();
};

static const char *const HangVariable = "TST_WATCHDOG_HANG";

// What the test starts itself as: a program whose main thread hangs.
static void hang()
{
    CWatchdog watchdog(std::chrono::milliseconds(20));
    watchdog.report("Step 4", "37 %");
    std::promise<void> never;
    never.get_future().wait();
}

void CWatchdogTest::endsAHangingProcess()
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(HangVariable, "1");
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), QStringList());
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);
    const QString sentence = QString::fromUtf8(process.readAllStandardError());
    QVERIFY2(sentence.contains("hangs in Step 4"), qPrintable(sentence));
}

void CWatchdogTest::canBeCalledOff()
{
    // The destructor joins the thread: with one that slept to its end the test would run into its
    // time limit.
    const CWatchdog watchdog(std::chrono::hours(1));
}

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsSet(HangVariable))
        hang();
    QCoreApplication application(argc, argv);
    CWatchdogTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_watchdog.moc"
