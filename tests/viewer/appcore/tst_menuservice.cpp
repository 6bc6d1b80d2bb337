#include "viewer/appcore/actioncontainer.h"
#include "viewer/appcore/menuservice.h"

#include "appcore/icommand.h"

#include <QAction>
#include <QDialog>
#include <QMenu>
#include <QtTest>

#include <memory>
#include <vector>

using namespace Viewer::AppCore;

/// What a plug-in does with the menus, and what a person then sees of them.
class CMenuServiceTest : public QObject
{
    Q_OBJECT

private slots:
    void commandStandsForItsSource();
    void deletedSourceTakesItsEntryAlong();
    void idStaysWithItsAction_data();
    void idStaysWithItsAction();
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

void CMenuServiceTest::idStaysWithItsAction_data()
{
    // Registered under one id, in this order: "0" is no action; "-" deletes the first one.
    QTest::addColumn<QString>("registered");
    QTest::addColumn<QString>("found");
    QTest::addColumn<QStringList>("shown");
    QTest::newRow("no action") << "0" << QString() << QStringList();
    QTest::newRow("no action leaves the id free") << "0a"
                                                  << "a" << QStringList{"a"};
    QTest::newRow("no action takes no id away") << "a0"
                                                << "a" << QStringList{"a"};
    QTest::newRow("taken") << "ab"
                           << "a" << QStringList{"a", "b"};
    QTest::newRow("free again") << "a-b"
                                << "b" << QStringList{"b"};
}

void CMenuServiceTest::idStaysWithItsAction()
{
    QFETCH(QString, registered);
    QMenu menu;
    CMenuService service;
    service.addMenu("Menu", &menu, {"group"});
    std::vector<std::unique_ptr<QAction>> sources;
    QStringList triggered;
    for (const QChar name : registered) {
        if (name == '-') {
            sources.front().reset();
            continue;
        }
        if (name != '0') {
            sources.push_back(std::make_unique<QAction>(QString(name)));
            connect(sources.back().get(), &QAction::triggered,
                    [&triggered, name] { triggered.append(name); });
        }
        if (service.findAction("Entry"))
            QTest::ignoreMessage(QtWarningMsg, "The command id \"Entry\" is taken.");
        const auto command = service.registerAction(name == '0' ? nullptr : sources.back().get(),
                                                    "Entry", {Ids::GLOBAL_CONTEXT});
        service.getActionContainer("Menu")->addAction(command, "group");
    }
    const QAction *const found = service.findAction("Entry");
    QTEST(found ? found->text() : QString(), "found");
    QTEST(look(menu), "shown");
    for (QAction *const entry : menu.actions())
        entry->trigger();
    QTEST(triggered, "shown");
}

QTEST_MAIN(CMenuServiceTest)

#include "tst_menuservice.moc"
