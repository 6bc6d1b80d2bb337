#include "viewer/appcore/modaldialogwatcher.h"

#include <QDialog>
#include <QtTest>

#include <memory>

using Viewer::AppCore::CModalDialogWatcher;

class CModalDialogWatcherTest : public QObject
{
    Q_OBJECT

private slots:
    void noticesModalDialogs();
    void pagesOfAWizardAreOneDialog();
    void otherWindowsDoNotCount();
    void ownDialogsDoNotCount();
    void noticesADeletedDialog();
};

static std::unique_ptr<QDialog> makeDialog()
{
    auto dialog = std::make_unique<QDialog>();
    dialog->setModal(true);
    return dialog;
}

void CModalDialogWatcherTest::noticesModalDialogs()
{
    CModalDialogWatcher watcher;
    QSignalSpy spy(&watcher, &CModalDialogWatcher::dialogVisibleChanged);
    const auto dialog = makeDialog();
    dialog->show();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.takeFirst().at(0).toBool(), true);
    QVERIFY(watcher.isDialogVisible());
    dialog->hide();
    QVERIFY(spy.wait());
    QCOMPARE(spy.takeFirst().at(0).toBool(), false);
    QVERIFY(!watcher.isDialogVisible());
}

void CModalDialogWatcherTest::pagesOfAWizardAreOneDialog()
{
    CModalDialogWatcher watcher;
    QSignalSpy spy(&watcher, &CModalDialogWatcher::dialogVisibleChanged);
    const auto first = makeDialog();
    const auto second = makeDialog();
    first->show();
    first->hide();
    QVERIFY(watcher.isDialogVisible());
    second->show();
    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), 1);
    second->hide();
    QVERIFY(spy.wait());
    QCOMPARE(spy.count(), 2);
}

void CModalDialogWatcherTest::otherWindowsDoNotCount()
{
    CModalDialogWatcher watcher;
    const QSignalSpy spy(&watcher, &CModalDialogWatcher::dialogVisibleChanged);
    QDialog modeless;
    modeless.show();
    QWidget window;
    window.show();
    QVERIFY(!watcher.isDialogVisible());
    QCOMPARE(spy.count(), 0);
}

void CModalDialogWatcherTest::ownDialogsDoNotCount()
{
    CModalDialogWatcher watcher;
    const auto dialog = makeDialog();
    CModalDialogWatcher::markAsOwn(dialog.get());
    dialog->show();
    QVERIFY(!watcher.isDialogVisible());
}

void CModalDialogWatcherTest::noticesADeletedDialog()
{
    CModalDialogWatcher watcher;
    auto dialog = makeDialog();
    dialog->show();
    QVERIFY(watcher.isDialogVisible());
    dialog.reset();
    QTRY_VERIFY(!watcher.isDialogVisible());
}

QTEST_MAIN(CModalDialogWatcherTest)

#include "tst_modaldialogwatcher.moc"
