#include "viewer/appcore/actioncontainer.h"
#include "viewer/appcore/menuservice.h"

#include "appcore/icommand.h"

#include <QAction>
#include <QDialog>
#include <QMenu>
#include <QtTest>

#include <memory>

using namespace Viewer::AppCore;

/// What a plug-in does with the menus, and what a person then sees of them.
class CMenuServiceTest : public QObject
{
    Q_OBJECT

private slots:
    void commandStandsForItsSource();
    void deletedSourceTakesItsEntryAlong();
};

// Texts, and "-" for a separator.
static QStringList look(const QMenu &menu)
{
    QStringList shown;
    const QList<QAction *> actions = menu.actions();
    for (const QAction *action : actions) {
        if (action->isVisible())
            shown.append(action->isSeparator() ? QString("-") : action->text());
    }
    return shown;
}

void CMenuServiceTest::commandStandsForItsSource()
{
    CMenuService service;
    QAction source("Before");
    const auto command = service.registerAction(&source, "Entry", {Ids::GLOBAL_CONTEXT});
    const QAction *const action = command->getAction();
    for (const bool on : {false, true}) {
        source.setEnabled(on);
        source.setVisible(on);
        QCOMPARE(action->isEnabled(), on);
        QCOMPARE(action->isVisible(), on);
    }
    const QSignalSpy spy(&source, &QAction::triggered);
    command->getAction()->trigger();
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    command->getAction()->trigger();
    QCOMPARE(spy.count(), 1);

    const auto passive = service.registerAction(&source, "No context", {});
    QVERIFY(!passive->getAction()->isEnabled());
    service.getActionContainer("No.Such.Menu")->addAction(passive, "Any.Group");
}

void CMenuServiceTest::deletedSourceTakesItsEntryAlong()
{
    QMenu menu;
    CMenuService service;
    const auto container = service.addMenu("Menu", &menu, {"own", "plug-ins"});
    QAction own("Own");
    container->addOwnAction(&own, "own");
    auto source = std::make_unique<QAction>("Foreign");
    const auto command = service.registerAction(source.get(), "Entry", {});
    service.getActionContainer("Menu")->addAction(command, "plug-ins");
    QCOMPARE(look(menu), QStringList({"Own", "-", "Foreign"}));
    QCOMPARE(service.findAction("Entry"), command->getAction());
    source.reset();
    QCOMPARE(look(menu), QStringList({"Own"}));
    QVERIFY(!service.findAction("Entry"));
    container->addAction(command, "plug-ins");
    container->addAction({}, "plug-ins");
    QCOMPARE(look(menu), QStringList({"Own"}));
}

QTEST_MAIN(CMenuServiceTest)

#include "tst_menuservice.moc"
