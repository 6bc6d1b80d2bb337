#include "viewer/appcore/mainwindow.h"
#include "viewer/appcore/menuservice.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QStandardPaths>
#include <QStatusBar>
#include <QToolBar>
#include <QtTest>

using namespace Viewer::AppCore;

class CMainWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void staysOpenWhileTheGuardSaysSo();
    void remembersItsPlace();
    void remembersTheLanguage();
    void everyMenuHasAMnemonic();
};

void CMainWindowTest::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName("NuvexTest");
    QCoreApplication::setApplicationName("tst_mainwindow");
}

void CMainWindowTest::init()
{
    QSettings().clear();
}

void CMainWindowTest::staysOpenWhileTheGuardSaysSo()
{
    CMenuService menus;
    CMainWindow window(menus);
    const QSignalSpy spy(&window, &CMainWindow::closed);
    QString reason = "An update is running.";
    window.setCloseGuard([&reason] { return reason; });
    window.show();
    QVERIFY(!window.close());
    QVERIFY(window.isVisible());
    QCOMPARE(window.statusBar()->currentMessage(), reason);
    QCOMPARE(spy.count(), 0);

    reason.clear();
    QVERIFY(window.close());
    QVERIFY(!window.isVisible());
    QCOMPARE(spy.count(), 1);
}

void CMainWindowTest::remembersItsPlace()
{
    CMenuService menus;
    {
        CMainWindow window(menus);
        window.setViews(new QWidget, new QWidget);
        window.show();
        window.resize(712, 501);
        window.getToolBar()->hide();
        QVERIFY(window.close());
    }
    CMainWindow window(menus);
    window.setViews(new QWidget, new QWidget);
    window.restorePlace();
    window.show();
    QCOMPARE(window.size(), QSize(712, 501));
    QVERIFY(!window.getToolBar()->isVisible());
}

void CMainWindowTest::remembersTheLanguage()
{
    CMenuService menus;
    CMainWindow window(menus);
    window.setViews(new QWidget, new QWidget);
    auto *const action = window.findChild<QAction *>("language_ja");
    QVERIFY(action);
    action->trigger();
    QCOMPARE(QSettings().value("language").toString(), "ja");
    QVERIFY(window.statusBar()->currentMessage().contains("next time"));
}

void CMainWindowTest::everyMenuHasAMnemonic()
{
    CMenuService menus;
    CMainWindow window(menus);
    QStringList mnemonics;
    const QList<QAction *> entries = window.menuBar()->actions();
    for (const QAction *entry : entries)
        mnemonics.append(QKeySequence::mnemonic(entry->text()).toString());
    QCOMPARE(mnemonics.size(), 5);
    QVERIFY(!mnemonics.contains(QString()));
    QCOMPARE(mnemonics.removeDuplicates(), 0);
}

QTEST_MAIN(CMainWindowTest)

#include "tst_mainwindow.moc"
