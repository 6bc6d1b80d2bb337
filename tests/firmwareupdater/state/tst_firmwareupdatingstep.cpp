#include "state/firmwareupdatingstep.h"
#include "support/updaterfixture.h"
#include "view/firmwareupdatedialog.h"

#include <QProgressBar>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

using namespace Plugin::FirmwareUpdater::Internal;
using EStep = Plugin::CameraPool::EFirmwareUpdateStep;
using TestSupport::CScriptedUpdate;
using TestSupport::CUpdaterFixture;

namespace {

const QString REFUSAL = "The series of updates was stopped before this camera";

/// What the log says about camera @p number of @p count, whose job has one step and succeeds.
QStringList getLines(int number, int count)
{
    const QString place = QString("(%1/%2)").arg(number).arg(count);
    return {"INFO Starting firmware update " + place + " for camera Camera "
                + QChar('a' + number - 1),
            "INFO Update infos:",
            "INFO Filename: update.guf",
            "INFO Version: 2.0.0",
            "INFO Description: Fixes",
            "INFO Release Notes: Notes",
            "INFO Update will take approximately 80 msec",
            "INFO Entering update step: FileUpload",
            "INFO Update step description: the image",
            "INFO Update step will take approximately 80 msec",
            "INFO FileUpload progress: 50%",
            "INFO Finished update step: FileUpload",
            "INFO Update remaining time approximately 80 msec",
            "INFO Finished firmware update " + place};
}

} // namespace

class CFirmwareUpdatingStepTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void updatesOneCameraAfterAnother();
    void stopsAtTheFirstFailure();
    void stopsAtAMissingJob();
    void stopsAfterTheCurrentCameraOnCancel();
    void succeedsWhenCanceledDuringTheLastCamera();
    void drivesTheProgressBarByEstimates();
    void animatesTheReset();
    void tellsEachTickOncePerReset();
    void waitsForTheCameraOnExit();
    void doesNothingBeforeAndAfter();
    void survivesALostDialog();
    void survivesAnEmptiedList();
    void isFirstSeenWhereTheWizardWas();

private:
    bool eventFilter(QObject *watched, QEvent *event) override;

    enum class EOutcome { Success, Failure, Hold, Missing };

    /// Fills the model with cameras 'a', 'b', ... that have @p jobs, and enters the step.
    void enter(const QVector<CScriptedUpdate *> &jobs);
    /// The same with jobs that end as given.
    void enter(const QVector<EOutcome> &outcomes);
    void waitForHold(int job);
    /// Lets job number @p held go on, and waits for the end of the series.
    void finish(int held = 0);
    /// The last lines of the log.
    [[nodiscard]] QStringList getLogEnd(int count) const
    {
        return m_fixture->getLog().mid(m_fixture->getLog().size() - count);
    }
    [[nodiscard]] QVector<int> column(int column) const;
    [[nodiscard]] QProgressBar *getBar() const
    {
        return TestSupport::find<QProgressBar>(*m_dialog, "progressBar");
    }
    [[nodiscard]] QString getCounter() const
    {
        return TestSupport::getText(*m_dialog, "progressIndicatorLabel");
    }

    std::unique_ptr<CUpdaterFixture> m_fixture;
    std::unique_ptr<View::CFirmwareUpdateDialog> m_dialog;
    std::unique_ptr<State::CFirmwareUpdatingStep> m_step;
    std::unique_ptr<QSignalSpy> m_endSpy;
    QVector<CScriptedUpdate *> m_jobs;
    QVector<QRect> m_shownAt; ///< where the dialog was each time it was shown
};

void CFirmwareUpdatingStepTest::init()
{
    m_fixture = std::make_unique<CUpdaterFixture>();
    m_dialog = std::make_unique<View::CFirmwareUpdateDialog>(nullptr);
    m_dialog->setModel(m_fixture->model);
    m_step = std::make_unique<State::CFirmwareUpdatingStep>(&m_fixture->host.initializer,
                                                            m_dialog.get(), nullptr);
    m_endSpy = std::make_unique<QSignalSpy>(m_step.get(),
                                            &State::CFirmwareUpdatingStep::firmwareUpdateDone);
    m_fixture->service->openTemporaryLogFile();
}

void CFirmwareUpdatingStepTest::cleanup()
{
    m_endSpy.reset();
    m_step->onExit(nullptr);
    m_step.reset();
    m_dialog.reset();
    m_fixture.reset();
}

