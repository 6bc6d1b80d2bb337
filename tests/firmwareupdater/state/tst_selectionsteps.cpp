#include "state/cameraselectionstep.h"
#include "support/updaterfixture.h"
#include "view/cameraselectiondialog.h"

#include <QtTest>

using namespace Plugin::FirmwareUpdater::Internal;
using TestSupport::CUpdaterFixture;

class CSelectionStepsTest : public QObject
{
    Q_OBJECT

private slots:
    void followsTheTicks();
    void looksAtNamedRolesOnly();
};

void CSelectionStepsTest::followsTheTicks()
{
    CUpdaterFixture fixture;
    View::CCameraSelectionDialog dialog(nullptr);
    dialog.setModel(fixture.model);
    State::CCameraSelectionStep step(&fixture.host.initializer, &dialog, nullptr);
    step.setCameraSelectionModel(fixture.model);
    const auto layers = QVector<Plugin::CameraPool::TransportLayerInfoPtr>{
        TestSupport::makeLayer("l", {{"a"}, {"b"}})};
    fixture.model->setTransportLayerInfoVector(layers);

    step.onEntry(nullptr);
    QPushButton *const next = TestSupport::getButton(dialog, "Next");
    QVERIFY(next && !next->isEnabled());

    const auto tick = [&fixture](bool on) {
        CUpdaterFixture::tick(*fixture.model, fixture.model->getModelIndexForCameraId("l", "a", 0),
                              on);
    };
    tick(true);
    QVERIFY(next->isEnabled());
    tick(false);
    QVERIFY(!next->isEnabled());

    // A rebuild takes the ticks away without announcing data.
    tick(true);
    fixture.model->setTransportLayerInfoVector(layers);
    QVERIFY(!next->isEnabled());
}

void CSelectionStepsTest::looksAtNamedRolesOnly()
{
    CUpdaterFixture fixture;
    View::CCameraSelectionDialog dialog(nullptr);
    State::CCameraSelectionStep step(&fixture.host.initializer, &dialog, nullptr);
    step.setCameraSelectionModel(fixture.model);
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

QTEST_MAIN(CSelectionStepsTest)
#include "tst_selectionsteps.moc"
