#include "viewer/pluginsystem/pluginspec.h"

#include "core/iplugin.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace Viewer::PluginSystem;

class CPluginSpecTest : public QObject
{
    Q_OBJECT

private slots:
    void readsMetaData();
    void refusesFaultyMetaData_data();
    void refusesFaultyMetaData();
};

static CPluginSpec readSpec(const QByteArray &keys)
{
    return CPluginSpec::createFromMetaData(
        "/plugins/libsample.so",
        {{"IID", NUVEX_VIEWER_PLUGIN_IID}, {"MetaData", QJsonDocument::fromJson(keys).object()}});
}

void CPluginSpecTest::readsMetaData()
{
    const CPluginSpec spec = readSpec(R"({
        "Name": "Sample", "Version": "2.3.4", "CompatVersion": "2.0", "Required": true,
        "Description": "Does it", "Vendor": "Us",
        "Dependencies": [{"Name": "Other", "Version": "1.5"}]})");
    QCOMPARE(spec.getError(), QString());
    QCOMPARE(spec.getState(), EPluginState::Found);
    QCOMPARE(spec.getName(), "Sample");
    QCOMPARE(spec.getVersion(), QVersionNumber(2, 3, 4));
    QCOMPARE(spec.getCompatVersion(), QVersionNumber(2, 0));
    QVERIFY(spec.isRequired());
    QVERIFY(!spec.isBuiltIn());
    QCOMPARE(spec.getDependencies().size(), 1);
    QCOMPARE(spec.getDependencies().constFirst().name, "Other");
    QCOMPARE(spec.getDependencies().constFirst().version, QVersionNumber(1, 5));
}

void CPluginSpecTest::refusesFaultyMetaData_data()
{
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("nothing at all") << QByteArray("{}") << "libsample"
                                    << "no \"Name\"";
    QTest::newRow("version missing") << QByteArray(R"({"Name": "S", "CompatVersion": "1"})") << "S"
                                     << "\"Version\" of \"S\"";
    QTest::newRow("version with a suffix")
        << QByteArray(R"({"Name": "S", "Version": "1.0-beta", "CompatVersion": "1"})") << "S"
        << "1.0-beta";
    QTest::newRow("compatible version is a number")
        << QByteArray(R"({"Name": "S", "Version": "1.0", "CompatVersion": 1})") << "S"
        << "\"CompatVersion\"";
    QTest::newRow("dependencies are an object")
        << QByteArray(R"({"Name": "S", "Version": "1", "CompatVersion": "1", "Dependencies": {}})")
        << "S"
        << "\"Dependencies\"";
    QTest::newRow("dependency is a text") << QByteArray(
        R"({"Name": "S", "Version": "1", "CompatVersion": "1", "Dependencies": ["Other"]})")
                                          << "S"
                                          << "dependency";
    QTest::newRow("dependency without version")
        << QByteArray(R"({"Name": "S", "Version": "1", "CompatVersion": "1",
                          "Dependencies": [{"Name": "Other"}]})")
        << "S"
        << "\"Version\" of \"Other\"";
}

void CPluginSpecTest::refusesFaultyMetaData()
{
    QFETCH(const QByteArray, keys);
    QFETCH(const QString, name);
    QFETCH(const QString, reason);
    const CPluginSpec spec = readSpec(keys);
    QVERIFY(spec.hasFailed());
    QCOMPARE(spec.getName(), name);
    QVERIFY2(spec.getError().contains(reason), qPrintable(spec.getError()));
}

QTEST_GUILESS_MAIN(CPluginSpecTest)

#include "tst_pluginspec.moc"
