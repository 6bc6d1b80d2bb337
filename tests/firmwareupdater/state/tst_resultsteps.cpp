#include "state/firmwareupdatedonestep.h"
#include "state/resultsummarystep.h"
#include "support/updaterfixture.h"
#include "view/resultsummarydialog.h"

#include <QFile>
#include <QLabel>
#include <QStateMachine>
#include <QtTest>

using namespace Plugin::FirmwareUpdater::Internal;
using TestSupport::CUpdaterFixture;
using Result = CUpdaterFixture::Entity::EFirmwareUpdateResult;

class CResultStepsTest : public QObject
{
    Q_OBJECT

private slots:
    void showsHowItEnded_data();
    void showsHowItEnded();
    void emptiesTheListOnExit();
};

void CResultStepsTest::showsHowItEnded_data()
{
    QTest::addColumn<QVector<int>>("results");
    QTest::addColumn<QString>("errorText"); // empty: hidden

    QTest::newRow("all succeeded") << QVector<int>{0, 0} << "";
    QTest::newRow("one skipped, none failed") << QVector<int>{0, 2} << "";
    QTest::newRow("the last one failed")
        << QVector<int>{0, 1}
        << "An error has occurred during the update.<br>Error message: Camera is on fire.";
    QTest::newRow("one failed, others skipped")
        << QVector<int>{0, 1, 2}
        << "An error has occurred during the update. The subsequent updates have been "
           "skipped.<br>Error message: Camera is on fire.";
}

void CResultStepsTest::showsHowItEnded()
{
    QFETCH(QVector<int>, results);
    QFETCH(QString, errorText);

    CUpdaterFixture fixture;
    fixture.service->openTemporaryLogFile();
    fixture.service->setUpdateFailureMessage("Camera is on fire");
    QList<CUpdaterFixture::Entity *> cameras;
    for (int i = 0; i < results.size(); ++i) {
        cameras.append(CUpdaterFixture::makeTickedCamera({QString::number(i)}));
        cameras.last()->setUpdateResult(static_cast<Result>(results.at(i)));
    }
    fixture.model->setCameraDeviceList(cameras);
    View::CResultSummaryDialog dialog(nullptr);
    dialog.setModel(fixture.model);
    State::CResultSummaryStep step(&fixture.host.initializer, &dialog, nullptr);
    step.setCameraUpdateModel(fixture.model);

    step.onEntry(nullptr);
    const auto *const error = dialog.findChild<QLabel *>("errorTextLabel");
    QCOMPARE(error->isVisible(), !errorText.isEmpty());
    if (!errorText.isEmpty())
        QCOMPARE(error->text(), errorText);

    const QString logLink
        = "<a href=\"" + fixture.service->getCurrentTemporaryLogFilePath() + "\">log file</a>";
    QVERIFY(dialog.findChild<QLabel *>("infoTextLabel_2")->text().contains(logLink));
    const QString support = dialog.findChild<QLabel *>("infoTextLabel_3")->text();
    QVERIFY(support.contains(logLink));
    QVERIFY(
        support.contains("<a href=\"https://support.korvane.example/en/\">Korvane Support</a>"));
}

void CResultStepsTest::emptiesTheListOnExit()
{
    CUpdaterFixture fixture;
    auto dialog = std::make_unique<View::CResultSummaryDialog>(nullptr);
    dialog->setModel(fixture.model);
    State::CResultSummaryStep step(&fixture.host.initializer, dialog.get(), nullptr);
    step.setCameraUpdateModel(fixture.model);
    fixture.model->setCameraDeviceList({CUpdaterFixture::makeTickedCamera({"a"})});
    step.onEntry(nullptr);
    step.onExit(nullptr);
    QCOMPARE(fixture.model->rowCount(), 0);
    QVERIFY(!dialog->isVisible());

    dialog.reset();
    fixture.model->setCameraDeviceList({CUpdaterFixture::makeTickedCamera({"a"})});
    step.onEntry(nullptr);
    QCOMPARE(fixture.model->rowCount(), 1);
    step.onExit(nullptr);
    QCOMPARE(fixture.model->rowCount(), 0);
}

QTEST_MAIN(CResultStepsTest)
#include "tst_resultsteps.moc"
