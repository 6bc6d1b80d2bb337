#include "state/firmwareupdatethread.h"
#include "support/scriptedupdate.h"

#include <QSignalSpy>
#include <QtTest>

using Plugin::CameraPool::EFirmwareUpdateStep;
using Plugin::CameraPool::IDeviceFirmwareUpdate;
using Plugin::FirmwareUpdater::Internal::State::CFirmwareUpdateThread;
using TestSupport::CScriptedUpdate;

class CFirmwareUpdateThreadTest : public QObject
{
    Q_OBJECT

private slots:
    void forwardsAllSignalsInOrder();
    void runsTheJobOnItsOwnThread();
    void turnsAnExceptionIntoAnError();
    void refusesAnotherJobWhileRunning();
    void finishesWithoutAJob();
    void runsOneJobAfterAnother();
};

void CFirmwareUpdateThreadTest::forwardsAllSignalsInOrder()
{
    CFirmwareUpdateThread thread(nullptr);
    QStringList received;
    connect(&thread, &CFirmwareUpdateThread::firmwareUpdateBegin, this,
            [&received](const auto &info, unsigned int total) {
                received.append(QString("begin %1 %2").arg(info->getVersion()).arg(total));
            });
    connect(&thread, &CFirmwareUpdateThread::firmwareUpdateProgressStepBegin, this,
            [&received](EFirmwareUpdateStep step, unsigned int estimate, const QString &text) {
                received.append(
                    QString("step %1 %2 %3").arg(static_cast<int>(step)).arg(estimate).arg(text));
            });
    connect(&thread, &CFirmwareUpdateThread::firmwareUpdateProgressStepProgressChanged, this,
            [&received](EFirmwareUpdateStep step, double percent) {
                received.append(QString("progress %1 %2").arg(static_cast<int>(step)).arg(percent));
            });
    connect(&thread, &CFirmwareUpdateThread::firmwareUpdateProgressStepDone, this,
            [&received](EFirmwareUpdateStep step, unsigned int estimate) {
                received.append(
                    QString("step done %1 %2").arg(static_cast<int>(step)).arg(estimate));
            });
    connect(&thread, &CFirmwareUpdateThread::firmwareUpdateDone, this,
            [&received] { received.append("done"); });
    connect(&thread, &CFirmwareUpdateThread::firmwareUpdateError, this,
            [&received](const QString &message) { received.append("error " + message); });
    connect(&thread, &QThread::finished, this, [&received] { received.append("finished"); });

    auto *const job = new CScriptedUpdate("2.0");
    job->begin(70)
        .beginStep(EFirmwareUpdateStep::FileUpload, 60, "image")
        .progress(EFirmwareUpdateStep::FileUpload, 12.5)
        .endStep(EFirmwareUpdateStep::FileUpload, 60)
        .done();
    thread.setFirmwareUpdate(QSharedPointer<IDeviceFirmwareUpdate>(job));
    thread.start();
    QTRY_VERIFY(received.contains("finished"));
    QCOMPARE(received,
             QStringList({"begin 2.0 70", "step 5 60 image", "progress 5 12.5", "step done 5 60",
                          "done", "finished"}));
}

void CFirmwareUpdateThreadTest::runsTheJobOnItsOwnThread()
{
    CFirmwareUpdateThread thread(nullptr);
    auto *const job = new CScriptedUpdate;
    const QSharedPointer<IDeviceFirmwareUpdate> shared(job);
    job->hold().done();
    QSignalSpy doneSpy(&thread, &CFirmwareUpdateThread::firmwareUpdateDone);
    int finished = 0;
    connect(&thread, &QThread::finished, this, [&finished] { ++finished; });

    thread.setFirmwareUpdate(shared);
    QCOMPARE(job->thread(), &thread);
    thread.start(QThread::InheritPriority);
    QTRY_VERIFY(job->isHeld());
    QCOMPARE(doneSpy.count(), 0);
    job->release();
    QTRY_COMPARE(finished, 1);
    QCOMPARE(doneSpy.count(), 1);

    QCOMPARE(job->thread(), QCoreApplication::instance()->thread());
    // No connection is left behind.
    emit job->firmwareUpdateDone();
    QCOMPARE(doneSpy.count(), 1);
}

