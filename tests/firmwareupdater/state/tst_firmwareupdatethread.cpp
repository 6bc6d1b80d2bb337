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
    void runsTheJobOnItsOwnThread();
    void turnsAnExceptionIntoAnError();
    void refusesAnotherJobWhileRunning();
    void finishesWithoutAJob();
};

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

QTEST_GUILESS_MAIN(CFirmwareUpdateThreadTest)
#include "tst_firmwareupdatethread.moc"
