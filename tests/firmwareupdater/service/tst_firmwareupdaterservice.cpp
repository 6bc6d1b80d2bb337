#include "support/updaterfixture.h"
#include "view/cameraselectiondialog.h"
#include "view/resultsummarydialog.h"
#include "view/updateselectiondialog.h"
#include "view/updatesummarydialog.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <QtTest>

#include <functional>

using namespace Plugin::FirmwareUpdater::Internal;
using TestSupport::click;
using TestSupport::CUpdaterFixture;
using TestSupport::getButton;
using TestSupport::getText;

class CFirmwareUpdaterServiceTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void asksAboutBusyCameras();
    void checksTheTypedPath();
    void keepsTheTypedFormButStoresTheAbsolutePath();
    void checksTheFirstTickedCameraOnly();
    void checksThePathAtEachEntry();
    void endsWithoutUpdatesWhenTheFileIsLost();
    void takesAFileFromTheFileDialog();
    void rebuildsTheTreeOnlyWhileOpen();
    void asksTheHostToEnumerate();

private:
    template <typename T>
    [[nodiscard]] T *dialog() const
    {
        return m_fixture->host.windows->getMainWindow()->findChild<T *>();
    }

    template <typename T>
    [[nodiscard]] bool isShown() const
    {
        return dialog<T>()->isVisible();
    }

    void start();
    void tick(const QString &id);
    QString makeFile(const QString &name);
    void typePath(const QString &path);
    void goToStepTwo();
    void goToStepThree();

    /// Calls @p answer with the modal widget that the code under test is about to open.
    void whenModal(const std::function<void(QWidget *)> &answer);

    std::unique_ptr<CUpdaterFixture> m_fixture;
};

void CFirmwareUpdaterServiceTest::init()
{
    m_fixture = std::make_unique<CUpdaterFixture>();
    auto &host = m_fixture->host;
    host.enumeration->layers = {TestSupport::makeLayer("l", {{"a"}, {"b"}, {"n", "N"}})};
    host.updates->entries
        = {TestSupport::UpdateInfoPtr(new TestSupport::CFakeUpdateInfo("2.0.0", "Fixes"))};
    QVERIFY(m_fixture->service->postInitialize());
    host.windows->getMainWindow()->show();
}

void CFirmwareUpdaterServiceTest::cleanup()
{
    m_fixture.reset();
}

void CFirmwareUpdaterServiceTest::start()
{
    m_fixture->service->startFirmwareUpdater();
    QTRY_VERIFY(isShown<View::CCameraSelectionDialog>());
}

void CFirmwareUpdaterServiceTest::tick(const QString &id)
{
    const auto model = dialog<View::CCameraSelectionDialog>()->getModel();
    CUpdaterFixture::tick(*model, model->getModelIndexForCameraId("l", id, 0));
}

QString CFirmwareUpdaterServiceTest::makeFile(const QString &name)
{
    const QString path = m_fixture->temporaryFolder.filePath(name);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) ? path : QString();
}

void CFirmwareUpdaterServiceTest::typePath(const QString &path)
{
    auto *const edit = dialog<View::CUpdateSelectionDialog>()->findChild<QLineEdit *>();
    edit->selectAll();
    QTest::keyClicks(edit, path);
    QCOMPARE(edit->text(), path);
}

void CFirmwareUpdaterServiceTest::goToStepTwo()
{
    start();
    tick("a");
    click(*dialog<View::CCameraSelectionDialog>(), "Next");
    QTRY_VERIFY(isShown<View::CUpdateSelectionDialog>());
}

void CFirmwareUpdaterServiceTest::goToStepThree()
{
    click(*dialog<View::CUpdateSelectionDialog>(), "Next");
    QTRY_VERIFY(isShown<View::CUpdateSummaryDialog>());
}

void CFirmwareUpdaterServiceTest::whenModal(const std::function<void(QWidget *)> &answer)
{
    auto *const poll = new QTimer(this);
    connect(poll, &QTimer::timeout, this, [poll, answer] {
        if (QWidget *const widget = QApplication::activeModalWidget()) {
            poll->deleteLater();
            answer(widget);
        }
    });
    poll->start(5);
}