void CFirmwareUpdatingStepTest::enter(const QVector<CScriptedUpdate *> &jobs)
{
    m_jobs = jobs;
    QList<CUpdaterFixture::Entity *> cameras;
    for (int i = 0; i < jobs.size(); ++i)
        cameras.append(CUpdaterFixture::makeTickedCamera({QChar('a' + i)}, jobs.at(i)));
    m_fixture->model->setCameraDeviceList(cameras);
    m_step->onEntry(nullptr);
}

void CFirmwareUpdatingStepTest::enter(const QVector<EOutcome> &outcomes)
{
    QVector<CScriptedUpdate *> jobs;
    for (const EOutcome outcome : outcomes) {
        auto *const job = outcome == EOutcome::Missing ? nullptr : new CScriptedUpdate;
        jobs.append(job);
        if (!job)
            continue;
        job->begin(80)
            .beginStep(EStep::FileUpload, 80, "the image")
            .progress(EStep::FileUpload, 50);
        if (outcome == EOutcome::Hold)
            job->hold();
        if (outcome == EOutcome::Failure)
            job->error("Camera is on fire");
        else
            job->endStep(EStep::FileUpload, 80).done();
    }
    enter(jobs);
}

void CFirmwareUpdatingStepTest::waitForHold(int job)
{
    QTRY_VERIFY(m_jobs.at(job)->isHeld());
}

void CFirmwareUpdatingStepTest::finish(int held)
{
    m_jobs.at(held)->release();
    QTRY_COMPARE(m_endSpy->count(), 1);
}

QVector<int> CFirmwareUpdatingStepTest::column(int column) const
{
    QVector<int> values;
    for (int row = 0; row < m_fixture->model->rowCount(); ++row)
        values.append(m_fixture->model->index(row, column).data().toInt());
    return values;
}

void CFirmwareUpdatingStepTest::updatesOneCameraAfterAnother()
{
    enter({EOutcome::Success, EOutcome::Hold, EOutcome::Success});
    QVERIFY(m_dialog->isVisible());
    waitForHold(1);
    QTRY_VERIFY(m_fixture->getLog().last().contains("progress"));
    QCOMPARE(getCounter(), "2/3");
    QCOMPARE(column(6), QVector<int>({2, 1, 0}));
    QCOMPARE(column(7), QVector<int>({0, 2, 2}));
    QCOMPARE(m_jobs.at(2)->getExecutionCount(), 0);
    finish(1);

    QCOMPARE(m_fixture->getLog(),
             getLines(1, 3) + getLines(2, 3) + getLines(3, 3)
                 + QStringList{"INFO Finished all firmware updates"});
    QCOMPARE(column(6), QVector<int>({2, 2, 2}));
    QCOMPARE(column(7), QVector<int>({0, 0, 0}));
    QCOMPARE(getCounter(), "3/3");
    QCOMPARE(m_fixture->service->getUpdateFailureMessage(), "");
}

void CFirmwareUpdatingStepTest::stopsAtTheFirstFailure()
{
    // @p failing is the number of the failing camera, from 1.
    const auto check = [this](int count, int failing, bool warned) {
        cleanup();
        init();
        QVector<EOutcome> outcomes(count, EOutcome::Success);
        outcomes[failing - 1] = EOutcome::Failure;
        enter(outcomes);
        QTRY_COMPARE(m_endSpy->count(), 1);

        QStringList expectedEnd
            = {"INFO FileUpload progress: 50%", "CRITICAL Camera is on fire",
               QString("CRITICAL Firmware update (%1/%2) failed.").arg(failing).arg(count)};
        if (warned)
            expectedEnd.append("WARNING Further firmware updates will be skipped");
        expectedEnd.append("INFO Finished all firmware updates");
        QCOMPARE(getLogEnd(expectedEnd.size()), expectedEnd);
        QCOMPARE(m_fixture->getLog().filter("Starting firmware update").size(), failing);

        for (int i = 0; i < count; ++i) {
            const bool ran = i < failing;
            QCOMPARE(m_jobs.at(i)->getExecutionCount(), ran ? 1 : 0);
            QCOMPARE(column(6).at(i), ran ? 2 : 0);
            QCOMPARE(column(7).at(i), !ran ? 2 : i == failing - 1 ? 1 : 0);
        }
        QCOMPARE(m_fixture->service->getUpdateFailureMessage(), "Camera is on fire");
    };
    check(3, 1, true);
    // An odd rule of old: nothing is said when exactly one camera is left out.
    check(3, 2, false);
    check(3, 3, true);
    check(1, 1, true);
}

