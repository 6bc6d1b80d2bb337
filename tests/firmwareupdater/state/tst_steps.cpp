#include "state/cameraselectionstep.h"
#include "state/resultsummarystep.h"
#include "support/updaterfixture.h"
#include "view/cameraselectiondialog.h"
#include "view/resultsummarydialog.h"

#include <QtTest>

using namespace Plugin::FirmwareUpdater::Internal;
using State::CFirmwareUpdateStepBase;
using TestSupport::CUpdaterFixture;

/// What all steps have in common, and the first and the last one.
class CStepsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture = std::make_unique<CUpdaterFixture>(); }
    void cleanup() { m_fixture.reset(); }
    void handsPlaceAndSizeToTheNextPage();
    void comesBackMaximized();
    void staysSilentWithoutDialog();
    void selectionFollowsTheTicks();
    void selectionLooksAtNamedRolesOnly();
    void resultShowsHowItEnded();
    void resultEmptiesTheListOnExit();

private:
    std::unique_ptr<CUpdaterFixture> m_fixture;
};

void CStepsTest::handsPlaceAndSizeToTheNextPage()
{
    QDialog first;
    QDialog second;
    CFirmwareUpdateStepBase firstStep(&m_fixture->host.initializer, &first, nullptr);
    CFirmwareUpdateStepBase secondStep(&m_fixture->host.initializer, &second, nullptr);

    firstStep.onEntry(nullptr);
    first.move(40, 50);
    first.resize(400, 300);
    firstStep.onExit(nullptr);
    QVERIFY(!first.isVisible());
    QCOMPARE(m_fixture->service->getDialogSize(), QSize(400, 300));
    QCOMPARE(m_fixture->service->getDialogPos(), first.pos());

    secondStep.onEntry(nullptr);
    QVERIFY(second.isVisible());
    QCOMPARE(second.pos(), first.pos());
    QCOMPARE(second.size(), QSize(400, 300));
    QCOMPARE(second.windowState(), Qt::WindowStates(Qt::WindowNoState));
}

void CStepsTest::comesBackMaximized()
{
    for (const Qt::WindowState state : {Qt::WindowMaximized, Qt::WindowFullScreen}) {
        m_fixture->service->setDialogSize(QSize(400, 300));
        m_fixture->service->setDialogWindowState(state);
        QDialog dialog;
        CFirmwareUpdateStepBase step(&m_fixture->host.initializer, &dialog, nullptr);

        step.onEntry(nullptr);
        QCOMPARE(dialog.windowState(), Qt::WindowStates(Qt::WindowMaximized));
        step.onExit(nullptr);
        QCOMPARE(m_fixture->service->getDialogWindowState(), Qt::WindowStates(Qt::WindowMaximized));
    }
}

void CStepsTest::staysSilentWithoutDialog()
{
    auto dialog = std::make_unique<QDialog>();
    CFirmwareUpdateStepBase step(&m_fixture->host.initializer, dialog.get(), nullptr);
    step.onEntry(nullptr);
    dialog.reset();
    QVERIFY(!step.getDialog());
    step.onExit(nullptr);
    step.onEntry(nullptr);
    QVERIFY(!m_fixture->service->getDialogSize().isValid());
}

void CStepsTest::selectionFollowsTheTicks()
{
    View::CCameraSelectionDialog dialog(nullptr);
    dialog.setModel(m_fixture->model);
    State::CCameraSelectionStep step(&m_fixture->host.initializer, &dialog, nullptr);
    step.setCameraSelectionModel(m_fixture->model);
    const auto layers = QVector<Plugin::CameraPool::TransportLayerInfoPtr>{
        TestSupport::makeLayer("l", {{"a"}, {"b"}})};
    m_fixture->model->setTransportLayerInfoVector(layers);

    step.onEntry(nullptr);
    QPushButton *const next = TestSupport::getButton(dialog, "Next");
    QVERIFY(next && !next->isEnabled());

    const auto tick = [this](bool on) {
        CUpdaterFixture::tick(*m_fixture->model,
                              m_fixture->model->getModelIndexForCameraId("l", "a", 0), on);
    };
    tick(true);
    QVERIFY(next->isEnabled());
    tick(false);
    QVERIFY(!next->isEnabled());

    // A rebuild takes the ticks away without announcing data.
    tick(true);
    m_fixture->model->setTransportLayerInfoVector(layers);
    QVERIFY(!next->isEnabled());
}

