#include "viewer/appcore/actioncontainer.h"
#include "viewer/appcore/menuservice.h"

#include "appcore/icommand.h"

#include <QAction>
#include <QMenu>
#include <QtTest>

#include <memory>

using namespace Viewer::AppCore;

class CMenuServiceTest : public QObject
{
    Q_OBJECT

private slots:
    void knowsPublishedMenus();
    void unknownMenuIsUsable();
    void onlyTheGlobalContextIsActive_data();
    void onlyTheGlobalContextIsActive();
    void findsCommands();
};

void CMenuServiceTest::knowsPublishedMenus()
{
    QMenu menu;
    CMenuService service;
    service.addMenu(Ids::ToolsMenu, &menu, {Ids::ToolsGroup});
    QAction source("Entry");
    const auto command = service.registerAction(&source, "Entry.Start", {Ids::GlobalContext});
    service.getActionContainer(Ids::ToolsMenu)->addAction(command, Ids::ToolsGroup);
    QVERIFY(menu.actions().contains(command->getAction()));
}

void CMenuServiceTest::unknownMenuIsUsable()
{
    CMenuService service;
    const auto container = service.getActionContainer("No.Such.Menu");
    QVERIFY(container);
    QCOMPARE(service.getActionContainer("No.Such.Menu"), container);
    QAction source("Entry");
    container->addAction(service.registerAction(&source, "Entry.Start", {}), "Any.Group");
    QVERIFY(container.dynamicCast<CActionContainer>()->hasVisibleEntries());
}

void CMenuServiceTest::onlyTheGlobalContextIsActive_data()
{
    QTest::addColumn<QList<Core::CId>>("contexts");
    QTest::addColumn<bool>("active");
    QTest::newRow("none") << QList<Core::CId>() << false;
    QTest::newRow("global") << QList<Core::CId>{"AppCore.Global.Context"} << true;
    QTest::newRow("another") << QList<Core::CId>{"Other.Context"} << false;
    QTest::newRow("both") << QList<Core::CId>{"Other.Context", "AppCore.Global.Context"} << true;
}

void CMenuServiceTest::onlyTheGlobalContextIsActive()
{
    QFETCH(const QList<Core::CId>, contexts);
    QFETCH(const bool, active);
    CMenuService service;
    QAction source("Entry");
    QCOMPARE(service.registerAction(&source, "Entry.Start", contexts)->getAction()->isEnabled(),
             active);
}

void CMenuServiceTest::findsCommands()
{
    CMenuService service;
    auto source = std::make_unique<QAction>("Entry");
    const auto command = service.registerAction(source.get(), "Entry.Start", {});
    QCOMPARE(service.findAction("Entry.Start"), command->getAction());
    QVERIFY(!service.findAction("entry.start"));
    source.reset();
    QVERIFY(!service.findAction("Entry.Start"));
}

QTEST_MAIN(CMenuServiceTest)

#include "tst_menuservice.moc"
