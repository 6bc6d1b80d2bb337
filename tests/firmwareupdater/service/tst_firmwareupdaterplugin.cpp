#include "appcore/icommand.h"
#include "core/iplugin.h"
#include "support/fakehost.h"

#include <QApplication>
#include <QDialog>
#include <QJsonArray>
#include <QPluginLoader>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

using TestSupport::CMenuEntry;
using TestSupport::makeLayer;

/// The built module, loaded as a host loads it.
class CFirmwareUpdaterPluginTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void describesItself();
    void publishesOneService();
    void placesItsMenuEntries();
    void followsTheEnumeration();
    void followsTheSelection();
    void preselectsTheCameraRememberedFromTheSelector();
    void loadsTheCatalogueOfTheLanguage_data();
    void loadsTheCatalogueOfTheLanguage();
    void runsWithoutTheHostsServices();

private:
    [[nodiscard]] QDialog *getVisibleDialog() const;

    QPluginLoader m_loader{QStringLiteral(PLUGIN_FILE)};
    std::unique_ptr<TestSupport::CFakeHost> m_host;
    std::unique_ptr<Core::Plugin::IPlugin> m_plugin;
    QTemporaryDir m_temporaryFolder;
};

void CFirmwareUpdaterPluginTest::initTestCase()
{
    qputenv("TMPDIR", m_temporaryFolder.path().toLocal8Bit());
    QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
}

void CFirmwareUpdaterPluginTest::init()
{
    m_host = std::make_unique<TestSupport::CFakeHost>();
    m_plugin.reset(qobject_cast<Core::Plugin::IPlugin *>(m_loader.instance()));
    QVERIFY(m_plugin);
    m_plugin->setLanguage("en");
    QVERIFY(m_plugin->initialize(&m_host->initializer));
}

void CFirmwareUpdaterPluginTest::cleanup()
{
    m_plugin->aboutToUninitialize();
    QVERIFY(m_plugin->unInitialize(&m_host->initializer));
    // Destroyed by the test as by a host; the loader makes a new instance on demand.
    m_plugin.reset();
    m_host.reset();
}

