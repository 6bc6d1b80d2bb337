#include "viewer/pluginsystem/plugininitializer.h"
#include "viewer/pluginsystem/pluginmanager.h"

#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace Viewer::PluginSystem;

class CPluginManagerTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void leadsPluginsThroughTheirLife();
    void namesEachFailure_data();
    void namesEachFailure();
    void reportsDamagedLibraries_data();
    void reportsDamagedLibraries();
    void passesOverOtherLibraries();
    void requiredFailureRunsNoCode();
    void requiredRefusalEndsTheStart();
    void failedPluginLeavesNoService_data();
    void failedPluginLeavesNoService();
    void leavesOutThoseThatDependOnAFailure();
    void secondCopyDoesNotEndTheStart();
    void servicesCanBeChildrenOfTheirPlugin();

private:
    bool start(const QStringList &plugins);
    static QString folder(const QString &plugin);
    static QStringList calls();

    std::unique_ptr<CPluginInitializer> m_initializer;
    std::unique_ptr<CPluginManager> m_manager;
};

void CPluginManagerTest::init()
{
    m_manager.reset();
    m_initializer = std::make_unique<CPluginInitializer>();
    m_manager = std::make_unique<CPluginManager>(m_initializer.get());
    m_manager->addBuiltIn(CPluginSpec::createBuiltIn("Host", "2.1.0", "2.0.0", "The test"));
    qApp->setProperty("calls", QStringList());
}

QString CPluginManagerTest::folder(const QString &plugin)
{
    return QDir(PLUGIN_ROOT).filePath(plugin);
}

QStringList CPluginManagerTest::calls()
{
    return qApp->property("calls").toStringList();
}

bool CPluginManagerTest::start(const QStringList &plugins)
{
    QStringList folders;
    for (const QString &plugin : plugins)
        folders.append(folder(plugin));
    return m_manager->start(folders, "ko");
}

void CPluginManagerTest::leadsPluginsThroughTheirLife()
{
    // Found in the wrong order, started in that of the dependencies.
    QVERIFY(start({"dependent", "good"}));
    QCOMPARE(m_manager->getFailures(), QStringList());
    QCOMPARE(calls(),
             QStringList({"good.construct", "dependent.construct", "good.setLanguage ko",
                          "dependent.setLanguage ko", "good.initialize", "dependent.initialize",
                          "good.postInitialize", "dependent.postInitialize"}));
    QCOMPARE(m_initializer->getServices().size(), 2);

    qApp->setProperty("calls", QStringList());
    m_manager->shutDown();
    QCOMPARE(calls(),
             QStringList({"dependent.aboutToUninitialize", "good.aboutToUninitialize",
                          "dependent.unInitialize", "good.unInitialize", "dependent.destroy",
                          "good.destroy"}));
    QCOMPARE(m_initializer->getServices().size(), 0);
    m_manager->shutDown();
    QCOMPARE(calls().size(), 6);
}

void CPluginManagerTest::namesEachFailure_data()
{
    QTest::addColumn<QString>("plugin");
    QTest::addColumn<QString>("reason");
    QTest::newRow("wrong interface id") << "wrong_interface"
                                        << "IPlugin/5.0";
    QTest::newRow("missing dependency") << "missing"
                                        << "\"nowhere\" 1.0.0, which is not there";
    QTest::newRow("dependency older than wanted") << "too_new"
                                                  << "\"Host\" 3.0.0";
    QTest::newRow("dependency no longer compatible") << "too_old"
                                                     << "compatible down to 2.0.0";
    QTest::newRow("refuses to initialize") << "refuses"
                                           << "could not be initialized";
    QTest::newRow("throws") << "throws"
                            << "out of order";
    QTest::newRow("refuses late") << "refuses_late"
                                  << "could not be connected";
}

void CPluginManagerTest::namesEachFailure()
{
    QFETCH(const QString, plugin);
    QFETCH(const QString, reason);
    QVERIFY2(start({plugin, "good"}), "a plug-in that is not required must not end the start");
    QCOMPARE(m_manager->getFailures().size(), 1);
    const QString failure = m_manager->getFailures().constFirst();
    QVERIFY2(failure.contains('"' + plugin + '"'), qPrintable(failure));
    QVERIFY2(failure.contains(plugin + ".so"), qPrintable(failure));
    QVERIFY2(failure.contains(reason), qPrintable(failure));
    QVERIFY(calls().contains("good.postInitialize"));
}

