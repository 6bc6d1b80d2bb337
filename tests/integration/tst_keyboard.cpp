#include "support/accessiblereader.h"
#include "support/vieweroptions.h"
#include "support/wizardpages.h"
#include "viewer/appcore/mainwindow.h"
#include "viewer/appcore/viewer.h"

#include "camerapool/icameraenumerationservice.h"

#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>

using namespace TestSupport;
using Plugin::CameraPool::ICameraEnumerationService;

/// The viewer with its plug-in in the hands of somebody who sees no screen and has no mouse: what
/// to press follows from what Qt's accessibility interface tells.
class CKeyboardTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void updatesTwoCameras();

private:
    /// Gives the keys to the open menu, or else to the control that has the focus.
    static void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// What a screen reader says about the place of the focus.
    static QString getFocus();
    /// Presses @p key until the focus is on something with a name that begins with @p name.
    static bool moveTo(const QString &name, int key);
    static void typePath(const QString &path);

    QTemporaryDir m_folder;
};

void CKeyboardTest::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName("NuvexTest");
    QCoreApplication::setApplicationName("tst_keyboard");
    QApplication::setQuitOnLastWindowClosed(false);
    QSettings().clear();
    qputenv("TMPDIR", m_folder.path().toLocal8Bit());
}

void CKeyboardTest::press(int key, Qt::KeyboardModifiers modifiers)
{
    QWidget *const menu = QApplication::activePopupWidget();
    QTest::keyClick(menu ? menu : QApplication::focusWidget(), Qt::Key(key), modifiers);
}

QString CKeyboardTest::getFocus()
{
    QWidget *const menu = QApplication::activePopupWidget();
    const QAccessibleInterface *const accessible
        = QAccessible::queryAccessibleInterface(menu ? menu : QApplication::focusWidget());
    for (int i = 0; accessible && i < accessible->childCount(); ++i)
        if (accessible->child(i)->state().focused)
            return describe(accessible->child(i));
    return describe(accessible);
}

bool CKeyboardTest::moveTo(const QString &name, int key)
{
    for (int i = 0; i < 20 && !getFocus().startsWith(name); ++i)
        press(key);
    return getFocus().startsWith(name);
}

void CKeyboardTest::typePath(const QString &path)
{
    press(Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), path);
}

void CKeyboardTest::updatesTwoCameras()
{
    const QString cameras = describeCameras(m_folder.path(), "1.2.0");
    Viewer::AppCore::CViewer viewer(TestSupport::readOptions({"--cameras", cameras, "--speed", "20",
                                                              "--plugins", PLUGIN_FOLDER}),
                                    "en");
    const auto enumeration = viewer.getEnumerationService();
    QSignalSpy found(enumeration.data(), &ICameraEnumerationService::enumerationChanged);
    QStringList failures;
    QVERIFY2(viewer.start(failures), qPrintable(failures.join('\n')));
    QVERIFY(found.wait());
    QVERIFY(QTest::qWaitForWindowActive(&viewer.getMainWindow()));
    QCOMPARE(findNameless(viewer.getMainWindow()), {});

    press(Qt::Key_T, Qt::AltModifier);
    QVERIFY(moveTo("Firmware Updater", Qt::Key_Down));
    press(Qt::Key_Return);
    QDialog *page = waitForPage("Step 1");
    QVERIFY(QTest::qWaitForWindowActive(page));
    QCOMPARE(getFocus(), "GigE");
    // Next is not available, so Enter does nothing.
    press(Qt::Key_Return);
    QVERIFY(moveTo("VX-1400M", Qt::Key_Down));
    press(Qt::Key_Space);
    QVERIFY(moveTo("Line 3", Qt::Key_Down));
    press(Qt::Key_Space);
    QCOMPARE(getFocus(), "Line 3 [ ] (VX-1400M, GigE)");
    QVERIFY(moveTo("VX-1400M [-]", Qt::Key_Up));
    press(Qt::Key_Return);

    page = waitForPage("Step 2");
    QVERIFY(QTest::qWaitForWindowActive(page));
    QCOMPARE(getFocus(), "Update file");
    typePath(SAMPLE_UPDATES "/nothing.guf");
    press(Qt::Key_Return);
    typePath(SAMPLE_UPDATES "/vx-1400m_2.0.0.guf");
    QVERIFY(moveTo("Next", Qt::Key_Tab));
    press(Qt::Key_Space);

    page = waitForPage("Step 3");
    QVERIFY(QTest::qWaitForWindowActive(page));
    const QString line = "Line %1 (Current Firmware: %2, Firmware Selected: 2.0.0, Details: %3)";
    QCOMPARE(getFocus(), line.arg("1 [x]", "1.2.0", "Upgrade"));
    // Who asks about a row hears of its changes.
    QCOMPARE(readRows(findPage("Step 4")->findChild<QWidget *>("cameraTreeView")),
             QStringList({line.arg("1", "1.2.0", "Waiting"), line.arg("2", "1.2.0", "Waiting")}));
    (void)takeAnnouncements();
    press(Qt::Key_Return);

    page = waitForPage("Step 5");
    QVERIFY(QTest::qWaitForWindowActive(page));
    const QStringList told = takeAnnouncements();
    QVERIFY(told.contains("value Update progress"));
    QVERIFY(told.contains("name Camera 2 of 2"));
    QVERIFY(told.contains("description " + line.arg("2", "1.2.0", "Updating")));
    QVERIFY(told.contains("description " + line.arg("2", "2.0.0", "Complete")));
    QCOMPARE(getFocus(), "Line 1 (Current Firmware: 2.0.0, Details: OK)");
    QVERIFY(moveTo("Close", Qt::Key_Tab));
    press(Qt::Key_Space);
    QTRY_VERIFY(!page->isVisible());
    const auto getVersions = [&enumeration] {
        QString versions;
        for (const auto &camera :
             enumeration->getTransportLayerInfoVector().constFirst()->getCameraInfoList())
            versions += camera->getFirmwareVersion() + ' ';
        return versions;
    };
    QTRY_COMPARE(getVersions(), "2.0.0 2.0.0 1.2.0 ");
}

QTEST_MAIN(CKeyboardTest)
#include "tst_keyboard.moc"
