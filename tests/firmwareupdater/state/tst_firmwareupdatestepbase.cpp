#include "state/firmwareupdatestepbase.h"
#include "support/updaterfixture.h"

#include <QtTest>

using Plugin::FirmwareUpdater::Internal::State::CFirmwareUpdateStepBase;

class CFirmwareUpdateStepBaseTest : public QObject
{
    Q_OBJECT

private slots:
    void handsPlaceAndSizeToTheNextPage();
    void comesBackMaximized();
    void staysSilentWithoutDialog();
};

void CFirmwareUpdateStepBaseTest::handsPlaceAndSizeToTheNextPage()
{
    TestSupport::CUpdaterFixture fixture;
    QDialog first;
    QDialog second;
    CFirmwareUpdateStepBase firstStep(&fixture.host.initializer, &first, nullptr);
    CFirmwareUpdateStepBase secondStep(&fixture.host.initializer, &second, nullptr);

    firstStep.onEntry(nullptr);
    first.move(40, 50);
    first.resize(400, 300);
    firstStep.onExit(nullptr);
    QVERIFY(!first.isVisible());
    QCOMPARE(fixture.service->getDialogSize(), QSize(400, 300));
    QCOMPARE(fixture.service->getDialogPos(), first.pos());

    secondStep.onEntry(nullptr);
    QVERIFY(second.isVisible());
    QCOMPARE(second.pos(), first.pos());
    QCOMPARE(second.size(), QSize(400, 300));
    QCOMPARE(second.windowState(), Qt::WindowStates(Qt::WindowNoState));
}

void CFirmwareUpdateStepBaseTest::comesBackMaximized()
{
    for (const Qt::WindowState state : {Qt::WindowMaximized, Qt::WindowFullScreen}) {
        TestSupport::CUpdaterFixture fixture;
        fixture.service->setDialogSize(QSize(400, 300));
        fixture.service->setDialogWindowState(state);
        QDialog dialog;
        CFirmwareUpdateStepBase step(&fixture.host.initializer, &dialog, nullptr);

        step.onEntry(nullptr);
        QCOMPARE(dialog.windowState(), Qt::WindowStates(Qt::WindowMaximized));
        step.onExit(nullptr);
        QCOMPARE(fixture.service->getDialogWindowState(), Qt::WindowStates(Qt::WindowMaximized));
    }
}

void CFirmwareUpdateStepBaseTest::staysSilentWithoutDialog()
{
    TestSupport::CUpdaterFixture fixture;
    auto dialog = std::make_unique<QDialog>();
    CFirmwareUpdateStepBase step(&fixture.host.initializer, dialog.get(), nullptr);
    step.onEntry(nullptr);
    dialog.reset();
    QVERIFY(!step.getDialog());
    step.onExit(nullptr);
    step.onEntry(nullptr);
    QVERIFY(!fixture.service->getDialogSize().isValid());
}

QTEST_MAIN(CFirmwareUpdateStepBaseTest)
#include "tst_firmwareupdatestepbase.moc"
