#include "support/vieweroptions.h"
#include "support/wizardpages.h"
#include "testmaker.h"
#include "viewer/appcore/mainwindow.h"
#include "viewer/appcore/viewer.h"

#include "camerapool/icameraenumerationservice.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QProcess>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTreeView>

using namespace TestSupport;
using Plugin::CameraPool::ICameraEnumerationService;

/// The viewer with its plug-in on a computer that demands signed update files.
class CSignaturesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void usesOnlyWhatATrustedMakerHasSigned();

private:
    static QDialog *openMakers(Viewer::AppCore::CViewer &viewer);
    static QDialog *openFilePage(Viewer::AppCore::CViewer &viewer);
    static void answer(QDialog *makers, const QString &expected);
    void addMaker(Viewer::AppCore::CViewer &viewer) const;

    QTemporaryDir m_folder;
    const CTestMaker m_maker{"Maker"};
};

void CSignaturesTest::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName("NuvexTest");
    QCoreApplication::setApplicationName("tst_signatures");
    QApplication::setQuitOnLastWindowClosed(false);
    QSettings().clear();
    qputenv("TMPDIR", m_folder.path().toLocal8Bit());
}

QDialog *CSignaturesTest::openMakers(Viewer::AppCore::CViewer &viewer)
{
    for (QAction *const action : viewer.getMainWindow().getFileMenu()->actions())
        if (action->objectName() == "trustedMakers")
            action->trigger();
    return viewer.getMainWindow().findChild<QDialog *>("trustedMakersDialog");
}

void CSignaturesTest::answer(QDialog *makers, const QString &expected)
{
    auto *const box = makers->findChild<QMessageBox *>("trustQuestion");
    QVERIFY(box && QTest::qWaitForWindowExposed(box));
    QVERIFY2(box->informativeText().contains(expected), qPrintable(box->informativeText()));
    QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
}

void CSignaturesTest::addMaker(Viewer::AppCore::CViewer &viewer) const
{
    QDialog *const makers = openMakers(viewer);
    QVERIFY(makers && QTest::qWaitForWindowExposed(makers));
    QVERIFY(!getButton(*makers, "Remove...")->isEnabled());
    click(*makers, "Add...");
    auto *const files = makers->findChild<QFileDialog *>("certificateDialog");
    files->setDirectory(m_folder.path());
    auto *const nameEdit = files->findChild<QLineEdit *>("fileNameEdit");
    nameEdit->setText("maker.pem");
    QTest::keyClick(nameEdit, Qt::Key_Return);
    answer(makers, "SHA-256 fingerprint:\n");
    QCOMPARE(find<QTreeView>(*makers, "makerTree")->model()->rowCount(), 1);
    QVERIFY(getText(*makers, "detailsLabel").startsWith("Maker: CN=Maker\n"));
    click(*makers, "Close");
}

QDialog *CSignaturesTest::openFilePage(Viewer::AppCore::CViewer &viewer)
{
    for (QAction *const action : find<QMenu>(viewer.getMainWindow(), "toolsMenu")->actions())
        if (action->text().contains("Firmware Updater"))
            action->trigger();
    QDialog *const page = waitForPage("Step 1");
    auto *const tree = page->findChild<QTreeView *>("cameraTreeView");
    tree->setCurrentIndex(tree->model()
                              ->match(tree->model()->index(0, 0), Qt::DisplayRole, "Line 2", 1,
                                      Qt::MatchExactly | Qt::MatchRecursive)
                              .value(0));
    QTest::keyClick(tree, Qt::Key_Space);
    click(*page, "Next");
    return waitForPage("Step 2");
}

void CSignaturesTest::usesOnlyWhatATrustedMakerHasSigned()
{
    m_maker.write(m_folder.filePath("maker"));
    QVERIFY(QDir(m_folder.path()).mkpath("etc"));
    QFile policy(m_folder.filePath("etc/policy.conf"));
    QVERIFY(policy.open(QIODevice::WriteOnly) && policy.write("signatures = require\n") > 0);
    policy.close();
    const QString unsignedFile = m_folder.filePath("unsigned.guf");
    const QString signedFile = m_folder.filePath("signed.guf");
    QVERIFY(QFile::copy(SAMPLE_FILE, unsignedFile) && QFile::copy(SAMPLE_FILE, signedFile));
    QCOMPARE(QProcess::execute(GUFTOOL,
                               {"sign", signedFile, "--certificate", m_folder.filePath("maker.pem"),
                                "--key", m_folder.filePath("maker.key")}),
             0);
    auto options = readOptions({"--cameras", describeCameras(m_folder.path(), "1.2.0"), "--speed",
                                "20", "--plugins", PLUGIN_FOLDER});
    options.policyFolder = m_folder.filePath("etc");
    options.configFolder = m_folder.filePath("config");
    Viewer::AppCore::CViewer viewer(std::move(options), "en");
    QSignalSpy found(viewer.getEnumerationService().data(),
                     &ICameraEnumerationService::enumerationChanged);
    QStringList failures;
    QVERIFY2(viewer.start(failures), qPrintable(failures.join('\n')));
    QVERIFY(found.wait());
    addMaker(viewer);

    QDialog *page = openFilePage(viewer);
    const auto choose = [&](const QString &path) {
        auto *const edit = find<QLineEdit>(*page, "updateFileLineEdit");
        edit->selectAll();
        QTest::keyClicks(edit, path);
        return getButton(*page, "Next")->isEnabled()
            ? viewer.getMainWindow().statusBar()->currentMessage()
            : "refused; " + viewer.getMainWindow().statusBar()->currentMessage();
    };
    const QString onlyTrusted = "; only update files of trusted makers can be used here";
    QCOMPARE(choose(unsignedFile),
             "refused; Update file unsigned.guf: it is not signed" + onlyTrusted);
    QCOMPARE(choose(signedFile), QString("Update file signed.guf: it is signed by CN=Maker"));
    click(*page, "Next");
    click(*waitForPage("Step 3"), "Next");
    page = waitForPage("Step 5");
    QTRY_COMPARE(getText(*page, "successfulUpdatesLabel"), "Successful updates: 1");

    // The makers are the main window's: the wizard has to be closed before.
    click(*page, "Close");
    QTRY_VERIFY(!page->isVisible());
    QDialog *const makers = openMakers(viewer);
    QVERIFY(makers && QTest::qWaitForWindowExposed(makers));
    click(*makers, "Remove...");
    answer(makers, "CN=Maker");
    QCOMPARE(find<QTreeView>(*makers, "makerTree")->model()->rowCount(), 0);
    click(*makers, "Close");
    page = openFilePage(viewer);
    QCOMPARE(choose(signedFile),
             "refused; Update file signed.guf: its signature is not trusted: CN=Maker is not among "
             "the trusted makers"
                 + onlyTrusted);
    click(*page, "Close");
}

QTEST_MAIN(CSignaturesTest)
#include "tst_signatures.moc"