void CFirmwareUpdatingStepTest::stopsAtAMissingJob()
{
    enter({EOutcome::Success, EOutcome::Missing, EOutcome::Success});
    QTRY_COMPARE(m_endSpy->count(), 1);

    const QString message = "Internal error: Firmware update is missing and could not be applied.";
    const QStringList log = m_fixture->getLog();
    QVERIFY(log.contains("CRITICAL " + message));
    QVERIFY(log.contains("CRITICAL Firmware update (2/3) failed."));
    QVERIFY(!log.contains("INFO Finished all firmware updates"));
    QCOMPARE(column(7), QVector<int>({0, 1, 2}));
    QCOMPARE(m_fixture->service->getUpdateFailureMessage(), message);
}

void CFirmwareUpdatingStepTest::stopsAfterTheCurrentCameraOnCancel()
{
    enter({EOutcome::Hold, EOutcome::Success, EOutcome::Success});
    waitForHold(0);
    QPushButton *const cancel = TestSupport::getButton(*m_dialog, "Cancel");
    connect(m_dialog.get(), &View::CFirmwareUpdateDialog::closeClicked, m_step.get(),
            &State::CFirmwareUpdatingStep::onUpdatesCanceled);
    QTest::mouseClick(cancel, Qt::LeftButton);
    QVERIFY(!cancel->isEnabled());
    QVERIFY(m_dialog->isVisible());
    m_step->onUpdatesCanceled();
    QCOMPARE(m_endSpy->count(), 0);
    finish();

    // The finished job is handed to the thread once more; its refusal ends the series.
    QCOMPARE(m_jobs.at(0)->getExecutionCount(), 2);
    QCOMPARE(m_jobs.at(1)->getExecutionCount(), 0);
    QCOMPARE(column(7), QVector<int>({0, 1, 2}));
    QCOMPARE(m_fixture->getLog().filter("User canceled firmware update"),
             QStringList({"WARNING User canceled firmware update"}));
    const QStringList expectedEnd
        = {"INFO Finished firmware update (1/3)",
           "INFO Firmware updates have been canceled by the user", "CRITICAL " + REFUSAL,
           "CRITICAL Firmware update (2/3) failed.", "INFO Finished all firmware updates"};
    QCOMPARE(getLogEnd(expectedEnd.size()), expectedEnd);
    QCOMPARE(m_fixture->service->getUpdateFailureMessage(), REFUSAL);
}

void CFirmwareUpdatingStepTest::succeedsWhenCanceledDuringTheLastCamera()
{
    enter({EOutcome::Hold});
    waitForHold(0);
    m_step->onUpdatesCanceled();
    finish();
    QCOMPARE(column(7), QVector<int>({0}));
    QCOMPARE(m_jobs.at(0)->getExecutionCount(), 1);
    QCOMPARE(m_fixture->service->getUpdateFailureMessage(), "");
}

void CFirmwareUpdatingStepTest::drivesTheProgressBarByEstimates()
{
    auto *const job = new CScriptedUpdate;
    job->hold()
        .begin(1000)
        .beginStep(EStep::AcquireUpdateData, 400)
        .endStep(EStep::AcquireUpdateData, 400)
        .beginStep(EStep::FileUpload, 600)
        .progress(EStep::FileUpload, 25)
        .hold()
        .done();
    enter(QVector<CScriptedUpdate *>{job});
    // Busy while the first camera prepares.
    waitForHold(0);
    QCOMPARE(getBar()->maximum(), 0);
    QCOMPARE(getBar()->minimum(), 0);

    job->release();
    QTRY_COMPARE(getBar()->value(), 550);
    QCOMPARE(getBar()->maximum(), 1000);

    finish();
    // Between cameras the bar shows cameras.
    QCOMPARE(getBar()->maximum(), 1);
    QCOMPARE(getBar()->value(), 1);
}

void CFirmwareUpdatingStepTest::animatesTheReset()
{
    auto *const job = new CScriptedUpdate;
    job->begin(4000)
        .beginStep(EStep::FileUpload, 1000)
        .endStep(EStep::FileUpload, 1000)
        .beginStep(EStep::DeviceReset, 3000)
        .hold()
        .endStep(EStep::DeviceReset, 3000)
        .done();
    enter(QVector<CScriptedUpdate *>{job});

    const QRegularExpression format("^INFO DeviceReset progress: (\\d+)%$");
    const auto getTicks = [&] { return m_fixture->getLog().filter(format); };
    QTRY_VERIFY(!getTicks().isEmpty());
    const int percent = format.match(getTicks().last()).captured(1).toInt();
    QVERIFY(percent >= 8);
    QCOMPARE(getBar()->value(), 1000 + percent * 30);

    finish();
    const int count = getTicks().size();
    // The timer stands still after the reset: whatever it had posted has been delivered.
    QCoreApplication::processEvents();
    QCOMPARE(getTicks().size(), count);
}