void CFirmwareUpdaterServiceTest::asksAboutBusyCameras()
{
    for (const auto answer : {QMessageBox::Yes, QMessageBox::No, QMessageBox::NoButton}) {
        cleanup();
        init();
        const bool started = answer == QMessageBox::Yes;
        m_fixture->host.status->busyIds = {"b"};
        bool asked = false;
        whenModal([this, &asked, answer](QWidget *widget) {
            // Too late for the wizard, which has found all that it needs.
            m_fixture->host.initializer.removeService(m_fixture->host.streams);
            auto *const box = qobject_cast<QMessageBox *>(widget);
            asked = box && box->windowTitle() == "Fimware Updater"
                && box->text().startsWith("<p>To use the Firmware Updater, you have to stop")
                && box->focusWidget() == box->button(QMessageBox::No) && !box->iconPixmap().isNull()
                && box->width() >= 570;
            if (answer == QMessageBox::NoButton)
                widget->close();
            else
                QTest::mouseClick(box->button(answer), Qt::LeftButton);
        });
        m_fixture->service->startFirmwareUpdater();
        QVERIFY(asked);
        QCOMPARE(m_fixture->host.status->askedIds, QStringList({"a", "b", "n"}));
        QCOMPARE(m_fixture->host.streams->stopCount, started ? 1 : 0);
        QCOMPARE(m_fixture->service->getCurrentTemporaryLogFilePath().isEmpty(), !started);
        const auto model = dialog<View::CCameraSelectionDialog>()->getModel();
        QCOMPARE(model->rowCount(), started ? 1 : 0);
        QTRY_COMPARE(isShown<View::CCameraSelectionDialog>(), started);
    }
}

void CFirmwareUpdaterServiceTest::checksTheTypedPath()
{
    const auto check = [this](const char *path, bool ticked, bool fits, bool next, bool error,
                              const char *description) {
        cleanup();
        init();
        start();
        if (ticked)
            tick("a");
        if (!fits)
            m_fixture->host.updates->incompatibleIds = {"a"};
        const bool isTorn = path == QString("torn.guf");
        if (isTorn)
            m_fixture->host.updates->readError = "The file is torn";
        (void)makeFile("update.guf");
        (void)makeFile("torn.guf");
        auto *const step2 = dialog<View::CUpdateSelectionDialog>();
        emit step2->pathChanged(*path ? m_fixture->temporaryFolder.filePath(path) : QString());
        QVERIFY2(getButton(*step2, "Next")->isEnabled() == next, path);
        for (const char *const label : {"errorTextLabel", "errorIconLabel"})
            QVERIFY2(TestSupport::find(*step2, label)->isHidden() != error, path);
        QCOMPARE(getText(*step2, "updateDescriptionTextLabel"), description);
        QCOMPARE(m_fixture->getLog().contains(
                     "CRITICAL Failed to check for compatible update: The file is torn"),
                 isTorn);
    };
    check("update.guf", true, true, true, false, "Fixes");
    check("update.guf", true, false, false, true, "No details available");
    check("update.guf", false, true, false, true, "No details available");
    check("torn.guf", true, true, false, true, "No details available");
    for (const char *const noFile : {".", "gone.guf", ""})
        check(noFile, true, true, false, false, "No file selected");
}

void CFirmwareUpdaterServiceTest::keepsTheTypedFormButStoresTheAbsolutePath()
{
    start();
    const QString path = makeFile("update.guf");
    const QString relative = QDir::current().relativeFilePath(path);
    QVERIFY(relative != path);
    emit dialog<View::CUpdateSelectionDialog>()->pathChanged(relative);
    QCOMPARE(dialog<View::CUpdateSelectionDialog>()->findChild<QLineEdit *>()->text(), relative);
    QCOMPARE(QDir::cleanPath(m_fixture->service->getSelectedUpdatePath()), path);
    QVERIFY(QDir::isAbsolutePath(m_fixture->service->getSelectedUpdatePath()));

    emit dialog<View::CUpdateSelectionDialog>()->pathChanged("/no/such/file");
    QCOMPARE(m_fixture->service->getSelectedUpdatePath(), "/no/such/file");
}

void CFirmwareUpdaterServiceTest::checksTheFirstTickedCameraOnly()
{
    start();
    tick("b");
    tick("a");
    m_fixture->host.updates->incompatibleIds = {"a"};
    emit dialog<View::CUpdateSelectionDialog>()->pathChanged(makeFile("update.guf"));
    QCOMPARE(m_fixture->host.updates->checkedIds, QStringList({"a"}));
    QVERIFY(!getButton(*dialog<View::CUpdateSelectionDialog>(), "Next")->isEnabled());
}

void CFirmwareUpdaterServiceTest::checksThePathAtEachEntry()
{
    goToStepTwo();
    typePath(makeFile("update.guf"));
    goToStepThree();
    // The file turns bad while the user looks at the summary.
    m_fixture->host.updates->readError = "The file is torn";
    click(*dialog<View::CUpdateSummaryDialog>(), "Back");
    QTRY_VERIFY(isShown<View::CUpdateSelectionDialog>());
    QVERIFY(!getButton(*dialog<View::CUpdateSelectionDialog>(), "Next")->isEnabled());
    // An entry empties the list of an earlier pass.
    QCOMPARE(dialog<View::CUpdateSummaryDialog>()->getModel()->rowCount(), 0);
}

