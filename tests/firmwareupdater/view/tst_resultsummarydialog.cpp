#include "view/resultsummarydialog.h"
#include "viewfixture.h"

#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

using namespace ViewFixture;
using Plugin::FirmwareUpdater::Internal::View::CResultSummaryDialog;
using Result = CFirmwareUpdateEntity::EFirmwareUpdateResult;

class CResultSummaryDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void columnsFillTheTree();
    void showsTextsForTheOutcome_data();
    void showsTextsForTheOutcome();
    void namesTheError_data();
    void namesTheError();
    void linksLogAndSupport();
    void nextAndCloseAreTold();
};

void CResultSummaryDialogTest::columnsFillTheTree()
{
    CResultSummaryDialog dialog;
    dialog.setModel(makeList(2));
    QCOMPARE(getColumnWidths(*getTree(dialog)), (QVector<int>{185, 152, 173}));
    dialog.show();
    resizeTree(&dialog, 512);
    QCOMPARE(getColumnWidths(*getTree(dialog)), (QVector<int>{185, 152, 175}));
    resizeTree(&dialog, 600);
    QCOMPARE(getColumnWidths(*getTree(dialog)), (QVector<int>{216, 178, 206}));
}

void CResultSummaryDialogTest::showsTextsForTheOutcome_data()
{
    QTest::addColumn<QVector<Result>>("results");
    QTest::addColumn<QString>("counts");
    QTest::addColumn<bool>("failure");
    QTest::newRow("all well") << QVector<Result>{Result::OK, Result::OK} << "2 0 0" << false;
    QTest::newRow("cancelled") << QVector<Result>{Result::OK, Result::Skipped} << "1 0 1" << false;
    QTest::newRow("failure in the middle")
        << QVector<Result>{Result::OK, Result::Failed, Result::Skipped} << "1 1 1" << true;
}

void CResultSummaryDialogTest::showsTextsForTheOutcome()
{
    QFETCH(QVector<Result>, results);
    QFETCH(QString, counts);
    QFETCH(bool, failure);
    CResultSummaryDialog dialog;
    const ModelPtr model = makeList(results.size());
    for (int row = 0; row < results.size(); ++row) {
        getEntity(model->index(row, 0))->setUpdateResult(results.at(row));
    }
    dialog.setModel(model);
    dialog.updateView();

    const QStringList numbers = counts.split(QLatin1Char(' '));
    QCOMPARE(find<QLabel>(dialog, "successfulUpdatesLabel")->text(),
             QStringLiteral("Successful updates: ") + numbers.at(0));
    QCOMPARE(find<QLabel>(dialog, "failedUpdatesLabel")->text(),
             QStringLiteral("Failed updates: ") + numbers.at(1));
    QCOMPARE(find<QLabel>(dialog, "skippedUpdatesLabel")->text(),
             QStringLiteral("Skipped updates: ") + numbers.at(2));
    QVERIFY(isShown(dialog, "successfulUpdatesLabel"));
    for (const char *name :
         {"infoIconLabel_1", "infoTextLabel_1", "infoIconLabel_2", "infoTextLabel_2"}) {
        QVERIFY2(isShown(dialog, name) != failure, name);
    }
    for (const char *name : {"errorIconLabel", "errorTextLabel", "infoIconLabel_3",
                             "infoTextLabel_3", "failedUpdatesLabel", "skippedUpdatesLabel"}) {
        QVERIFY2(isShown(dialog, name) == failure, name);
    }
}

void CResultSummaryDialogTest::namesTheError_data()
{
    QTest::addColumn<bool>("lastCamera");
    QTest::addColumn<QString>("text");
    QTest::newRow("last camera") << true
                                 << "An error has occurred during the update.<br>"
                                    "Error message: 3 &lt; 4.";
    QTest::newRow("others skipped") << false
                                    << "An error has occurred during the update. The subsequent "
                                       "updates have been skipped.<br>Error message: 3 &lt; 4.";
}

void CResultSummaryDialogTest::namesTheError()
{
    QFETCH(bool, lastCamera);
    CResultSummaryDialog dialog;
    dialog.setErrorTextData(QStringLiteral("3 < 4"), lastCamera);
    QTEST(find<QLabel>(dialog, "errorTextLabel")->text(), "text");
}

void CResultSummaryDialogTest::linksLogAndSupport()
{
    CResultSummaryDialog dialog;
    dialog.setInfoTextData(QStringLiteral("https://a.example/%1"), QStringLiteral("/tmp/%2.log"));
    QCOMPARE(find<QLabel>(dialog, "infoTextLabel_3")->text(),
             QStringLiteral("For more information, see the <a href=\"/tmp/%2.log\">log file</a>. "
                            "If you require assistance, contact the "
                            "<a href=\"https://a.example/%1\">Korvane Support</a>."));
    QCOMPARE(find<QLabel>(dialog, "infoTextLabel_2")->text(),
             QStringLiteral("See <a href=\"/tmp/%2.log\">log file</a> for more information."));
}

void CResultSummaryDialogTest::nextAndCloseAreTold()
{
    CResultSummaryDialog dialog;
    dialog.show();
    QSignalSpy nextSpy(&dialog, &CResultSummaryDialog::nextClicked);
    QSignalSpy closeSpy(&dialog, &CResultSummaryDialog::closeClicked);
    QTest::mouseClick(getButton(dialog, QStringLiteral("Next")), Qt::LeftButton);
    QCOMPARE(nextSpy.count(), 1);
    QTest::mouseClick(getButton(dialog, QStringLiteral("Close")), Qt::LeftButton);
    QCOMPARE(closeSpy.count(), 1);
    QCOMPARE(nextSpy.count(), 1);
}

QTEST_MAIN(CResultSummaryDialogTest)
#include "tst_resultsummarydialog.moc"
