#include "state/updatesummarystep.h"
#include "support/updaterfixture.h"
#include "view/updatesummarydialog.h"

#include <QtTest>

using namespace Plugin::FirmwareUpdater::Internal;
using Plugin::CameraPool::EFirmwareUpdateDirection;
using TestSupport::CUpdaterFixture;

class CUpdateSummaryStepTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void preparesEachTickedCamera();
    void accumulatesTheWord();
    void goesOnWithoutACameraThatNothingFits();
    void keepsTheOldListWhenTheFileIsUnreadable();
    void followsTheTicksOfTheSummary();

private:
    void enter();

    std::unique_ptr<CUpdaterFixture> m_fixture;
    QSharedPointer<CUpdaterFixture::Model> m_selection;
    std::unique_ptr<View::CUpdateSummaryDialog> m_dialog;
    std::unique_ptr<State::CUpdateSummaryStep> m_step;
    QHash<QString, EFirmwareUpdateDirection> m_directions;
};

void CUpdateSummaryStepTest::init()
{
    m_directions.clear();
    m_fixture = std::make_unique<CUpdaterFixture>();
    auto &updates = *m_fixture->host.updates;
    updates.entries = {
        TestSupport::UpdateInfoPtr(new TestSupport::CFakeUpdateInfo("2.0.0", "Fixes the clock"))};
    updates.createJob = [this](const QString &id, const TestSupport::UpdateInfoPtr &entry) {
        return Plugin::CameraPool::DeviceFirmwareUpdatePtr(
            new TestSupport::CScriptedUpdate(entry->getVersion(), m_directions.value(id)));
    };
    m_selection.reset(new CUpdaterFixture::Model(nullptr));
    m_selection->setCameraDeviceList({CUpdaterFixture::makeTickedCamera({"c"}),
                                      CUpdaterFixture::makeTickedCamera({"a"}),
                                      CUpdaterFixture::makeTickedCamera({"b"})});

    m_dialog = std::make_unique<View::CUpdateSummaryDialog>(nullptr);
    m_dialog->setModel(m_fixture->model);
    m_step = std::make_unique<State::CUpdateSummaryStep>(&m_fixture->host.initializer,
                                                         m_dialog.get(), nullptr);
    m_step->setCameraSelectionModel(m_selection);
}

void CUpdateSummaryStepTest::cleanup()
{
    m_step.reset();
    m_dialog.reset();
    m_selection.reset();
    m_fixture.reset();
}

void CUpdateSummaryStepTest::enter()
{
    m_fixture->service->openTemporaryLogFile();
    m_step->onEntry(nullptr);
}

void CUpdateSummaryStepTest::preparesEachTickedCamera()
{
    m_directions = {{"b", EFirmwareUpdateDirection::Downgrade}};
    enter();

    QCOMPARE(m_fixture->getLog(),
             QStringList({"INFO Selected firmware update file ",
                          "INFO Contains firmware update to version 2.0.0",
                          "INFO Description: Fixes the clock",
                          "INFO Created update: Update will update camera VX-1 Camera a with "
                          "version 1.0.0 to version 2.0.0",
                          "INFO Created update: Update will downgrade camera VX-1 Camera b with "
                          "version 1.0.0 to version 2.0.0",
                          "INFO Created update: Update will downgrade camera VX-1 Camera c with "
                          "version 1.0.0 to version 2.0.0"}));
    const CUpdaterFixture::Model &summary = *m_fixture->model;
    QCOMPARE(summary.rowCount(), 3);
    QCOMPARE(summary.index(1, 1).data().toString(), "b");
    QCOMPARE(summary.index(1, 4).data().toString(), "2.0.0");
    QCOMPARE(summary.getSelectedCameraList().size(), 3);
}

