#include "viewer/appcore/command.h"

#include <QDialog>
#include <QtTest>

#include <memory>

using Viewer::AppCore::CCommand;

class CCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void mirrorsFromTheStart();
    void followsEachChange();
    void staysDisabledWithoutAContext();
    void triggersTheSource();
    void doesNotTriggerWhileAModalDialogIsOpen();
    void losesItsActionWithTheSource();
};

static QIcon makeIcon(const QColor &color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return QIcon(pixmap);
}

static QColor iconColor(const QAction *action)
{
    return action->icon().pixmap(16, 16).toImage().pixelColor(8, 8);
}

void CCommandTest::mirrorsFromTheStart()
{
    QAction source(makeIcon(Qt::red), "&Text");
    source.setToolTip("Tip");
    source.setEnabled(false);
    source.setVisible(false);
    const CCommand command(&source, "Some.Id", true);
    QCOMPARE(command.getId(), Core::CId("Some.Id"));
    QVERIFY(command.getAction() != &source);
    QCOMPARE(command.getAction()->text(), "&Text");
    QCOMPARE(command.getAction()->toolTip(), "Tip");
    QCOMPARE(iconColor(command.getAction()), QColor(Qt::red));
    QVERIFY(!command.getAction()->isEnabled());
    QVERIFY(!command.getAction()->isVisible());
}

void CCommandTest::followsEachChange()
{
    QAction source("Before");
    const CCommand command(&source, "Some.Id", true);
    const QAction *const action = command.getAction();
    source.setText("After");
    QCOMPARE(action->text(), "After");
    source.setIcon(makeIcon(Qt::blue));
    QCOMPARE(iconColor(action), QColor(Qt::blue));
    source.setVisible(false);
    QVERIFY(!action->isVisible());
    source.setVisible(true);
    QVERIFY(action->isVisible());
    source.setEnabled(false);
    QVERIFY(!action->isEnabled());
    source.setEnabled(true);
    QVERIFY(action->isEnabled());
}

void CCommandTest::staysDisabledWithoutAContext()
{
    QAction source("Text");
    const CCommand command(&source, "Some.Id", false);
    QVERIFY(!command.getAction()->isEnabled());
    source.setEnabled(false);
    source.setEnabled(true);
    QVERIFY(!command.getAction()->isEnabled());
}

void CCommandTest::triggersTheSource()
{
    QAction source("Text");
    const CCommand command(&source, "Some.Id", true);
    const QSignalSpy spy(&source, &QAction::triggered);
    command.getAction()->trigger();
    QCOMPARE(spy.count(), 1);
    source.setEnabled(false);
    command.getAction()->trigger();
    QCOMPARE(spy.count(), 1);
}

void CCommandTest::doesNotTriggerWhileAModalDialogIsOpen()
{
    QAction source("Text");
    const CCommand command(&source, "Some.Id", true);
    const QSignalSpy spy(&source, &QAction::triggered);
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    command.getAction()->trigger();
    QCOMPARE(spy.count(), 0);
    dialog.hide();
    command.getAction()->trigger();
    QCOMPARE(spy.count(), 1);
}

void CCommandTest::losesItsActionWithTheSource()
{
    auto source = std::make_unique<QAction>("Text");
    const CCommand command(source.get(), "Some.Id", true);
    QWidget window;
    window.addAction(command.getAction());
    source.reset();
    QVERIFY(!command.getAction());
    QVERIFY(window.actions().isEmpty());
}

QTEST_MAIN(CCommandTest)

#include "tst_command.moc"
