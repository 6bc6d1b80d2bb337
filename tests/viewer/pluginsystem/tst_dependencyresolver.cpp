#include "viewer/pluginsystem/dependencyresolver.h"

#include "core/iplugin.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QtTest>

using namespace Viewer::PluginSystem;

using Names = QStringList;

class CDependencyResolverTest : public QObject
{
    Q_OBJECT

private slots:
    void ordersByDependencies_data();
    void ordersByDependencies();
    void checksVersions_data();
    void checksVersions();
    void namesTheWholeCircle();
    void firstOfTwoNamesWins();
    void soundOneWinsOverABrokenOne();
    void viewerPartsCannotBeReplaced();
};

// "a: b, c" is the plug-in a, which needs b and c at version 1.0.0.
static CPluginSpec makeSpec(const QString &text, const QString &path = "/plugins/x.so")
{
    QJsonArray dependencies;
    for (const QString &name : text.section(": ", 1).split(", ", Qt::SkipEmptyParts))
        dependencies.append(QJsonObject{{"Name", name}, {"Version", "1.0.0"}});
    const QJsonObject keys{{"Name", text.section(": ", 0, 0)},
                           {"Version", "1.0.0"},
                           {"CompatVersion", "1.0.0"},
                           {"Dependencies", dependencies}};
    return CPluginSpec::createFromMetaData(path,
                                           {{"IID", NUVEX_VIEWER_PLUGIN_IID}, {"MetaData", keys}});
}

void CDependencyResolverTest::ordersByDependencies_data()
{
    QTest::addColumn<Names>("found");
    QTest::addColumn<Names>("order");
    QTest::newRow("none") << Names() << Names();
    QTest::newRow("independent ones stay as found") << Names{"b", "a"} << Names{"b", "a"};
    QTest::newRow("chain found backwards") << Names{"a: b", "b: c", "c"} << Names{"c", "b", "a"};
    QTest::newRow("diamond") << Names{"top: left, right", "left: base", "right: base", "base"}
                             << Names{"base", "left", "right", "top"};
    QTest::newRow("chain that hangs in the air") << Names{"a: b", "b: gone", "c"} << Names{"c"};
    QTest::newRow("needs itself") << Names{"a: a", "b"} << Names{"b"};
    QTest::newRow("circle, with one that needs it and one that does not")
        << Names{"a: b", "b: c", "c: b", "d"} << Names{"d"};
}

void CDependencyResolverTest::ordersByDependencies()
{
    QFETCH(const Names, found);
    QFETCH(const Names, order);
    QList<CPluginSpec> specs;
    for (const QString &text : found)
        specs.append(makeSpec(text));
    const QVector<int> places = CDependencyResolver::resolve(specs);
    Names names;
    for (const int place : places)
        names.append(specs.at(place).getName());
    QCOMPARE(names, order);
    for (int place = 0; place < specs.size(); ++place) {
        QCOMPARE(specs.at(place).hasFailed(), !places.contains(place));
        QCOMPARE(specs.at(place).getError().isEmpty(), places.contains(place));
    }
}

void CDependencyResolverTest::checksVersions_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("compatVersion");
    QTest::addColumn<bool>("met");
    QTest::newRow("the same version") << "1.0.0"
                                      << "1.0.0" << true;
    QTest::newRow("newer and compatible") << "1.5.0"
                                          << "0.9" << true;
    QTest::newRow("newer and not compatible") << "2.0.0"
                                              << "1.0.1" << false;
    QTest::newRow("too old") << "0.9.9"
                             << "0.1.0" << false;
}

void CDependencyResolverTest::checksVersions()
{
    QFETCH(const QString, version);
    QFETCH(const QString, compatVersion);
    QFETCH(const bool, met);
    QList<CPluginSpec> specs{makeSpec("user: Host"),
                             CPluginSpec::createBuiltIn("Host", version, compatVersion, {})};
    QCOMPARE(CDependencyResolver::resolve(specs), met ? QVector<int>{0} : QVector<int>());
}

void CDependencyResolverTest::namesTheWholeCircle()
{
    QList<CPluginSpec> specs{makeSpec("a: b"), makeSpec("b: c"), makeSpec("c: a")};
    QVERIFY(CDependencyResolver::resolve(specs).isEmpty());
    for (const CPluginSpec &spec : qAsConst(specs))
        QVERIFY2(spec.getError().contains("a > b > c > a"), qPrintable(spec.getError()));
}

void CDependencyResolverTest::firstOfTwoNamesWins()
{
    QList<CPluginSpec> specs{makeSpec("a", "/first/a.so"), makeSpec("a", "/second/a.so")};
    QCOMPARE(CDependencyResolver::resolve(specs), QVector<int>{0});
    QVERIFY(specs.at(1).getError().contains("/first/a.so"));
}

void CDependencyResolverTest::soundOneWinsOverABrokenOne()
{
    QList<CPluginSpec> specs{CPluginSpec::createBroken("/first/a.so", "It is damaged."),
                             makeSpec("a", "/second/a.so"), makeSpec("b: a")};
    QCOMPARE(CDependencyResolver::resolve(specs), (QVector<int>{1, 2}));
}

void CDependencyResolverTest::viewerPartsCannotBeReplaced()
{
    QList<CPluginSpec> specs{CPluginSpec::createBuiltIn("Host", "1.0.0", "1.0.0", {}),
                             makeSpec("Host")};
    QVERIFY(CDependencyResolver::resolve(specs).isEmpty());
    QCOMPARE(specs.at(0).getState(), EPluginState::Running);
}

QTEST_GUILESS_MAIN(CDependencyResolverTest)

#include "tst_dependencyresolver.moc"