void CFirmwareUpdateThreadTest::turnsAnExceptionIntoAnError()
{
    CFirmwareUpdateThread thread(nullptr);
    auto *const job = new CScriptedUpdate;
    const QSharedPointer<IDeviceFirmwareUpdate> shared(job);
    job->begin(1).throwException("The host gave up");
    QSignalSpy errorSpy(&thread, &CFirmwareUpdateThread::firmwareUpdateError);
    int finished = 0;
    connect(&thread, &QThread::finished, this, [&finished] { ++finished; });

    thread.setFirmwareUpdate(shared);
    thread.start();
    QTRY_COMPARE(finished, 1);
    QCOMPARE(errorSpy.count(), 1);
    QCOMPARE(errorSpy.first().first().toString(), "The host gave up");
    QCOMPARE(job->thread(), QCoreApplication::instance()->thread());
}

void CFirmwareUpdateThreadTest::refusesAnotherJobWhileRunning()
{
    CFirmwareUpdateThread thread(nullptr);
    auto *const running = new CScriptedUpdate;
    const QSharedPointer<IDeviceFirmwareUpdate> sharedRunning(running);
    running->hold().done();
    const QSharedPointer<IDeviceFirmwareUpdate> refused(new CScriptedUpdate);
    int finished = 0;
    connect(&thread, &QThread::finished, this, [&finished] { ++finished; });

    thread.setFirmwareUpdate(sharedRunning);
    thread.start();
    QTRY_VERIFY(running->isHeld());
    thread.setFirmwareUpdate(refused);
    QCOMPARE(refused->thread(), QThread::currentThread());
    running->release();
    QTRY_COMPARE(finished, 1);
    QCOMPARE(running->getExecutionCount(), 1);
    QCOMPARE(static_cast<CScriptedUpdate *>(refused.data())->getExecutionCount(), 0);
}

void CFirmwareUpdateThreadTest::finishesWithoutAJob()
{
    CFirmwareUpdateThread thread(nullptr);
    int finished = 0;
    connect(&thread, &QThread::finished, this, [&finished] { ++finished; });
    QSignalSpy doneSpy(&thread, &CFirmwareUpdateThread::firmwareUpdateDone);
    QSignalSpy errorSpy(&thread, &CFirmwareUpdateThread::firmwareUpdateError);
    thread.start();
    QTRY_COMPARE(finished, 1);
    QCOMPARE(doneSpy.count() + errorSpy.count(), 0);
}

void CFirmwareUpdateThreadTest::runsOneJobAfterAnother()
{
    CFirmwareUpdateThread thread(nullptr);
    QSignalSpy doneSpy(&thread, &CFirmwareUpdateThread::firmwareUpdateDone);
    int finished = 0;
    connect(&thread, &QThread::finished, this, [&finished] { ++finished; });
    auto *const job = new CScriptedUpdate;
    const QSharedPointer<IDeviceFirmwareUpdate> shared(job);
    job->done();
    QSignalSpy errorSpy(&thread, &CFirmwareUpdateThread::firmwareUpdateError);

    // The same job once more is taken as well; it is the job that refuses.
    for (int run = 1; run <= 2; ++run) {
        thread.setFirmwareUpdate(shared);
        thread.start();
        QTRY_COMPARE(finished, run);
    }
    QCOMPARE(doneSpy.count(), 1);
    QCOMPARE(errorSpy.count(), 1);
    QCOMPARE(job->getExecutionCount(), 2);
}

QTEST_GUILESS_MAIN(CFirmwareUpdateThreadTest)
#include "tst_firmwareupdatethread.moc"
