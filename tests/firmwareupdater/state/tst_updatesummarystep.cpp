#include "state/updatesummarystep.h"
#include "support/updaterfixture.h"
#include "view/updateselectiondialog.h"
#include "view/updatesummarydialog.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
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
    void accumulatesTheWord_data();
    void accumulatesTheWord();
    void goesOnWithoutACameraThatNothingFits_data();
    void goesOnWithoutACameraThatNothingFits();
    void keepsTheOldListWhenTheFileIsUnreadable();
    void followsTheTicksOfTheSummary();

private:
    void enter();
    [[nodiscard]] bool isShown(const char *label) const;

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

bool CUpdateSummaryStepTest::isShown(const char *label) const
{
    return !m_dialog->findChild<QLabel *>(label)->isHidden();
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
    QCOMPARE(summary.index(1, 5).data().toInt(), 1);
    QCOMPARE(summary.index(0, 5).data().toInt(), 0);
    QCOMPARE(summary.getSelectedCameraList().size(), 3);
    QVERIFY(m_dialog->isVisible());
}

void CUpdateSummaryStepTest::accumulatesTheWord_data()
{
    using Words = QStringList;
    using Directions = QVector<int>;
    QTest::addColumn<Directions>("directions"); // of cameras a, b, c
    QTest::addColumn<Words>("words");
    QTest::addColumn<bool>("downgradeWarning");
    QTest::addColumn<bool>("reinstallWarning");

    QTest::newRow("upgrades only")
        << Directions{0, 0, 0} << Words{"update", "update", "update"} << false << false;
    QTest::newRow("a reinstall sticks")
        << Directions{0, 2, 0} << Words{"update", "reinstall", "reinstall"} << false << true;
    QTest::newRow("a downgrade sticks")
        << Directions{1, 0, 0} << Words{"downgrade", "downgrade", "downgrade"} << true << false;
    QTest::newRow("a reinstall outdoes a downgrade")
        << Directions{1, 2, 0} << Words{"downgrade", "reinstall", "reinstall"} << true << true;
}

void CUpdateSummaryStepTest::accumulatesTheWord()
{
    QFETCH(QVector<int>, directions);
    QFETCH(QStringList, words);
    QFETCH(bool, downgradeWarning);
    QFETCH(bool, reinstallWarning);

    const QStringList ids = {"a", "b", "c"};
    for (int i = 0; i < ids.size(); ++i)
        m_directions.insert(ids.at(i), static_cast<EFirmwareUpdateDirection>(directions.at(i)));
    enter();

    const QStringList lines = m_fixture->getLog().filter("Created update");
    QCOMPARE(lines.size(), 3);
    for (int i = 0; i < lines.size(); ++i)
        QVERIFY2(lines.at(i).contains("Update will " + words.at(i) + " camera"),
                 qPrintable(lines.at(i)));
    QCOMPARE(isShown("warningTextLabel_1"), downgradeWarning);
    QCOMPARE(isShown("warningIconLabel_1"), downgradeWarning);
    QCOMPARE(isShown("warningTextLabel_2"), reinstallWarning);
    QCOMPARE(isShown("warningIconLabel_2"), reinstallWarning);
}

void CUpdateSummaryStepTest::goesOnWithoutACameraThatNothingFits_data()
{
    QTest::addColumn<QString>("cause");
    QTest::newRow("no entry fits") << "incompatible";
    QTest::newRow("the check throws") << "throws";
    QTest::newRow("no job can be made") << "no job";
}

void CUpdateSummaryStepTest::goesOnWithoutACameraThatNothingFits()
{
    QFETCH(QString, cause);

    auto &updates = *m_fixture->host.updates;
    if (cause == "incompatible")
        updates.incompatibleIds = {"b"};
    else if (cause == "throws")
        updates.failingIds = {"b"};
    else {
        updates.createJob
            = [make = updates.createJob](const QString &id, const TestSupport::UpdateInfoPtr &entry)
            -> Plugin::CameraPool::DeviceFirmwareUpdatePtr {
            return id == "b" ? nullptr : make(id, entry);
        };
    }
    enter();

    QVERIFY(m_fixture->getLog().contains(
        "CRITICAL No compatible firmware update found for VX-1 SN-b: R1"));
    const CUpdaterFixture::Model &summary = *m_fixture->model;
    QCOMPARE(summary.rowCount(), 3);
    QCOMPARE(summary.index(1, 5).data().toInt(), 3);
    QCOMPARE(summary.index(1, 4).data().toString(), "");
    QCOMPARE(summary.index(2, 4).data().toString(), "2.0.0");
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
    QPushButton *next = nullptr;
    const auto buttons = m_dialog->findChildren<QPushButton *>();
    for (QPushButton *const button : buttons) {
        if (button->text() == "Next")
            next = button;
    }
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
