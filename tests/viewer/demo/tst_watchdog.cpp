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
};

static const char *const HangVariable = "TST_WATCHDOG_HANG";

// What the test starts itself as: a program whose main thread hangs.
static void hang()
{
    const CWatchdog watchdog(std::chrono::milliseconds(20));
    std::promise<void> never;
    never.get_future().wait();
}

void CWatchdogTest::endsAHangingProcess()
{
    QProcess process;
    process.start("env", {QString(HangVariable) + "=1", QCoreApplication::applicationFilePath()});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);
    const QString sentence = QString::fromUtf8(process.readAllStandardError());
    QVERIFY2(sentence.contains("hangs in the start"), qPrintable(sentence));
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
