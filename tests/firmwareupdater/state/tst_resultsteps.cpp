#include "state/resultsummarystep.h"
#include "support/updaterfixture.h"
#include "view/resultsummarydialog.h"

#include <QtTest>

using namespace Plugin::FirmwareUpdater::Internal;
using TestSupport::CUpdaterFixture;

class CResultStepsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void showsHowItEnded();
    void emptiesTheListOnExit();

private:
    std::unique_ptr<CUpdaterFixture> m_fixture;
    std::unique_ptr<View::CResultSummaryDialog> m_dialog;
    std::unique_ptr<State::CResultSummaryStep> m_step;
};

void CResultStepsTest::init()
{
    m_fixture = std::make_unique<CUpdaterFixture>();
    m_dialog = std::make_unique<View::CResultSummaryDialog>(nullptr);
    m_dialog->setModel(m_fixture->model);
    m_step = std::make_unique<State::CResultSummaryStep>(&m_fixture->host.initializer,
                                                         m_dialog.get(), nullptr);
    m_step->setCameraUpdateModel(m_fixture->model);
}

void CResultStepsTest::cleanup()
{
    m_step.reset();
    m_dialog.reset();
    m_fixture.reset();
}

void CResultStepsTest::showsHowItEnded()
{
    m_fixture->service->openTemporaryLogFile();
    m_fixture->service->setUpdateFailureMessage("Camera is on fire");
    const auto show = [this](const QVector<int> &results) {
        QList<CUpdaterFixture::Entity *> cameras;
        for (const int result : results) {
            cameras.append(CUpdaterFixture::makeTickedCamera({QString::number(cameras.size())}));
            cameras.last()->setUpdateResult(CUpdaterFixture::Entity::EFirmwareUpdateResult(result));
        }
        m_fixture->model->setCameraDeviceList(cameras);
        m_step->onEntry(nullptr);
        const auto *const error = TestSupport::find<QLabel>(*m_dialog, "errorTextLabel");
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
    QVERIFY(TestSupport::getText(*m_dialog, "infoTextLabel_2").contains(logLink));
    const QString support = TestSupport::getText(*m_dialog, "infoTextLabel_3");
    QVERIFY(support.contains(logLink));
    QVERIFY(support.contains("\"https://support.korvane.example/en/\">Korvane Support</a>"));
}

void CResultStepsTest::emptiesTheListOnExit()
{
    for (const bool hasDialog : {true, false}) {
        m_fixture->model->setCameraDeviceList({CUpdaterFixture::makeTickedCamera({"a"})});
        m_step->onEntry(nullptr);
        QCOMPARE(m_fixture->model->rowCount(), 1);
        m_step->onExit(nullptr);
        QCOMPARE(m_fixture->model->rowCount(), 0);
        QVERIFY(!hasDialog || !m_dialog->isVisible());
        m_dialog.reset();
    }
}

QTEST_MAIN(CResultStepsTest)
#include "tst_resultsteps.moc"
