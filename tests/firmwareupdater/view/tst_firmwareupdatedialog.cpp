#include "view/firmwareupdatedialog.h"
#include "viewfixture.h"

#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>
#include <QtTest>

using namespace ViewFixture;
using Plugin::FirmwareUpdater::Internal::View::CFirmwareUpdateDialog;

class CFirmwareUpdateDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void columnsFillTheTree();
    void showsProgress();
    void cancelOnlyTellsThatItWasClicked();
    void withoutButtonsTheDialogCannotBeClosed();
};

void CFirmwareUpdateDialogTest::columnsFillTheTree()
{
    CFirmwareUpdateDialog dialog;
    dialog.setModel(makeList(2));
    QCOMPARE(getColumnWidths(*getTree(dialog)), (QVector<int>{94, 142, 148, 126}));
    dialog.show();
    resizeTree(&dialog, 512);
    QCOMPARE(getColumnWidths(*getTree(dialog)), (QVector<int>{94, 142, 148, 128}));
    resizeTree(&dialog, 600);
    QCOMPARE(getColumnWidths(*getTree(dialog)), (QVector<int>{110, 166, 173, 151}));
}

void CFirmwareUpdateDialogTest::showsProgress()
{
    CFirmwareUpdateDialog dialog;
    dialog.updateOverallProgress(3, 7);
    QCOMPARE(find<QLabel>(dialog, "progressIndicatorLabel")->text(), QStringLiteral("3/7"));
    const auto *bar = find<QProgressBar>(dialog, "progressBar");
    dialog.updateProgress(0, 0);
    QCOMPARE(bar->maximum(), 0);
    dialog.updateProgress(250, 1000);
    QCOMPARE(bar->minimum(), 0);
    QCOMPARE(bar->maximum(), 1000);
    QCOMPARE(bar->value(), 250);
}

void CFirmwareUpdateDialogTest::cancelOnlyTellsThatItWasClicked()
{
    CFirmwareUpdateDialog dialog;
    dialog.enableButtons(true);
    QVERIFY(dialog.isVisible());
    QSignalSpy closeSpy(&dialog, &CFirmwareUpdateDialog::closeClicked);
    QTest::mouseClick(getButton(dialog, QStringLiteral("Cancel")), Qt::LeftButton);
    QCOMPARE(closeSpy.count(), 1);
    QVERIFY(dialog.isVisible());
}

void CFirmwareUpdateDialogTest::withoutButtonsTheDialogCannotBeClosed()
{
    CFirmwareUpdateDialog dialog;
    dialog.enableButtons(true);
    QVERIFY(dialog.windowFlags() & Qt::WindowCloseButtonHint);
    const QPushButton *cancel = getButton(dialog, QStringLiteral("Cancel"));
    QVERIFY(cancel->isEnabled() && cancel->isDefault());

    dialog.enableButtons(false);
    QVERIFY(dialog.isVisible());
    QVERIFY(!(dialog.windowFlags() & Qt::WindowCloseButtonHint));
    QVERIFY(!cancel->isEnabled() && !cancel->isDefault());
    QSignalSpy closeSpy(&dialog, &CFirmwareUpdateDialog::closeClicked);
    QVERIFY(!dialog.close());
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(closeSpy.count(), 2);
    QVERIFY(dialog.isVisible());
}

QTEST_MAIN(CFirmwareUpdateDialogTest)
#include "tst_firmwareupdatedialog.moc"