QDialog *CFirmwareUpdaterPluginTest::getVisibleDialog() const
{
    const auto dialogs = m_host->windows->getMainWindow()->findChildren<QDialog *>();
    for (QDialog *const dialog : dialogs) {
        if (dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

void CFirmwareUpdaterPluginTest::describesItself()
{
    const QJsonObject all = m_loader.metaData();
    QCOMPARE(all.value("IID").toString(), QString(NUVEX_VIEWER_PLUGIN_IID));
    QCOMPARE(all.value("className").toString(), "CFirmwareUpdaterPlugin");
    const QJsonObject own = all.value("MetaData").toObject();
    QCOMPARE(own.value("Name").toString(), "FirmwareUpdater");
    QCOMPARE(own.value("Version").toString(), PLUGIN_VERSION);
    QCOMPARE(own.value("CompatVersion").toString(), PLUGIN_VERSION);
    QCOMPARE(own.value("Required").toBool(), true);
    QStringList dependencies;
    const QJsonArray wanted = own.value("Dependencies").toArray();
    for (const QJsonValue &dependency : wanted) {
        dependencies.append(dependency.toObject().value("Name").toString() + " "
                            + dependency.toObject().value("Version").toString());
    }
    QCOMPARE(dependencies,
             QStringList({"AppCore 1.2.0", "CameraSelector 6.2.0", "CameraPool 1.2.0",
                          "NuvexViewer 6.2.0"}));
}

void CFirmwareUpdaterPluginTest::publishesOneService()
{
    const int before = m_host->initializer.getServices().size();
    QVERIFY(m_plugin->initialize(&m_host->initializer));
    QCOMPARE(m_host->initializer.getServices().size(), before);
    const QObject *const service = m_host->initializer.getServices().last().data();
    QVERIFY(service->inherits("Plugin::FirmwareUpdater::IFirmwareUpdaterService"));
    QVERIFY(QMetaType::isRegistered(QMetaType::type("Plugin::CameraPool::EFirmwareUpdateStep")));
}

void CFirmwareUpdaterPluginTest::placesItsMenuEntries()
{
    QVERIFY(m_plugin->postInitialize());
    QCOMPARE(m_host->menus->entries.size(), 2);
    const CMenuEntry tools = m_host->menus->getEntry("NuvexViewer.Menu.Tools");
    QCOMPARE(tools.group, "NuvexViewer.Group.Tools.Tools");
    QCOMPARE(tools.command, "FirmwareUpdater.Menu.Start");
    QCOMPARE(tools.contexts, QStringList({"AppCore.Global.Context"}));
    QCOMPARE(tools.action->text(), "Firmware Updater");
    QVERIFY(!tools.action->icon().isNull());
    QVERIFY(tools.action->isVisible());
    QVERIFY(!tools.action->isEnabled());

    const CMenuEntry context = m_host->menus->getEntry("NuvexViewer.CameraSelectorContextMenu");
    QCOMPARE(context.group, "NuvexViewer.Group.CameraSelectorContextMenu.Misc");
    QCOMPARE(context.command, "FirmwareUpdater.Context.Start");
    QCOMPARE(context.contexts, QStringList({"AppCore.Global.Context"}));
    QVERIFY(!context.action->isVisible());
}

void CFirmwareUpdaterPluginTest::followsTheEnumeration()
{
    QVERIFY(m_plugin->postInitialize());
    QAction *const tools = m_host->menus->getEntry("NuvexViewer.Menu.Tools").action;
    QAction *const context
        = m_host->menus->getEntry("NuvexViewer.CameraSelectorContextMenu").action;

    const auto layer = makeLayer("l", {{"a"}});
    m_host->enumeration->announce({makeLayer("empty", {}), layer});
    QVERIFY(tools->isEnabled());
    QVERIFY(!context->isVisible());

    emit m_host->selector->selectionChanged(layer->getCameraInfoList().first());
    QVERIFY(context->isVisible());
    m_host->enumeration->announce({makeLayer("empty", {})});
    QVERIFY(!tools->isEnabled());
    QVERIFY(!context->isVisible());

    // Cameras that come back do not bring the context entry back by themselves.
    m_host->enumeration->announce({layer});
    QVERIFY(tools->isEnabled());
    QVERIFY(!context->isVisible());
}

void CFirmwareUpdaterPluginTest::followsTheSelection()
{
    QVERIFY(m_plugin->postInitialize());
    QAction *const context
        = m_host->menus->getEntry("NuvexViewer.CameraSelectorContextMenu").action;
    emit m_host->selector->selectionChanged(TestSupport::makeCamera({"a"}));
    QVERIFY(context->isVisible());

    TestSupport::CCameraDescription locked{"b"};
    locked.statusCode = -3;
    emit m_host->selector->selectionChanged(TestSupport::makeCamera(locked));
    QVERIFY(!context->isVisible());

    emit m_host->selector->selectionChanged(TestSupport::makeCamera({"a"}));
    emit m_host->selector->selectionChanged(makeLayer("l", {}));
    QVERIFY(!context->isVisible());
    emit m_host->selector->selectionChanged(TestSupport::makeCamera({"a"}));
    emit m_host->selector->selectionChanged({});
    QVERIFY(!context->isVisible());
}

void CFirmwareUpdaterPluginTest::preselectsTheCameraRememberedFromTheSelector()
{
    QVERIFY(m_plugin->postInitialize());
    const auto layer = makeLayer("l", {{"a"}, {"b"}});
    m_host->enumeration->announce({layer});
    emit m_host->selector->selectionChanged(layer->getCameraInfoList().first());
    // A selected layer does not make the camera forgotten.
    emit m_host->selector->selectionChanged(layer);

    QVERIFY(!getVisibleDialog());
    m_host->menus->getEntry("NuvexViewer.Menu.Tools").action->trigger();
    QTRY_VERIFY(getVisibleDialog());
    QVERIFY(getVisibleDialog()->inherits(
        "Plugin::FirmwareUpdater::Internal::View::CCameraSelectionDialog"));
    // Next is available because the remembered camera is ticked.
    bool nextEnabled = false;
    const auto buttons = getVisibleDialog()->findChildren<QPushButton *>();
    for (const QPushButton *const button : buttons)
        nextEnabled |= button->text() == "Next" && button->isEnabled();
    QVERIFY(nextEnabled);

    getVisibleDialog()->close();
    QTRY_VERIFY(!getVisibleDialog());
}

void CFirmwareUpdaterPluginTest::loadsTheCatalogueOfTheLanguage_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("en") << "en";
    QTest::newRow("ko_KR") << "ko";
    QTest::newRow("ja-JP") << "ja";
    QTest::newRow("zh") << "zh";
    QTest::newRow("fr") << "en";
    QTest::newRow("") << "en";
}

void CFirmwareUpdaterPluginTest::loadsTheCatalogueOfTheLanguage()
{
    QFETCH(QString, folder);
    m_plugin->setLanguage(QTest::currentDataTag());
    // Each catalogue has its own folder on the support site.
    QCOMPARE(QCoreApplication::translate(
                 "Plugin::FirmwareUpdater::Internal::Service::CFirmwareUpdaterService",
                 "https://support.korvane.example/en/"),
             "https://support.korvane.example/" + folder + "/");
}

void CFirmwareUpdaterPluginTest::runsWithoutTheHostsServices()
{
    TestSupport::CFakeInitializer bare;
    QVERIFY(m_plugin->unInitialize(&m_host->initializer));
    QVERIFY(m_plugin->initialize(&bare));
    QVERIFY(m_plugin->postInitialize());
    // The wizard does not exist, and starting it does nothing harmful.
    QVERIFY(QMetaObject::invokeMethod(bare.getServices().last().data(), "onEnumerationChanged"));
    QVERIFY(m_plugin->unInitialize(&bare));
    QVERIFY(bare.getServices().isEmpty());
    QVERIFY(m_plugin->initialize(&m_host->initializer));
}

QTEST_MAIN(CFirmwareUpdaterPluginTest)
#include "tst_firmwareupdaterplugin.moc"
