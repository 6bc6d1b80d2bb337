#include "viewer/pluginsystem/dependencyresolver.h"

#include "core/iplugin.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QtTest>

using namespace Viewer::PluginSystem;

class CDependencyResolverTest : public QObject
{
    Q_OBJECT

private slots:
    void ordersByDependencies_data();
    void ordersByDependencies();
    void refusesFaultyMetaData();
};

// "a: b, c" is the plug-in a, which needs b and c at version 1.0.0; @p key gets another value.
static CPluginSpec makeSpec(const QString &text, const QString &key = "Required",
                            const QJsonValue &value = false)
{
    QJsonArray dependencies;
    for (const QString &name : text.section(": ", 1).split(", ", Qt::SkipEmptyParts))
        dependencies.append(QJsonObject{{"Name", name}, {"Version", "1.0.0"}});
    QJsonObject keys{{"Name", text.section(": ", 0, 0)},
                     {"Version", "1.0.0"},
                     {"CompatVersion", "1.0.0"},
                     {"Dependencies", dependencies}};
    keys.insert(key, value);
    return CPluginSpec::createFromMetaData("/plugins/libsample.so",
                                           {{"IID", NUVEX_VIEWER_PLUGIN_IID}, {"MetaData", keys}});
}

void CDependencyResolverTest::ordersByDependencies_data()
{
    QTest::addColumn<QStringList>("found");
    QTest::addColumn<QStringList>("order");
    const auto row = [](const char *name, const QStringList &found, const QStringList &order) {
        QTest::newRow(name) << found << order;
    };
    row("chain found backwards", {"a: b", "b: c", "c"}, {"c", "b", "a"});
    row("diamond", {"top: left, right", "left: base", "right: base", "base"},
        {"base", "left", "right", "top"});
    row("chain that hangs in the air", {"a: b", "b: gone", "c"}, {"c"});
    row("needs itself", {"a: a", "b"}, {"b"});
    row("replaces a part of the viewer", {"Viewer", "a: Viewer"}, {"a"});
    row("circle, with one that needs it", {"a: b", "b: c", "c: b", "d"}, {"d"});
}

void CDependencyResolverTest::ordersByDependencies()
{
    QFETCH(const QStringList, found);
    QFETCH(const QStringList, order);
    QList<CPluginSpec> specs{CPluginSpec::createBuiltIn("Viewer", "1.0.0", "1.0.0", {})};
    for (const QString &text : found)
        specs.append(makeSpec(text));
    QStringList names;
    const QVector<int> places = CDependencyResolver::resolve(specs);
    for (const int place : places)
        names.append(specs.at(place).getName());
    QCOMPARE(names, order);
    for (int place = 1; place < specs.size(); ++place)
        QCOMPARE(specs.at(place).getError().isEmpty(), places.contains(place));
}

void CDependencyResolverTest::refusesFaultyMetaData()
{
    const QMultiMap<QString, QJsonValue> faults{{"Name", QJsonValue::Undefined},
                                                {"Version", "1.0-beta"},
                                                {"CompatVersion", 1},
                                                {"Dependencies", QJsonObject()},
                                                {"Dependencies", QJsonArray{"Other"}}};
    for (auto fault = faults.cbegin(); fault != faults.cend(); ++fault)
        QVERIFY2(makeSpec("a", fault.key(), *fault).hasFailed(), qPrintable(fault.key()));
}

QTEST_GUILESS_MAIN(CDependencyResolverTest)

#include "tst_dependencyresolver.moc"