void CFirmwareUpdatingStepTest::tellsEachTickOncePerReset()
{
    const QVector<CScriptedUpdate *> jobs{new CScriptedUpdate, new CScriptedUpdate};
    for (CScriptedUpdate *const job : jobs)
        job->begin(1000)
            .beginStep(EStep::DeviceReset, 1000)
            .hold()
            .endStep(EStep::DeviceReset, 1000)
            .done();
    enter(jobs);

    const auto ticks = [this] { return m_fixture->getLog().filter("DeviceReset progress"); };
    QTRY_COMPARE(ticks().size(), 1);
    jobs.at(0)->release();
    waitForHold(1);
    const int first = ticks().size();
    QTRY_VERIFY(ticks().size() > first);
    finish(1);

    const QStringList second = ticks().mid(first);
    QCOMPARE(second.size() % 2, 0);
    for (int i = 0; i < second.size(); i += 2)
        QCOMPARE(second.at(i), second.at(i + 1));
}

void CFirmwareUpdatingStepTest::waitsForTheCameraOnExit()
{
    enter({EOutcome::Hold});
    waitForHold(0);
    // Events are processed while the exit waits, this one among them.
    QMetaObject::invokeMethod(
        m_step.get(), [this] { m_jobs.at(0)->release(); }, Qt::QueuedConnection);
    m_step->onExit(nullptr);
    QCOMPARE(column(7), QVector<int>({0}));
    QVERIFY(!m_dialog->isVisible());
}

void CFirmwareUpdatingStepTest::doesNothingBeforeAndAfter()
{
    const auto close = [this] {
        m_step->onUpdatesCanceled();
        QVERIFY(!m_dialog->isVisible());
    };
    close();
    // A reset begins after the last signal that a job may send.
    auto *const job = new CScriptedUpdate;
    job->begin(1000).error("Camera is on fire").beginStep(EStep::DeviceReset, 1000);
    enter(QVector<CScriptedUpdate *>{job});
    QTRY_COMPARE(m_endSpy->count(), 1);
    m_step->onExit(nullptr);
    m_fixture->service->closeTemporaryLogFile();
    close();

    // Started behind the reset's own timer, it is the later one to end.
    QTimer later;
    later.setTimerType(Qt::PreciseTimer);
    QSignalSpy ended(&later, &QTimer::timeout);
    later.start(250);
    QVERIFY(ended.wait());
    // A line would have begun a new log.
    QCOMPARE(m_fixture->service->getCurrentTemporaryLogFilePath(), "");
}

void CFirmwareUpdatingStepTest::survivesALostDialog()
{
    enter({EOutcome::Hold, EOutcome::Success});
    waitForHold(0);
    m_dialog.reset();
    finish();
    QCOMPARE(m_jobs.at(1)->getExecutionCount(), 0);
    const QStringList log = m_fixture->getLog();
    QVERIFY(log.contains("CRITICAL Internal error. Stopping firmware update of cameras"));
    QCOMPARE(log.last(), "INFO Finished all firmware updates");
}

void CFirmwareUpdatingStepTest::survivesAnEmptiedList()
{
    enter({EOutcome::Hold, EOutcome::Success});
    waitForHold(0);
    m_fixture->model->setCameraDeviceList({});
    finish();
    QVERIFY(m_fixture->getLog().contains(
        "CRITICAL Internal error: Firmware update is missing and could not be applied."));
}

bool CFirmwareUpdatingStepTest::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show)
        m_shownAt.append(QRect(m_dialog->pos(), m_dialog->size()));
    return QObject::eventFilter(watched, event);
}

void CFirmwareUpdatingStepTest::isFirstSeenWhereTheWizardWas()
{
    m_fixture->service->setDialogPos(QPoint(30, 20));
    m_fixture->service->setDialogSize(QSize(600, 560));
    m_dialog->installEventFilter(this);
    m_step->onEntry(nullptr);
    QCOMPARE(m_shownAt, {QRect(30, 20, 600, 560)});
}

QTEST_MAIN(CFirmwareUpdatingStepTest)
#include "tst_firmwareupdatingstep.moc"
