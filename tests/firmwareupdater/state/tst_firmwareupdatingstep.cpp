#include "state/firmwareupdatingstep.h"
#include "support/updaterfixture.h"
#include "view/firmwareupdatedialog.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QtTest>

using namespace Plugin::FirmwareUpdater::Internal;
using Plugin::CameraPool::EFirmwareUpdateStep;
using TestSupport::CScriptedUpdate;
using TestSupport::CUpdaterFixture;

namespace {

const QString refusal = "The series of updates was stopped before this camera";

/// What a job with one step writes into the log.
QStringList jobLines()
{
    return {"INFO Update infos:",
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
            "INFO Update remaining time approximately 80 msec"};
}

QString startingLine(int number, int count, char id)
{
    return QString("INFO Starting firmware update (%1/%2) for camera Camera %3")
        .arg(number)
        .arg(count)
        .arg(QLatin1Char(id));
}

QString finishedLine(int number, int count)
{
    return QString("INFO Finished firmware update (%1/%2)").arg(number).arg(count);
}

} // namespace

class CFirmwareUpdatingStepTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void updatesOneCameraAfterAnother();
    void stopsAtTheFirstFailure_data();
    void stopsAtTheFirstFailure();
    void stopsAtAMissingJob();
    void endsAtOnceWithoutCameras();
    void stopsAfterTheCurrentCameraOnCancel();
    void succeedsWhenCanceledDuringTheLastCamera();
    void drivesTheProgressBarByEstimates();
    void animatesTheReset();
    void tellsEachTickOncePerReset();
    void waitsForTheCameraOnExit();
    void survivesALostDialog();
    void survivesAnEmptiedList();
    void isFirstSeenWhereTheWizardWas();

private:
    bool eventFilter(QObject *watched, QEvent *event) override;

    enum class EOutcome { Success, Failure, Hold };

    /// Fills the model with cameras 'a', 'b', ... whose jobs end as given.
    void makeCameras(const QVector<EOutcome> &outcomes);
    void enter();
    void waitForEnd();
    [[nodiscard]] QVector<int> column(int column) const;
    [[nodiscard]] int barValue() const;
    [[nodiscard]] QString counter() const;

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
    if (m_step)
        m_step->onExit(nullptr);
    m_step.reset();
    m_dialog.reset();
    m_jobs.clear();
    m_fixture.reset();
}

void CFirmwareUpdatingStepTest::makeCameras(const QVector<EOutcome> &outcomes)
{
    m_jobs.clear();
    QList<CUpdaterFixture::Entity *> cameras;
    for (int i = 0; i < outcomes.size(); ++i) {
        auto *const job = new CScriptedUpdate;
        job->begin(80)
            .beginStep(EFirmwareUpdateStep::FileUpload, 80, "the image")
            .progress(EFirmwareUpdateStep::FileUpload, 50);
        if (outcomes.at(i) == EOutcome::Hold)
            job->hold();
        if (outcomes.at(i) == EOutcome::Failure)
            job->error("Camera is on fire");
        else
            job->endStep(EFirmwareUpdateStep::FileUpload, 80).done();
        m_jobs.append(job);
        cameras.append(
            CUpdaterFixture::makeTickedCamera({QString(QLatin1Char(char('a' + i)))}, job));
    }
    m_fixture->model->setCameraDeviceList(cameras);
}

void CFirmwareUpdatingStepTest::enter()
{
    m_step->onEntry(nullptr);
}

void CFirmwareUpdatingStepTest::waitForEnd()
{
    QTRY_COMPARE(m_endSpy->count(), 1);
}

QVector<int> CFirmwareUpdatingStepTest::column(int column) const
{
    QVector<int> values;
    for (int row = 0; row < m_fixture->model->rowCount(); ++row)
        values.append(m_fixture->model->index(row, column).data().toInt());
    return values;
}

int CFirmwareUpdatingStepTest::barValue() const
{
    return m_dialog->findChild<QProgressBar *>("progressBar")->value();
}

QString CFirmwareUpdatingStepTest::counter() const
{
    return m_dialog->findChild<QLabel *>("progressIndicatorLabel")->text();
}

