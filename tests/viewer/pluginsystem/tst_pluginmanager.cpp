#include "viewer/pluginsystem/dependencyresolver.h"
#include "viewer/pluginsystem/plugininitializer.h"
#include "viewer/pluginsystem/pluginmanager.h"

#include "core/iplugin.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <sys/stat.h>

using namespace Viewer::PluginSystem;

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

/// Looks at the manager, and at the resolver that tells it the order.
class CPluginManagerTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void leadsPluginsThroughTheirLife();
    void namesEachFailure();
    void reportsDamagedAndDoubleLibraries();
    void refusesPluginsOfAnotherQt();
    void loadsNothingThatOthersCanWrite_data();
    void loadsNothingThatOthersCanWrite();
    void endsOrLeavesOutWhatDependsOnAFailure();
    void ordersByDependencies();
    void refusesFaultyMetaData();

private:
    bool start(const QStringList &plugins);
    static QStringList calls() { return qApp->property("calls").toStringList(); }

    QDir m_root{PLUGIN_ROOT};
    CPluginInitializer m_initializer;
    std::unique_ptr<CPluginManager> m_manager;
};

void CPluginManagerTest::init()
{
    m_manager = std::make_unique<CPluginManager>(&m_initializer);
    m_manager->addBuiltIn(CPluginSpec::createBuiltIn("Host", "2.1.0", "2.0.0", "The test"));
    qApp->setProperty("calls", QStringList());
}

bool CPluginManagerTest::start(const QStringList &plugins)
{
    QStringList folders;
    for (const QString &plugin : plugins)
        folders.append(m_root.filePath(plugin));
    return m_manager->start(folders, "ko");
}

void CPluginManagerTest::leadsPluginsThroughTheirLife()
{
    // Found in the wrong order, started in that of the dependencies.
    QVERIFY(start({"dependent", "good"}));
    QCOMPARE(m_manager->getFailures(), QStringList());
    QCOMPARE(m_initializer.getServices().size(), 2);
    m_manager->shutDown();
    QCOMPARE(calls(),
             QStringList({"good.construct", "dependent.construct", "good.setLanguage ko",
                          "dependent.setLanguage ko", "good.initialize", "dependent.initialize",
                          "good.postInitialize", "dependent.postInitialize",
                          "dependent.aboutToUninitialize", "good.aboutToUninitialize",
                          "dependent.unInitialize", "good.unInitialize", "dependent.destroy",
                          "good.destroy"}));
    QCOMPARE(m_initializer.getServices().size(), 0);
}

void CPluginManagerTest::namesEachFailure()
{
    const auto verify = [this](const QString &plugin, const QString &reason) {
        init();
        QVERIFY2(start({plugin, "good"}), "a plug-in that is not required must not end the start");
        QCOMPARE(m_manager->getFailures().size(), 1);
        const QString failure = m_manager->getFailures().constFirst();
        QVERIFY2(failure.contains(plugin + ".so") && failure.contains(reason), qPrintable(failure));
        QVERIFY(calls().contains("good.postInitialize"));
        QCOMPARE(calls().count(plugin + ".destroy"), calls().count(plugin + ".construct"));
        QCOMPARE(m_initializer.getServices().size(), 1);
    };
    verify("wrong_interface", "IPlugin/5.0");
    verify("missing", "\"nowhere\" 1.0.0, which is missing");
    verify("too_new", "\"Host\" 3.0.0");
    verify("too_old", "compatible with 2.0.0 and later");
    verify("refuses", "could not be initialized");
    verify("throws", "out of order");
    verify("refuses_late", "could not be connected");
}

void CPluginManagerTest::reportsDamagedAndDoubleLibraries()
{
    const QTemporaryDir folder;
    QFile library(m_root.filePath("required_good/required_good.so"));
    QVERIFY(library.copy(folder.filePath("copy.so")));
    QVERIFY(library.copy(folder.filePath("cut.so")));
    QVERIFY(QFile::resize(folder.filePath("cut.so"), 6000));
    // Other libraries are passed over in silence.
    QVERIFY(QFile::copy(HOSTAPI_LIBRARY_FILE, folder.filePath("libhostapi.so")));
    QVERIFY(QFile::copy(m_root.filePath("foreign/foreign.so"), folder.filePath("foreign.so")));
    // The folder given twice leads to the same file: no second copy.
    QVERIFY(start({"required_good", "required_good", folder.path(), "nowhere"}));
    QCOMPARE(m_manager->getFailures().filter("cut.so").size(), 1);
    QCOMPARE(m_manager->getFailures().filter("copy.so").size(), 1);
    QCOMPARE(m_manager->getFailures().size(), 2);
    QCOMPARE(calls().count("required_good.postInitialize"), 1);
}

