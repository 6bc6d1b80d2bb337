#include "viewer/appcore/actioncontainer.h"
#include "viewer/appcore/command.h"

#include <QMenu>
#include <QtTest>

#include <memory>

using namespace Viewer::AppCore;

class CActionContainerTest : public QObject
{
    Q_OBJECT

private slots:
    void separatesWhatShows_data();
    void separatesWhatShows();
    void followsVisibility();
    void keepsTheOrderOfGroups();
    void emptyMenuIsHidden();
    void deletedActionTakesItsEntryAlong();
    void ignoresWhatItCannotUse();
};

// What a person sees of the menu: texts, and "-" for a separator.
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

void CActionContainerTest::separatesWhatShows_data()
{
    // Three groups; an upper-case letter is a visible entry, a lower-case one a hidden one.
    QTest::addColumn<QStringList>("groups");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("nothing") << QStringList{"", "", ""} << QStringList();
    QTest::newRow("all hidden") << QStringList{"a", "b", "c"} << QStringList();
    QTest::newRow("one group") << QStringList{"AB", "", ""} << QStringList{"A", "B"};
    QTest::newRow("two groups") << QStringList{"A", "B", ""} << QStringList{"A", "-", "B"};
    QTest::newRow("hidden last group") << QStringList{"A", "b", ""} << QStringList{"A"};
    QTest::newRow("hidden first group") << QStringList{"a", "B", ""} << QStringList{"B"};
    QTest::newRow("hidden group in the middle")
        << QStringList{"A", "b", "C"} << QStringList{"A", "-", "C"};
    QTest::newRow("half hidden") << QStringList{"aB", "Cd", "eF"}
                                 << QStringList{"B", "-", "C", "-", "F"};
}

void CActionContainerTest::separatesWhatShows()
{
    QFETCH(const QStringList, groups);
    QFETCH(const QStringList, expected);
    QMenu menu;
    CActionContainer container(&menu, {"1", "2", "3"});
    const char *const ids[] = {"1", "2", "3"};
    for (int group = 0; group < groups.size(); ++group) {
        for (const QChar letter : groups.at(group)) {
            auto *const action = new QAction(letter.toUpper(), &menu);
            action->setVisible(letter.isUpper());
            container.addOwnAction(action, ids[group]);
        }
    }
    QCOMPARE(look(menu), expected);
    QCOMPARE(container.hasVisibleEntries(), !expected.isEmpty());
    QCOMPARE(menu.menuAction()->isVisible(), !expected.isEmpty());
}

void CActionContainerTest::followsVisibility()
{
    QMenu menu;
    CActionContainer container(&menu, {"own", "plug-ins"});
    QAction own("Own");
    QAction foreign("Foreign");
    foreign.setVisible(false);
    container.addOwnAction(&own, "own");
    container.addAction(QSharedPointer<CCommand>::create(&foreign, "Foreign", true), "plug-ins");
    QCOMPARE(look(menu), QStringList({"Own"}));
    foreign.setVisible(true);
    QCOMPARE(look(menu), QStringList({"Own", "-", "Foreign"}));
    foreign.setVisible(false);
    QCOMPARE(look(menu), QStringList({"Own"}));
}

void CActionContainerTest::keepsTheOrderOfGroups()
{
    QMenu menu;
    CActionContainer container(&menu, {"top", "bottom"});
    QAction first("First");
    QAction second("Second");
    QAction third("Third");
    QAction fourth("Fourth");
    container.addOwnAction(&fourth, "unknown so far");
    container.addOwnAction(&third, "bottom");
    container.addOwnAction(&first, "top");
    container.addOwnAction(&second, "top");
    container.addOwnAction(&second, "top");
    QCOMPARE(look(menu), QStringList({"First", "Second", "-", "Third", "-", "Fourth"}));
}

void CActionContainerTest::emptyMenuIsHidden()
{
    QMenu menu;
    CActionContainer container(&menu, {"group"});
    QVERIFY(!menu.menuAction()->isVisible());
    QAction action("Action");
    container.addOwnAction(&action, "group");
    QVERIFY(menu.menuAction()->isVisible());
}

void CActionContainerTest::deletedActionTakesItsEntryAlong()
{
    QMenu menu;
    CActionContainer container(&menu, {"own", "plug-ins"});
    QAction own("Own");
    container.addOwnAction(&own, "own");
    auto foreign = std::make_unique<QAction>("Foreign");
    container.addAction(QSharedPointer<CCommand>::create(foreign.get(), "Foreign", true),
                        "plug-ins");
    foreign.reset();
    QCOMPARE(look(menu), QStringList({"Own"}));
}

void CActionContainerTest::ignoresWhatItCannotUse()
{
    auto menu = std::make_unique<QMenu>();
    CActionContainer container(menu.get(), {"group"});
    container.addAction({}, "group");
    container.addAction(QSharedPointer<CCommand>::create(nullptr, "Dead", true), "group");
    QCOMPARE(look(*menu), QStringList());
    menu.reset();
    QAction action("Action");
    container.addOwnAction(&action, "group");
    QVERIFY(!container.hasVisibleEntries());
}

QTEST_MAIN(CActionContainerTest)

#include "tst_actioncontainer.moc"