void CFirmwareUpdatingStepTest::updatesOneCameraAfterAnother()
{
    makeCameras({EOutcome::Success, EOutcome::Hold, EOutcome::Success});
    enter();
    QVERIFY(m_dialog->isVisible());
    QTRY_VERIFY(m_jobs.at(1)->isHeld());
    QTRY_VERIFY(m_fixture->getLog().last().contains("progress"));
    QCOMPARE(counter(), "2/3");
    QCOMPARE(column(6), QVector<int>({2, 1, 0}));
    QCOMPARE(column(7), QVector<int>({0, 2, 2}));
    QCOMPARE(m_jobs.at(2)->getExecutionCount(), 0);
    m_jobs.at(1)->release();
    waitForEnd();

    const QStringList expected = QStringList{startingLine(1, 3, 'a')} + jobLines()
        + QStringList{finishedLine(1, 3), startingLine(2, 3, 'b')} + jobLines()
        + QStringList{finishedLine(2, 3), startingLine(3, 3, 'c')} + jobLines()
        + QStringList{finishedLine(3, 3), "INFO Finished all firmware updates"};
    QCOMPARE(m_fixture->getLog(), expected);
    QCOMPARE(column(6), QVector<int>({2, 2, 2}));
    QCOMPARE(column(7), QVector<int>({0, 0, 0}));
    QCOMPARE(counter(), "3/3");
    QCOMPARE(m_fixture->service->getUpdateFailureMessage(), "");
}

void CFirmwareUpdatingStepTest::stopsAtTheFirstFailure_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("failing"); // number of the failing camera, from 1
    QTest::addColumn<bool>("warned");
    QTest::newRow("first of three") << 3 << 1 << true;
    // An odd rule of old: nothing is said when exactly one camera is left out.
    QTest::newRow("middle of three") << 3 << 2 << false;
    QTest::newRow("last of three") << 3 << 3 << true;
    QTest::newRow("first of two") << 2 << 1 << false;
    QTest::newRow("the only one") << 1 << 1 << true;
}

void CFirmwareUpdatingStepTest::stopsAtTheFirstFailure()
{
    QFETCH(int, count);
    QFETCH(int, failing);
    QFETCH(bool, warned);

    QVector<EOutcome> outcomes(count, EOutcome::Success);
    outcomes[failing - 1] = EOutcome::Failure;
    makeCameras(outcomes);
    enter();
    waitForEnd();

    const QStringList log = m_fixture->getLog();
    QStringList expectedEnd
        = {"INFO FileUpload progress: 50%", "CRITICAL Camera is on fire",
           QString("CRITICAL Firmware update (%1/%2) failed.").arg(failing).arg(count)};
    if (warned)
        expectedEnd.append("WARNING Further firmware updates will be skipped");
    expectedEnd.append("INFO Finished all firmware updates");
    QCOMPARE(log.mid(log.size() - expectedEnd.size()), expectedEnd);
    QCOMPARE(log.filter("Starting firmware update").size(), failing);

    for (int i = 0; i < count; ++i) {
        const bool ran = i < failing;
        QCOMPARE(m_jobs.at(i)->getExecutionCount(), ran ? 1 : 0);
        QCOMPARE(column(6).at(i), ran ? 2 : 0);
        QCOMPARE(column(7).at(i), !ran ? 2 : i == failing - 1 ? 1 : 0);
    }
    QCOMPARE(m_fixture->service->getUpdateFailureMessage(), "Camera is on fire");
}

void CFirmwareUpdatingStepTest::stopsAtAMissingJob()
{
    constexpr int missing = 1;
    makeCameras({EOutcome::Success, EOutcome::Success, EOutcome::Success});
    const QModelIndex index = m_fixture->model->index(missing, 0);
    static_cast<CUpdaterFixture::Entity *>(index.internalPointer())->setDeviceFirmwareUpdate({});
    enter();
    waitForEnd();

    const QString message = "Internal error: Firmware update is missing and could not be applied.";
    const QStringList log = m_fixture->getLog();
    QVERIFY(log.contains("CRITICAL " + message));
    QVERIFY(log.contains(QString("CRITICAL Firmware update (%1/3) failed.").arg(missing + 1)));
    QVERIFY(!log.contains("INFO Finished all firmware updates"));
    QCOMPARE(column(7).at(missing), 1);
    QCOMPARE(column(7).at(2), 2);
    QCOMPARE(m_fixture->service->getUpdateFailureMessage(), message);
}