void CUpdateSummaryStepTest::accumulatesTheWord()
{
    // The words in the log for cameras with these directions, and the warnings that are shown.
    const auto getWords = [this](const QVector<int> &directions) {
        for (int i = 0; i < directions.size(); ++i)
            m_directions.insert(QChar('a' + i), EFirmwareUpdateDirection(directions.at(i)));
        enter();
        QStringList words;
        for (const QString &line : m_fixture->getLog().filter("Created update"))
            words.append(line.section(' ', 5, 5));
        for (const char *const warning : {"warningTextLabel_1", "warningTextLabel_2"})
            if (!TestSupport::find(*m_dialog, warning)->isHidden())
                words.append(warning);
        return words.join(' ');
    };
    QCOMPARE(getWords({0, 0, 0}), "update update update");
    QCOMPARE(getWords({0, 2, 0}), "update reinstall reinstall warningTextLabel_2");
    QCOMPARE(getWords({1, 0, 0}), "downgrade downgrade downgrade warningTextLabel_1");
    QCOMPARE(getWords({1, 2, 0}),
             "downgrade reinstall reinstall warningTextLabel_1 warningTextLabel_2");
}

void CUpdateSummaryStepTest::goesOnWithoutACameraThatNothingFits()
{
    auto &updates = *m_fixture->host.updates;
    updates.incompatibleIds = {"a"};
    updates.failingIds = {"b"};
    updates.createJob = [make = updates.createJob](const QString &id, const auto &entry) {
        return id == "c" ? nullptr : make(id, entry);
    };
    m_selection->setCameraDeviceList(
        {CUpdaterFixture::makeTickedCamera({"a"}), CUpdaterFixture::makeTickedCamera({"b"}),
         CUpdaterFixture::makeTickedCamera({"c"}), CUpdaterFixture::makeTickedCamera({"d"})});
    enter();

    const QString line = "CRITICAL No compatible firmware update found for VX-1 SN-%1: R1";
    QCOMPARE(m_fixture->getLog().filter("CRITICAL"),
             QStringList({line.arg('a'), line.arg('b'), line.arg('c')}));
    const CUpdaterFixture::Model &summary = *m_fixture->model;
    QCOMPARE(summary.rowCount(), 4);
    for (int row = 0; row < 4; ++row) {
        QCOMPARE(summary.index(row, 5).data().toInt(), row < 3 ? 3 : 0);
        QCOMPARE(summary.index(row, 4).data().toString(), row < 3 ? "" : "2.0.0");
    }
}

void CUpdateSummaryStepTest::keepsTheOldListWhenTheFileIsUnreadable()
{
    enter();
    m_fixture->host.updates->readError = "The file is torn";
    enter();

    QCOMPARE(m_fixture->getLog(),
             QStringList({"INFO Selected firmware update file ",
                          "CRITICAL Failed to open firmware update file: The file is torn"}));
    QCOMPARE(m_fixture->model->rowCount(), 3);
}

void CUpdateSummaryStepTest::followsTheTicksOfTheSummary()
{
    enter();
    enter();
    const QPushButton *const next = TestSupport::getButton(*m_dialog, "Next");
    QVERIFY(next && next->isEnabled());
    CUpdaterFixture::Model &summary = *m_fixture->model;
    for (int row = 0; row < summary.rowCount(); ++row)
        QVERIFY(summary.setData(summary.index(row, 0), false, Qt::EditRole));
    QVERIFY(!next->isEnabled());
    summary.setData(summary.index(1, 0), true, Qt::EditRole);
    QVERIFY(next->isEnabled());

    // Roles that say nothing about ticks leave the button alone.
    summary.clearSelectedCamerasMap();
    m_step->slotDataChanged({}, {}, {Qt::CheckStateRole});
    m_step->slotDataChanged({}, {}, {});
    QVERIFY(next->isEnabled());
    m_step->slotDataChanged({}, {}, {Qt::EditRole});
    QVERIFY(!next->isEnabled());
}

QTEST_MAIN(CUpdateSummaryStepTest)
#include "tst_updatesummarystep.moc"