void CPluginManagerTest::reportsDamagedLibraries_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("empty file") << 0;
    QTest::newRow("cut off in the header") << 40;
    QTest::newRow("cut off in the code") << 6000;
    QTest::newRow("text") << -1;
}

void CPluginManagerTest::reportsDamagedLibraries()
{
    QFETCH(const int, size);
    QFile library(folder("good") + "/good.so");
    QVERIFY(library.open(QIODevice::ReadOnly));
    const QTemporaryDir directory;
    QFile damaged(directory.filePath("damaged.so"));
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.write(size < 0 ? QByteArray("This is no library.\n") : library.read(size));
    damaged.close();

    QVERIFY(m_manager->start({directory.path(), folder("good")}, "en"));
    QCOMPARE(m_manager->getFailures().size(), 1);
    QVERIFY(m_manager->getFailures().constFirst().contains("damaged.so"));
    QVERIFY(calls().contains("good.postInitialize"));
}

void CPluginManagerTest::passesOverOtherLibraries()
{
    const QTemporaryDir directory;
    QVERIFY(QFile::copy(HOSTAPI_LIBRARY_FILE, directory.filePath("libhostapi.so")));
    const QString platforms
        = QLibraryInfo::location(QLibraryInfo::PluginsPath) + "/platforms/libqminimal.so";
    QVERIFY(QFile::copy(platforms, directory.filePath("libqminimal.so")));
    QVERIFY(QFile::copy(folder("foreign") + "/foreign.so", directory.filePath("foreign.so")));
    QVERIFY(m_manager->start({directory.path(), directory.filePath("nowhere")}, "en"));
    QCOMPARE(m_manager->getFailures(), QStringList());
    QCOMPARE(m_manager->getSpecs().size(), 1);
}

void CPluginManagerTest::requiredFailureRunsNoCode()
{
    QVERIFY(!start({"good", "required_missing"}));
    QCOMPARE(calls(), QStringList());
    QCOMPARE(m_manager->getFailures().size(), 1);
    QVERIFY(m_manager->getFailures().constFirst().contains("required_missing"));
}

void CPluginManagerTest::requiredRefusalEndsTheStart()
{
    QVERIFY(!start({"good", "required_refuses"}));
    m_manager->shutDown();
    QVERIFY(calls().contains("good.destroy"));
    QVERIFY(calls().contains("required_refuses.destroy"));
}

void CPluginManagerTest::failedPluginLeavesNoService_data()
{
    QTest::addColumn<QString>("plugin");
    QTest::newRow("refused") << "refuses";
    QTest::newRow("thrown") << "throws";
    QTest::newRow("refused late") << "refuses_late";
}

void CPluginManagerTest::failedPluginLeavesNoService()
{
    QFETCH(const QString, plugin);
    QVERIFY(start({"good", plugin}));
    QCOMPARE(m_initializer->getServices().size(), 1);
    QCOMPARE(calls().count(plugin + ".destroy"), 1);
}

void CPluginManagerTest::leavesOutThoseThatDependOnAFailure()
{
    QVERIFY(start({"needs_refuses", "refuses", "needs_refuses_late", "refuses_late"}));
    QCOMPARE(m_manager->getFailures().size(), 4);
    QVERIFY(!calls().contains("needs_refuses.initialize"));
    QVERIFY(!calls().contains("needs_refuses_late.postInitialize"));
    QVERIFY(calls().contains("needs_refuses_late.unInitialize"));
    QCOMPARE(m_initializer->getServices().size(), 0);
}

void CPluginManagerTest::secondCopyDoesNotEndTheStart()
{
    const QTemporaryDir directory;
    QVERIFY(
        QFile::copy(folder("required_good") + "/required_good.so", directory.filePath("copy.so")));
    // The folder given twice leads to the same file: no second copy.
    QVERIFY(m_manager->start({folder("required_good"), folder("required_good"), directory.path()},
                             "en"));
    QCOMPARE(m_manager->getFailures().size(), 1);
    QVERIFY(m_manager->getFailures().constFirst().contains("copy.so"));
    QCOMPARE(calls().count("required_good.construct"), 1);
}

void CPluginManagerTest::servicesCanBeChildrenOfTheirPlugin()
{
    QVERIFY(start({"good"}));
    const QWeakPointer<Core::Service::IService> service = m_initializer->getServices().constFirst();
    QVERIFY(service);
    m_manager.reset();
    QVERIFY(!service);
}

QTEST_GUILESS_MAIN(CPluginManagerTest)

#include "tst_pluginmanager.moc"
