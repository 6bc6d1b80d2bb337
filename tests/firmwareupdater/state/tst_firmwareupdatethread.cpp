#include "state/firmwareupdatethread.h"
#include "support/scriptedupdate.h"

#include <QtTest>

using Plugin::CameraPool::DeviceFirmwareUpdatePtr;
using Plugin::FirmwareUpdater::Internal::State::CFirmwareUpdateThread;
using TestSupport::CScriptedUpdate;

class CFirmwareUpdateThreadTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void runsTheJobOnItsOwnThread();
    void turnsAnExceptionIntoAnError();
    void refusesAnotherJobWhileRunning();
    void finishesWithoutAJob();

private:
    std::unique_ptr<CFirmwareUpdateThread> m_thread;
    CScriptedUpdate *m_job = nullptr;
    DeviceFirmwareUpdatePtr m_sharedJob;
    QStringList m_events; ///< what the thread has said, in order
};

void CFirmwareUpdateThreadTest::init()
{
    m_job = new CScriptedUpdate;
    m_sharedJob.reset(m_job);
    m_events.clear();
    m_thread = std::make_unique<CFirmwareUpdateThread>(nullptr);
    connect(m_thread.get(), &CFirmwareUpdateThread::firmwareUpdateDone, this,
            [this] { m_events.append("done"); });
    connect(m_thread.get(), &CFirmwareUpdateThread::firmwareUpdateError, this,
            [this](const QString &message) { m_events.append(message); });
    connect(m_thread.get(), &QThread::finished, this, [this] { m_events.append("finished"); });
}

void CFirmwareUpdateThreadTest::runsTheJobOnItsOwnThread()
{
    m_job->hold().done();
    m_thread->setFirmwareUpdate(m_sharedJob);
    QCOMPARE(m_job->thread(), m_thread.get());
    m_thread->start(QThread::InheritPriority);
    QTRY_VERIFY(m_job->isHeld());
    QCOMPARE(m_events, QStringList());
    m_job->release();
    QTRY_COMPARE(m_events, QStringList({"done", "finished"}));

    QCOMPARE(m_job->thread(), QCoreApplication::instance()->thread());
    // No connection is left behind.
    emit m_job->firmwareUpdateDone();
    QCOMPARE(m_events.count("done"), 1);
}

void CFirmwareUpdateThreadTest::turnsAnExceptionIntoAnError()
{
    m_job->begin(1).throwException("The host gave up");
    m_thread->setFirmwareUpdate(m_sharedJob);
    m_thread->start();
    QTRY_COMPARE(m_events, QStringList({"The host gave up", "finished"}));
    QCOMPARE(m_job->thread(), QCoreApplication::instance()->thread());
}

void CFirmwareUpdateThreadTest::refusesAnotherJobWhileRunning()
{
    m_job->hold().done();
    auto *const refused = new CScriptedUpdate;
    const DeviceFirmwareUpdatePtr sharedRefused(refused);

    m_thread->setFirmwareUpdate(m_sharedJob);
    m_thread->start();
    QTRY_VERIFY(m_job->isHeld());
    m_thread->setFirmwareUpdate(sharedRefused);
    QCOMPARE(refused->thread(), QThread::currentThread());
    m_job->release();
    QTRY_COMPARE(m_events, QStringList({"done", "finished"}));
    QCOMPARE(m_job->getExecutionCount(), 1);
    QCOMPARE(refused->getExecutionCount(), 0);
}

void CFirmwareUpdateThreadTest::finishesWithoutAJob()
{
    m_thread->start();
    QTRY_COMPARE(m_events, QStringList({"finished"}));
}

QTEST_GUILESS_MAIN(CFirmwareUpdateThreadTest)
#include "tst_firmwareupdatethread.moc"
