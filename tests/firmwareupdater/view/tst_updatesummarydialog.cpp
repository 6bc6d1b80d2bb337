#include "view/updatesummarydialog.h"
#include "viewfixture.h"

#include <QSignalSpy>
#include <QtTest>

using namespace ViewFixture;
using Plugin::FirmwareUpdater::Internal::View::CUpdateSummaryDialog;

class CUpdateSummaryDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void columnsFillTheTree();
    void warningsCloseTheirGap();
    void mapsButtonsByMeaning();
    void backNeverBecomesTheDefault();
    void showsRebuiltModels();
};

void CUpdateSummaryDialogTest::columnsFillTheTree()
{
    CUpdateSummaryDialog dialog;
    dialog.setModel(makeList(2));
    QCOMPARE(getColumnWidths(*getTree(dialog)), (QVector<int>{115, 142, 148, 105}));
    dialog.show();
    resizeTree(&dialog, 512);
    QCOMPARE(getColumnWidths(*getTree(dialog)), (QVector<int>{115, 142, 148, 107}));
    resizeTree(&dialog, 600);
    QCOMPARE(getColumnWidths(*getTree(dialog)), (QVector<int>{134, 166, 173, 127}));
}

void CUpdateSummaryDialogTest::warningsCloseTheirGap()
{
    CUpdateSummaryDialog dialog;
    dialog.setModel(makeList(2));
    dialog.updateDowngradeInfo(true);
    dialog.updateSidegradeInfo(true);
    dialog.show();
    const auto *tree = getTree(dialog);
    const auto *info = find<QWidget>(dialog, "infoIconLabel_1");
    const int fullHeight = tree->height();
    const int infoTop = info->y();

    dialog.updateDowngradeInfo(false);
    QVERIFY(!isShown(dialog, "warningIconLabel_1") && !isShown(dialog, "warningTextLabel_1"));
    QVERIFY(isShown(dialog, "warningIconLabel_2") && isShown(dialog, "warningTextLabel_2"));
    dialog.updateSidegradeInfo(false);
    QVERIFY(!isShown(dialog, "warningIconLabel_2") && !isShown(dialog, "warningTextLabel_2"));
    // Nothing of the warnings is left between the tree and the information rows.
    QTRY_VERIFY(tree->height() > fullHeight);
    QVERIFY(info->y() <= infoTop);
}

void CUpdateSummaryDialogTest::mapsButtonsByMeaning()
{
    CUpdateSummaryDialog dialog;
    dialog.show();
    QSignalSpy backSpy(&dialog, &CUpdateSummaryDialog::backClicked);
    QSignalSpy nextSpy(&dialog, &CUpdateSummaryDialog::nextClicked);
    QTest::mouseClick(getButton(dialog, QStringLiteral("Back")), Qt::LeftButton);
    QCOMPARE(backSpy.count(), 1);
    QCOMPARE(nextSpy.count(), 0);
    QTest::mouseClick(getButton(dialog, QStringLiteral("Next")), Qt::LeftButton);
    QCOMPARE(nextSpy.count(), 1);
    QCOMPARE(backSpy.count(), 1);
}

void CUpdateSummaryDialogTest::backNeverBecomesTheDefault()
{
    CUpdateSummaryDialog dialog;
    dialog.updateNextButton(false);
    dialog.show();
    QVERIFY(!getButton(dialog, QStringLiteral("Back"))->isDefault());
    QVERIFY(!getButton(dialog, QStringLiteral("Next"))->isDefault());
    dialog.updateNextButton(true);
    QVERIFY(getButton(dialog, QStringLiteral("Next"))->isDefault());
}

void CUpdateSummaryDialogTest::showsRebuiltModels()
{
    CUpdateSummaryDialog dialog;
    const ModelPtr model = makeList(1);
    dialog.setModel(model);
    const QTreeView *tree = getTree(dialog);
    QCOMPARE(tree->model(), model.data());
    QVERIFY(tree->viewport()->hasMouseTracking());
    const QAbstractItemDelegate *delegate = tree->itemDelegateForColumn(5);
    dialog.show();

    model->setCameraDeviceList({});
    dialog.setModel(model);
    QCOMPARE(tree->itemDelegateForColumn(5), delegate);
    QVERIFY(!tree->indexAt(QPoint(5, 5)).isValid());
}

QTEST_MAIN(CUpdateSummaryDialogTest)
#include "tst_updatesummarydialog.moc"