void CFirmwareUpdaterServiceTest::endsWithoutUpdatesWhenTheFileIsLost()
{
    goToStepTwo();
    typePath(makeFile("update.guf"));
    // The file turns bad behind the last check: the summary stays empty.
    m_fixture->host.updates->readError = "The file is torn";
    goToStepThree();
    QCOMPARE(m_fixture->getLog().last(),
             "CRITICAL Failed to open firmware update file: The file is torn");
    QCOMPARE(dialog<View::CUpdateSummaryDialog>()->getModel()->rowCount(), 0);

    // Step 4 has nothing to do and ends while it is being entered.
    click(*dialog<View::CUpdateSummaryDialog>(), "Next");
    QTRY_VERIFY(isShown<View::CResultSummaryDialog>());
    QCOMPARE(getText(*dialog<View::CResultSummaryDialog>(), "successfulUpdatesLabel"),
             "Successful updates: 0");

    click(*dialog<View::CResultSummaryDialog>(), "Close");
    QTRY_VERIFY(!isShown<View::CResultSummaryDialog>());
    QTRY_COMPARE(m_fixture->service->getCurrentTemporaryLogFilePath(), "");
    // The machine can be started again.
    start();
}

void CFirmwareUpdaterServiceTest::takesAFileFromTheFileDialog()
{
    goToStepTwo();
    const QString path = makeFile("update.guf");
    // The platform's own dialog cannot be driven by a test.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);

    bool asked = false;
    whenModal([&asked, path](QWidget *widget) {
        auto *const fileDialog = qobject_cast<QFileDialog *>(widget);
        asked = fileDialog && fileDialog->windowTitle() == "Fimware Updater"
            && fileDialog->nameFilters() == QStringList({"Update files (*.guf)"})
            && fileDialog->fileMode() == QFileDialog::ExistingFile;
        fileDialog->findChild<QLineEdit *>()->setText(path);
        QTest::keyClick(fileDialog->findChild<QLineEdit *>(), Qt::Key_Return);
    });
    click(*dialog<View::CUpdateSelectionDialog>(), "Browse");
    QVERIFY(asked);
    QCOMPARE(dialog<View::CUpdateSelectionDialog>()->findChild<QLineEdit *>()->text(), path);
    QCOMPARE(m_fixture->service->getSelectedUpdatePath(), path);
    QVERIFY(getButton(*dialog<View::CUpdateSelectionDialog>(), "Next")->isEnabled());

    whenModal([](QWidget *widget) { widget->close(); });
    click(*dialog<View::CUpdateSelectionDialog>(), "Browse");
    QCOMPARE(m_fixture->service->getSelectedUpdatePath(), path);
}

void CFirmwareUpdaterServiceTest::rebuildsTheTreeOnlyWhileOpen()
{
    const auto model = dialog<View::CCameraSelectionDialog>()->getModel();
    m_fixture->service->onEnumerationChanged();
    QCOMPARE(model->rowCount(), 0);

    TestSupport::CCameraDescription remembered{"a"};
    remembered.layerId = "l";
    m_fixture->service->setSelectedCamera(TestSupport::makeCamera(remembered));
    start();
    tick("b");
    m_fixture->host.enumeration->layers
        = {TestSupport::makeLayer("k", {{"z"}}), TestSupport::makeLayer("l", {{"a"}, {"b"}})};
    m_fixture->service->onEnumerationChanged();
    QCOMPARE(model->rowCount(), 2);
    // Only the camera remembered from the host's selector is ticked again.
    QCOMPARE(model->getSelectedCameraList().size(), 1);
    QCOMPARE(model->getSelectedCameraList().first()->getCameraInfo()->getId(), "a");
}

void CFirmwareUpdaterServiceTest::asksTheHostToEnumerate()
{
    start();
    const auto *const page = dialog<View::CCameraSelectionDialog>();
    auto *const refresh = TestSupport::find<QPushButton>(*page, "refreshButton");
    QTest::mouseClick(refresh, Qt::LeftButton);
    QCOMPARE(m_fixture->host.enumeration->refreshCount, 1);
    m_fixture->host.initializer.removeService(m_fixture->host.enumeration);
    QTest::mouseClick(refresh, Qt::LeftButton);
    QCOMPARE(m_fixture->host.enumeration->refreshCount, 1);
}

QTEST_MAIN(CFirmwareUpdaterServiceTest)
#include "tst_firmwareupdaterservice.moc"