void CFirmwareUpdatingStepTest::endsAtOnceWithoutCameras()
{
    enter();
    QCOMPARE(m_endSpy->count(), 1);
    QCOMPARE(m_fixture->getLog(), QStringList({"INFO Finished all firmware updates"}));
    QCOMPARE(counter(), "1/0");
}

void CFirmwareUpdatingStepTest::stopsAfterTheCurrentCameraOnCancel()
{
    makeCameras({EOutcome::Hold, EOutcome::Success, EOutcome::Success});
    enter();
    QTRY_VERIFY(m_jobs.at(0)->isHeld());
    auto *const cancel = m_dialog->findChild<QPushButton *>();
    QVERIFY(cancel);
    connect(m_dialog.get(), &View::CFirmwareUpdateDialog::closeClicked, m_step.get(),
            &State::CFirmwareUpdatingStep::onUpdatesCanceled);
    QTest::mouseClick(cancel, Qt::LeftButton);
    QVERIFY(!cancel->isEnabled());
    QVERIFY(m_dialog->isVisible());
    m_step->onUpdatesCanceled();
    QCOMPARE(m_endSpy->count(), 0);
    m_jobs.at(0)->release();
    waitForEnd();

    // The finished job is handed to the thread once more; its refusal ends the series.
    QCOMPARE(m_jobs.at(0)->getExecutionCount(), 2);
    QCOMPARE(m_jobs.at(1)->getExecutionCount(), 0);
    QCOMPARE(column(7), QVector<int>({0, 1, 2}));
    const QStringList log = m_fixture->getLog();
    QCOMPARE(log.filter("User canceled firmware update"),
             QStringList({"WARNING User canceled firmware update"}));
    const QStringList expectedEnd
        = {finishedLine(1, 3), "INFO Firmware updates have been canceled by the user",
           "CRITICAL " + refusal, "CRITICAL Firmware update (2/3) failed.",
           "INFO Finished all firmware updates"};
    QCOMPARE(log.mid(log.size() - expectedEnd.size()), expectedEnd);
    QCOMPARE(m_fixture->service->getUpdateFailureMessage(), refusal);
}

void CFirmwareUpdatingStepTest::succeedsWhenCanceledDuringTheLastCamera()
{
    makeCameras({EOutcome::Hold});
    enter();
    QTRY_VERIFY(m_jobs.at(0)->isHeld());
    m_step->onUpdatesCanceled();
    m_jobs.at(0)->release();
    waitForEnd();
    QCOMPARE(column(7), QVector<int>({0}));
    QCOMPARE(m_jobs.at(0)->getExecutionCount(), 1);
    QCOMPARE(m_fixture->service->getUpdateFailureMessage(), "");
}

void CFirmwareUpdatingStepTest::drivesTheProgressBarByEstimates()
{
    auto *const job = new CScriptedUpdate;
    job->hold()
        .begin(1000)
        .beginStep(EFirmwareUpdateStep::AcquireUpdateData, 400)
        .endStep(EFirmwareUpdateStep::AcquireUpdateData, 400)
        .beginStep(EFirmwareUpdateStep::FileUpload, 600)
        .progress(EFirmwareUpdateStep::FileUpload, 25)
        .hold()
        .done();
    m_fixture->model->setCameraDeviceList({CUpdaterFixture::makeTickedCamera({"a"}, job)});
    enter();
    const auto *const bar = m_dialog->findChild<QProgressBar *>("progressBar");
    // Busy while the first camera prepares.
    QTRY_VERIFY(job->isHeld());
    QCOMPARE(bar->maximum(), 0);
    QCOMPARE(bar->minimum(), 0);

    job->release();
    QTRY_COMPARE(bar->value(), 550);
    QCOMPARE(bar->maximum(), 1000);

    job->release();
    waitForEnd();
    // Between cameras the bar shows cameras.
    QCOMPARE(bar->maximum(), 1);
    QCOMPARE(bar->value(), 1);
}

