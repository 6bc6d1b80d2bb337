#include "state/cameraselectionstep.h"
#include "state/updateselectionstep.h"
#include "support/updaterfixture.h"
#include "view/cameraselectiondialog.h"
#include "view/updateselectiondialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

using namespace Plugin::FirmwareUpdater::Internal;
using TestSupport::CUpdaterFixture;

class CSelectionStepsTest : public QObject
{
    Q_OBJECT

private slots:
    void followsTheTicks();
    void looksAtNamedRolesOnly_data();
    void looksAtNamedRolesOnly();
    void emptiesTheUpdateListOnEntry();

private:
    static QPushButton *getNextButton(const QDialog &dialog);
};

QPushButton *CSelectionStepsTest::getNextButton(const QDialog &dialog)
{
    const auto buttons = dialog.findChildren<QPushButton *>();
    for (QPushButton *const button : buttons) {
        if (button->text() == "Next")
            return button;
    }
    return nullptr;
}

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
    QPushButton *const next = getNextButton(dialog);
    QVERIFY(next && !next->isEnabled());

    const auto tick = [&fixture](bool on) {
        const QModelIndex index = fixture.model->getModelIndexForCameraId("l", "a", 0);
        fixture.model->setData(index, on, Qt::EditRole);
        fixture.model->updateAllNodesBySelection(index);
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

void CSelectionStepsTest::looksAtNamedRolesOnly_data()
{
    QTest::addColumn<QVector<int>>("roles");
    QTest::addColumn<bool>("updated");
    QTest::newRow("selection") << QVector<int>{2} << true;
    QTest::newRow("name") << QVector<int>{0, 8} << true;
    QTest::newRow("spread of a group") << QVector<int>{0, 8, 2} << true;
    QTest::newRow("status") << QVector<int>{6} << false;
    QTest::newRow("none, by which Qt means all") << QVector<int>{} << false;
}

void CSelectionStepsTest::looksAtNamedRolesOnly()
{
    QFETCH(QVector<int>, roles);
    QFETCH(bool, updated);

    CUpdaterFixture fixture;
    View::CCameraSelectionDialog dialog(nullptr);
    State::CCameraSelectionStep step(&fixture.host.initializer, &dialog, nullptr);
    step.setCameraSelectionModel(fixture.model);
    dialog.updateNextButton(true);

    step.slotDataChanged({}, {}, roles);
    QCOMPARE(getNextButton(dialog)->isEnabled(), !updated);
}

void CSelectionStepsTest::emptiesTheUpdateListOnEntry()
{
    CUpdaterFixture fixture;
    View::CUpdateSelectionDialog dialog(nullptr);
    State::CUpdateSelectionStep step(&fixture.host.initializer, &dialog, nullptr);
    step.setCameraUpdateModel(fixture.model);
    fixture.model->setCameraDeviceList({CUpdaterFixture::makeTickedCamera({"a"})});

    step.onEntry(nullptr);
    QCOMPARE(fixture.model->rowCount(), 0);
    QVERIFY(!fixture.model->hasSelectedCameras());
    QVERIFY(dialog.isVisible());
}

QTEST_MAIN(CSelectionStepsTest)
#include "tst_selectionsteps.moc"
