#include "view/cameraselectiondialog.h"
#include "viewfixture.h"

#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QtTest>

using namespace ViewFixture;
using Plugin::FirmwareUpdater::Internal::View::CCameraSelectionDialog;

/// The first dialog, and with it what all dialogs have from their base.
class CCameraSelectionDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void staysOpenWhenTheUserLeaves_data();
    void staysOpenWhenTheUserLeaves();
    void tellsWhichButtonWasClicked();
    void enterDoesNothingWhileNextIsUnavailable();
    void nextFollowsItsStateAcrossShows();
    void onlyTheCameraColumnFillsTheTree();
    void secondModelCallExpandsAndSortsAgain();
    void keepsTextsDarkUnderADarkPalette();
};

void CCameraSelectionDialogTest::staysOpenWhenTheUserLeaves_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("Escape") << "escape";
    QTest::newRow("Escape while a row's editor is open") << "escape in editor";
    QTest::newRow("title bar") << "close";
    QTest::newRow("Close button") << "button";
}

void CCameraSelectionDialogTest::staysOpenWhenTheUserLeaves()
{
    QFETCH(QString, way);
    CCameraSelectionDialog dialog;
    dialog.setModel(makeTree());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QSignalSpy closeSpy(&dialog, &CCameraSelectionDialog::closeClicked);

    if (way == QLatin1String("close")) {
        QVERIFY(!dialog.close());
    } else if (way == QLatin1String("button")) {
        QTest::mouseClick(getButton(dialog, QStringLiteral("Close")), Qt::LeftButton);
    } else {
        QTreeView *tree = getTree(dialog);
        if (way == QLatin1String("escape in editor")) {
            const QModelIndex layer = tree->model()->index(0, 0);
            tree->edit(tree->model()->index(0, 0, layer));
            QVERIFY(tree->hasFocus());
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    }
    QCOMPARE(closeSpy.count(), 1);
    QVERIFY(dialog.isVisible());
}

void CCameraSelectionDialogTest::tellsWhichButtonWasClicked()
{
    CCameraSelectionDialog dialog;
    dialog.show();
    QSignalSpy nextSpy(&dialog, &CCameraSelectionDialog::nextClicked);
    QSignalSpy closeSpy(&dialog, &CCameraSelectionDialog::closeClicked);
    QSignalSpy refreshSpy(&dialog, &CCameraSelectionDialog::refreshCamTreeClicked);

    QTest::mouseClick(getButton(dialog, QStringLiteral("Next")), Qt::LeftButton);
    QCOMPARE(nextSpy.count(), 1);
    QCOMPARE(closeSpy.count(), 0);
    QTest::mouseClick(find<QPushButton>(dialog, "refreshButton"), Qt::LeftButton);
    QCOMPARE(refreshSpy.count(), 1);
    QCOMPARE(nextSpy.count(), 1);
}

void CCameraSelectionDialogTest::enterDoesNothingWhileNextIsUnavailable()
{
    CCameraSelectionDialog dialog;
    dialog.updateNextButton(false);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QSignalSpy nextSpy(&dialog, &CCameraSelectionDialog::nextClicked);
    QSignalSpy closeSpy(&dialog, &CCameraSelectionDialog::closeClicked);
    getTree(dialog)->setFocus();

    QTest::keyClick(getTree(dialog), Qt::Key_Return);
    QCOMPARE(nextSpy.count() + closeSpy.count(), 0);

    dialog.updateNextButton(true);
    QTest::keyClick(getTree(dialog), Qt::Key_Return);
    QCOMPARE(nextSpy.count(), 1);
    QCOMPARE(closeSpy.count(), 0);
}

void CCameraSelectionDialogTest::nextFollowsItsStateAcrossShows()
{
    CCameraSelectionDialog dialog;
    const QPushButton *next = getButton(dialog, QStringLiteral("Next"));
    for (const bool available : {false, true, false}) {
        dialog.updateNextButton(available);
        dialog.show();
        QCOMPARE(next->isEnabled(), available);
        QCOMPARE(next->isDefault(), available);
        dialog.hide();
    }
}

void CCameraSelectionDialogTest::onlyTheCameraColumnFillsTheTree()
{
    CCameraSelectionDialog dialog;
    dialog.setModel(makeTree());
    dialog.show();
    for (const int width : {512, 600}) {
        resizeTree(&dialog, width);
        QCOMPARE(getColumnWidths(*getTree(dialog)), QVector<int>{width});
    }
}

void CCameraSelectionDialogTest::secondModelCallExpandsAndSortsAgain()
{
    CCameraSelectionDialog dialog;
    const ModelPtr model = makeTree();
    dialog.setModel(model);
    QTreeView *tree = getTree(dialog);
    const QAbstractItemModel *proxy = tree->model();
    const QAbstractItemDelegate *delegate = tree->itemDelegateForColumn(0);
    QVERIFY(qobject_cast<const QSortFilterProxyModel *>(proxy));

    tree->sortByColumn(0, Qt::DescendingOrder);
    tree->collapseAll();
    dialog.setModel(model);

    QCOMPARE(tree->model(), proxy);
    QCOMPARE(tree->itemDelegateForColumn(0), delegate);
    QCOMPARE(dialog.getModel(), model);
    const QModelIndex layer = proxy->index(0, 0);
    QVERIFY(tree->isExpanded(layer));
    QCOMPARE(proxy->index(0, 0, layer).data().toString(), QStringLiteral("A"));
    QCOMPARE(proxy->index(0, 0, proxy->index(0, 0, layer)).data().toString(),
             QStringLiteral("Camera a1"));
}

void CCameraSelectionDialogTest::keepsTextsDarkUnderADarkPalette()
{
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(53, 53, 53), QColor(45, 45, 45)));
    {
        CCameraSelectionDialog dialog;
        dialog.setModel(makeTree());
        dialog.show();
        const QImage image = getTree(dialog)->grab().toImage();
        int dark = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width() / 2; ++x) {
                dark += qGray(image.pixel(x, y)) < 128 ? 1 : 0;
            }
        }
        QVERIFY(dark > 0);
        QVERIFY2(dark < image.width() * image.height() / 20, "dark areas in a white dialog");
    }
    QApplication::setPalette(before);
}

QTEST_MAIN(CCameraSelectionDialogTest)
#include "tst_cameraselectiondialog.moc"