void CPluginManagerTest::refusesPluginsOfAnotherQt()
{
    const int other = 11 - QT_VERSION_MAJOR;
    const auto getName
        = [](int major) { return QString("libQt%1Core.so.%1").arg(major).toLatin1(); };
    QFile library(m_root.filePath("good/good.so"));
    QVERIFY(library.open(QIODevice::ReadOnly));
    const QByteArray own = library.readAll();
    // This Qt finds no metadata in the first two; only the first one needs the other Qt.
    const QByteArray hidden
        = QByteArray(own).replace("QTMETADATA", "OTHER_DATA").replace("qt-project!", "an other Qt");
    const QTemporaryDir folder;
    const auto write = [&folder](const QString &name, const QByteArray &bytes) {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    };
    QVERIFY(hidden != own);
    QVERIFY(
        write("other.so", QByteArray(hidden).replace(getName(QT_VERSION_MAJOR), getName(other))));
    QVERIFY(write("hidden.so", hidden));
    QVERIFY(m_manager->start({folder.path()}, "en"));
    const QString wanted
        = QString(
              "It was built with Qt %1, but this viewer needs plug-ins that were built with Qt %2.")
              .arg(other)
              .arg(QT_VERSION_MAJOR);
    QCOMPARE(m_manager->getFailures().size(), 1);
    QVERIFY(
        m_manager->getFailures().constFirst().endsWith("other.so) is not available. " + wanted));
    // Metadata that can be read have the version, too.
    const QJsonObject keys{{"Name", "x"}, {"Version", "1.0.0"}, {"CompatVersion", "1.0.0"}};
    const QJsonObject metaData{
        {"IID", NUVEX_VIEWER_PLUGIN_IID}, {"version", other << 16}, {"MetaData", keys}};
    QCOMPARE(CPluginSpec::createFromMetaData("/x.so", metaData).getError(), wanted);
}

void CPluginManagerTest::loadsNothingThatOthersCanWrite_data()
{
    QTest::addColumn<int>("folderMode");
    QTest::addColumn<int>("fileMode");
    QTest::addColumn<QString>("owner");
    QTest::addColumn<QString>("reason");
    const QString others = "other than its owner can write";
    QTest::newRow("its own") << 0700 << 0755 << ""
                             << "";
    QTest::newRow("anybody's file") << 0700 << 0646 << ""
                                    << "file is not safe: users " + others;
    QTest::newRow("anybody's folder") << 0757 << 0644 << ""
                                      << "\" is not safe: users " + others;
    QTest::newRow("a folder like /tmp") << 01777 << 0644 << "" << others;
    QTest::newRow("a group's file") << 0700 << 0664 << ":100" << others;
    QTest::newRow("a group's folder") << 0775 << 0644 << ":100" << others;
    QTest::newRow("a private group's") << 0770 << 0770 << "0:0"
                                       << "";
    QTest::newRow("another user's file") << 0700 << 0644 << "1"
                                         << "belongs to the user";
}

void CPluginManagerTest::loadsNothingThatOthersCanWrite()
{
    QFETCH(QString, owner);
    QFETCH(QString, reason);
    const QTemporaryDir folder;
    const QTemporaryDir linkFolder;
    const QString path = folder.filePath("good.so");
    QVERIFY(QFile::copy(m_root.filePath("good/good.so"), path));
    QVERIFY(QFile::link(path, linkFolder.filePath("link.so")));
    const QByteArray name = QFile::encodeName(path);
    const QByteArray folderName = QFile::encodeName(folder.path());
    if (!owner.isEmpty()
        && QProcess::execute("chown", {owner, owner.startsWith(':') ? folder.path() : path, path}))
        QSKIP("Only root can give files away.");
    QFETCH(int, fileMode);
    QFETCH(int, folderMode);
    QCOMPARE(chmod(name, fileMode) + chmod(folderName, folderMode), 0);
    for (const QString &given : {folder.path(), linkFolder.path()}) {
        init();
        QVERIFY(m_manager->start({given}, "ko"));
        const QString failure = m_manager->getFailures().value(0);
        QVERIFY2(failure.contains(reason) && failure.isEmpty() == reason.isEmpty(),
                 qPrintable(failure));
        QCOMPARE(calls().contains("good.construct"), reason.isEmpty());
    }
}

void CPluginManagerTest::endsOrLeavesOutWhatDependsOnAFailure()
{
    QVERIFY(!start({"good", "required_refuses"}));
    m_manager->shutDown();
    QVERIFY(calls().contains("good.destroy"));
    QVERIFY(calls().contains("required_refuses.destroy"));
    init();
    QVERIFY(start({"needs_refuses", "refuses", "needs_refuses_late", "refuses_late"}));
    QCOMPARE(m_manager->getFailures().size(), 4);
    QVERIFY(!calls().contains("needs_refuses.initialize"));
    QVERIFY(!calls().contains("needs_refuses_late.postInitialize"));
    QVERIFY(calls().contains("needs_refuses_late.unInitialize"));
    QCOMPARE(m_initializer.getServices().size(), 0);
}

void CPluginManagerTest::ordersByDependencies()
{
    const auto verify = [](const QStringList &found, const QStringList &order) {
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
    };
    verify({"a: b", "b: c", "c"}, {"c", "b", "a"});
    verify({"top: left, right", "left: base", "right: base", "base"},
           {"base", "left", "right", "top"});
    verify({"a: b", "b: gone", "c"}, {"c"});
    verify({"a: a", "b"}, {"b"}); // needs itself
    verify({"Viewer", "a: Viewer"}, {"a"}); // replaces a part of the viewer
    verify({"a: b", "b: c", "c: b", "d"}, {"d"}); // a circle, and one that needs it
}

void CPluginManagerTest::refusesFaultyMetaData()
{
    const QMultiMap<QString, QJsonValue> faults{{"Name", QJsonValue::Undefined},
                                                {"Version", "1.0-beta"},
                                                {"CompatVersion", 1},
                                                {"Dependencies", QJsonObject()},
                                                {"Dependencies", QJsonArray{"Other"}}};
    for (auto fault = faults.cbegin(); fault != faults.cend(); ++fault)
        QVERIFY2(makeSpec("a", fault.key(), *fault).hasFailed(), qPrintable(fault.key()));
}

QTEST_GUILESS_MAIN(CPluginManagerTest)

#include "tst_pluginmanager.moc"