void CStepsTest::selectionLooksAtNamedRolesOnly()
{
    View::CCameraSelectionDialog dialog(nullptr);
    State::CCameraSelectionStep step(&m_fixture->host.initializer, &dialog, nullptr);
    step.setCameraSelectionModel(m_fixture->model);
    const auto isUpdated = [&](const QVector<int> &roles) {
        dialog.updateNextButton(true);
        step.slotDataChanged({}, {}, roles);
        return !TestSupport::getButton(dialog, "Next")->isEnabled();
    };
    QVERIFY(isUpdated({2}));
    QVERIFY(isUpdated({0, 8}));
    QVERIFY(isUpdated({0, 8, 2}));
    QVERIFY(!isUpdated({6}));
    // None, by which Qt means all.
    QVERIFY(!isUpdated({}));
}

void CStepsTest::resultShowsHowItEnded()
{
    auto dialog = std::make_unique<View::CResultSummaryDialog>(nullptr);
    dialog->setModel(m_fixture->model);
    State::CResultSummaryStep step(&m_fixture->host.initializer, dialog.get(), nullptr);
    step.setCameraUpdateModel(m_fixture->model);
    m_fixture->service->openTemporaryLogFile();
    m_fixture->service->setUpdateFailureMessage("Camera is on fire");
    const auto show = [&](const QVector<int> &results) {
        QList<CUpdaterFixture::Entity *> cameras;
        for (const int result : results) {
            cameras.append(CUpdaterFixture::makeTickedCamera({QString::number(cameras.size())}));
            cameras.last()->setUpdateResult(CUpdaterFixture::Entity::EFirmwareUpdateResult(result));
        }
        m_fixture->model->setCameraDeviceList(cameras);
        step.onEntry(nullptr);
        const auto *const error = TestSupport::find<QLabel>(*dialog, "errorTextLabel");
        return error->isVisible() ? error->text() : "";
    };
    QCOMPARE(show({0, 0}), "");
    QCOMPARE(show({0, 2}), "");
    QCOMPARE(show({0, 1}),
             "An error has occurred during the update.<br>Error message: Camera is on fire.");
    QCOMPARE(show({0, 1, 2}),
             "An error has occurred during the update. The subsequent updates have been "
             "skipped.<br>Error message: Camera is on fire.");

    const QString logLink
        = "<a href=\"" + m_fixture->service->getCurrentTemporaryLogFilePath() + "\">log file</a>";
    QVERIFY(TestSupport::getText(*dialog, "infoTextLabel_2").contains(logLink));
    const QString support = TestSupport::getText(*dialog, "infoTextLabel_3");
    QVERIFY(support.contains(logLink));
    QVERIFY(support.contains("\"https://support.korvane.example/en/\">Korvane Support</a>"));
}

void CStepsTest::resultEmptiesTheListOnExit()
{
    auto dialog = std::make_unique<View::CResultSummaryDialog>(nullptr);
    dialog->setModel(m_fixture->model);
    State::CResultSummaryStep step(&m_fixture->host.initializer, dialog.get(), nullptr);
    step.setCameraUpdateModel(m_fixture->model);
    for (const bool hasDialog : {true, false}) {
        m_fixture->model->setCameraDeviceList({CUpdaterFixture::makeTickedCamera({"a"})});
        step.onEntry(nullptr);
        QCOMPARE(m_fixture->model->rowCount(), 1);
        step.onExit(nullptr);
        QCOMPARE(m_fixture->model->rowCount(), 0);
        QVERIFY(!hasDialog || !dialog->isVisible());
        dialog.reset();
    }
}

QTEST_MAIN(CStepsTest)
#include "tst_steps.moc"