void CFirmwareUpdatingStepTest::animatesTheReset()
{
    auto *const job = new CScriptedUpdate;
    job->begin(4000)
        .beginStep(EFirmwareUpdateStep::FileUpload, 1000)
        .endStep(EFirmwareUpdateStep::FileUpload, 1000)
        .beginStep(EFirmwareUpdateStep::DeviceReset, 3000)
        .hold()
        .endStep(EFirmwareUpdateStep::DeviceReset, 3000)
        .done();
    m_fixture->model->setCameraDeviceList({CUpdaterFixture::makeTickedCamera({"a"}, job)});
    enter();

    const QRegularExpression format("^INFO DeviceReset progress: (\\d+)%$");
    QTRY_VERIFY(!m_fixture->getLog().filter(format).isEmpty());
    const int percent = format.match(m_fixture->getLog().filter(format).last()).captured(1).toInt();
    QVERIFY(percent >= 8);
    QCOMPARE(barValue(), 1000 + percent * 30);

    job->release();
    waitForEnd();
    const int ticks = m_fixture->getLog().filter(format).size();
    // The timer stands still after the reset: whatever it had posted has been delivered.
    QCoreApplication::processEvents();
    QCOMPARE(m_fixture->getLog().filter(format).size(), ticks);
}

void CFirmwareUpdatingStepTest::tellsEachTickOncePerReset()
{
    QVector<CScriptedUpdate *> jobs;
    QList<CUpdaterFixture::Entity *> cameras;
    for (const char *const id : {"a", "b"}) {
        auto *const job = new CScriptedUpdate;
        job->begin(1000)
            .beginStep(EFirmwareUpdateStep::DeviceReset, 1000)
            .hold()
            .endStep(EFirmwareUpdateStep::DeviceReset, 1000)
            .done();
        jobs.append(job);
        cameras.append(CUpdaterFixture::makeTickedCamera({id}, job));
    }
    m_fixture->model->setCameraDeviceList(cameras);
    enter();

    const auto ticks = [this] { return m_fixture->getLog().filter("DeviceReset progress"); };
    QTRY_COMPARE(ticks().size(), 1);
    jobs.at(0)->release();
    QTRY_VERIFY(jobs.at(1)->isHeld());
    const int first = ticks().size();
    QTRY_VERIFY(ticks().size() > first);
    jobs.at(1)->release();
    waitForEnd();

    const QStringList second = ticks().mid(first);
    QCOMPARE(second.size() % 2, 0);
    for (int i = 0; i < second.size(); i += 2)
        QCOMPARE(second.at(i), second.at(i + 1));
}

void CFirmwareUpdatingStepTest::waitsForTheCameraOnExit()
{
    makeCameras({EOutcome::Hold});
    enter();
    QTRY_VERIFY(m_jobs.at(0)->isHeld());
    // Events are processed while the exit waits, this one among them.
    QMetaObject::invokeMethod(
        m_step.get(), [this] { m_jobs.at(0)->release(); }, Qt::QueuedConnection);
    m_step->onExit(nullptr);
    QCOMPARE(column(7), QVector<int>({0}));
    QVERIFY(!m_dialog->isVisible());
}

void CFirmwareUpdatingStepTest::survivesALostDialog()
{
    makeCameras({EOutcome::Hold, EOutcome::Success});
    enter();
    QTRY_VERIFY(m_jobs.at(0)->isHeld());
    m_dialog.reset();
    m_jobs.at(0)->release();
    waitForEnd();
    const QStringList log = m_fixture->getLog();
    QVERIFY(log.contains("CRITICAL Internal error. Stopping firmware update of cameras"));
    QCOMPARE(m_jobs.at(1)->getExecutionCount(), 0);
    QCOMPARE(log.last(), "INFO Finished all firmware updates");
}

void CFirmwareUpdatingStepTest::survivesAnEmptiedList()
{
    makeCameras({EOutcome::Hold, EOutcome::Success});
    enter();
    QTRY_VERIFY(m_jobs.at(0)->isHeld());
    m_fixture->model->setCameraDeviceList({});
    m_jobs.at(0)->release();
    waitForEnd();
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
    enter();
    QCOMPARE(m_shownAt, {QRect(30, 20, 600, 560)});
}

QTEST_MAIN(CFirmwareUpdatingStepTest)
#include "tst_firmwareupdatingstep.moc"
