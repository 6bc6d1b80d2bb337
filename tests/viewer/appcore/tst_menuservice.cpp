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
    void separatesWhatShows();
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

void CMenuServiceTest::separatesWhatShows()
{
    // Three groups and one that is not announced; an upper-case letter is a visible entry, a
    // lower-case one a hidden one.
    const auto verify = [](const QStringList &groups, const QString &expected) {
        QMenu menu;
        CActionContainer container(&menu, {"0", "1", "2"});
        // The order of the groups counts, not that of their first entries.
        for (int group : {3, 1, 0, 2}) {
            for (const QChar letter : groups.at(group)) {
                auto *const action = new QAction(letter.toUpper(), &menu);
                container.addOwnAction(action, qPrintable(QString::number(group)));
                container.addOwnAction(action, qPrintable(QString::number(group)));
                action->setVisible(letter.isUpper());
            }
        }
        QCOMPARE(look(menu).join(QString()), expected);
        QCOMPARE(menu.menuAction()->isVisible(), !expected.isEmpty());
    };
    verify({"a", "b", "c", "d"}, "");
    verify({"A", "B", "", ""}, "A-B");
    verify({"A", "b", "C", ""}, "A-C");
    verify({"aB", "Cd", "eF", "GH"}, "B-C-F-GH");
}

void CMenuServiceTest::commandStandsForItsSource()
{
    CMenuService service;
    QAction source("Before");
    const auto command = service.registerAction(&source, "Entry", {Ids::GlobalContext});
    const QAction *const action = command->getAction();
    for (const bool on : {false, true}) {
        source.setEnabled(on);
        source.setVisible(on);
        QCOMPARE(action->isEnabled(), on);
        QCOMPARE(action->isVisible(), on);
    }
    source.setText("After");
    QCOMPARE(action->text(), "After");

    const QSignalSpy spy(&source, &QAction::triggered);
    command->getAction()->trigger();
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    command->getAction()->trigger();
    QCOMPARE(spy.count(), 1);

    const auto passive = service.registerAction(&source, "No context", {});
    QVERIFY(!passive->getAction()->isEnabled());
    const auto unknownMenu = service.getActionContainer("No.Such.Menu");
    unknownMenu->addAction(passive, "Any.Group");
    QCOMPARE(service.getActionContainer("No.Such.Menu"), unknownMenu);
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
