#include "appcore/icommand.h"
#include "core/iplugin.h"
#include "support/fakehost.h"
#include "support/scriptedupdate.h"
#include "support/wizardpages.h"

#include <QAccessible>
#include <QDialog>
#include <QJsonArray>
#include <QLineEdit>
#include <QPluginLoader>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>
#include <QtTest>

#include <algorithm>
#include <typeinfo>

using TestSupport::CMenuEntry;
using TestSupport::CScriptedUpdate;
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
    void loadsTheCatalogueOfTheLanguage();
    void runsWithoutTheHostsServices();
    void isHarmlessOutOfOrder();
    void leavesNothingBehind_data();
    void leavesNothingBehind();

private:
    void createPlugin();
    void destroyPlugin();
    /// Walks the wizard to the page of @p step; @p job updates its one camera.
    [[nodiscard]] QDialog *goTo(int step,
                                const Plugin::CameraPool::DeviceFirmwareUpdatePtr &job) const;
    [[nodiscard]] qint64 getLogSize() const;
    [[nodiscard]] QAction *getToolsEntry() const;
    [[nodiscard]] QAction *getContextEntry() const;
    [[nodiscard]] QDialog *getVisibleDialog() const;
    /// Whether the context menu has its entry once @p item is selected in the host's selector.
    template <typename T>
    [[nodiscard]] bool offers(const T &item) const
    {
        emit m_host->selector->selectionChanged(item);
        return getContextEntry()->isVisible();
    }

    QPluginLoader m_loader{QStringLiteral(PLUGIN_FILE)};
    std::unique_ptr<TestSupport::CFakeHost> m_host;
    std::unique_ptr<Core::Plugin::IPlugin> m_plugin;
    QTemporaryDir m_temporaryFolder;
};

void CFirmwareUpdaterPluginTest::initTestCase()
{
    qputenv("TMPDIR", m_temporaryFolder.path().toLocal8Bit());
    // A loader keeps libraries that are unloaded, unless it is told not to.
    m_loader.setLoadHints({});
    QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
}

void CFirmwareUpdaterPluginTest::init()
{
    m_host = std::make_unique<TestSupport::CFakeHost>();
    createPlugin();
    m_plugin->setLanguage("en");
    QVERIFY(m_plugin->initialize(&m_host->initializer));
}

void CFirmwareUpdaterPluginTest::cleanup()
{
    if (m_plugin)
        destroyPlugin();
    m_host.reset();
}

void CFirmwareUpdaterPluginTest::createPlugin()
{
    m_plugin.reset(qobject_cast<Core::Plugin::IPlugin *>(m_loader.instance()));
    QVERIFY(m_plugin);
}

void CFirmwareUpdaterPluginTest::destroyPlugin()
{
    m_plugin->aboutToUninitialize();
    QVERIFY(m_plugin->unInitialize(&m_host->initializer));
    // Destroyed by the test as by a host; the loader makes a new instance on demand.
    m_plugin.reset();
}

QAction *CFirmwareUpdaterPluginTest::getToolsEntry() const
{
    return m_host->menus->getEntry("NuvexViewer.Menu.Tools").action;
}

QAction *CFirmwareUpdaterPluginTest::getContextEntry() const
{
    return m_host->menus->getEntry("NuvexViewer.CameraSelectorContextMenu").action;
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
    const QJsonObject own = m_loader.metaData().value("MetaData").toObject();
    QCOMPARE(own.value("Name").toString(), "FirmwareUpdater");
    QCOMPARE(own.value("Version").toString(), PLUGIN_VERSION);
    QCOMPARE(own.value("CompatVersion").toString(), PLUGIN_VERSION);
    QCOMPARE(own.value("Required").toBool(), true);
    const auto dependency = [](const char *name, const char *version) {
        return QJsonObject{{"Name", name}, {"Version", version}};
    };
    QCOMPARE(own.value("Dependencies").toArray(),
             QJsonArray({dependency("AppCore", "1.2.0"), dependency("CameraSelector", "6.2.0"),
                         dependency("CameraPool", "1.2.0"), dependency("NuvexViewer", "6.2.0")}));
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
    QStringList entries;
    for (const CMenuEntry &entry : qAsConst(m_host->menus->entries))
        entries.append(entry.menu + ' ' + entry.group + ' ' + entry.command + ' '
                       + entry.contexts.join(' '));
    entries.sort();
    QCOMPARE(entries,
             QStringList({"NuvexViewer.CameraSelectorContextMenu "
                          "NuvexViewer.Group.CameraSelectorContextMenu.Misc "
                          "FirmwareUpdater.Context.Start AppCore.Global.Context",
                          "NuvexViewer.Menu.Tools NuvexViewer.Group.Tools.Tools "
                          "FirmwareUpdater.Menu.Start AppCore.Global.Context"}));
    QCOMPARE(getToolsEntry()->text(), "Firmware Updater");
    QVERIFY(!getToolsEntry()->icon().isNull());
    QVERIFY(getToolsEntry()->isVisible());
    QVERIFY(!getToolsEntry()->isEnabled());
    QVERIFY(!getContextEntry()->isVisible());
}

void CFirmwareUpdaterPluginTest::followsTheEnumeration()
{
    QVERIFY(m_plugin->postInitialize());
    // What the menus offer after @p layers have been found.
    const auto announce = [this](const QVector<Plugin::CameraPool::TransportLayerInfoPtr> &layers) {
        m_host->enumeration->announce(layers);
        return QString(getToolsEntry()->isEnabled() ? "tools " : "")
            + (getContextEntry()->isVisible() ? "context" : "");
    };
    const auto layer = makeLayer("l", {{"a"}});
    QCOMPARE(announce({makeLayer("empty", {}), layer}), "tools ");
    QVERIFY(offers(layer->getCameraInfoList().first()));
    QCOMPARE(announce({makeLayer("empty", {})}), "");
    // Cameras that come back do not bring the context entry back by themselves.
    QCOMPARE(announce({layer}), "tools ");
}

void CFirmwareUpdaterPluginTest::followsTheSelection()
{
    QVERIFY(m_plugin->postInitialize());
    const auto camera = TestSupport::makeCamera({"a"});
    QVERIFY(offers(camera));
    QVERIFY(!offers(TestSupport::makeCamera({"b", "VX-1", "layer1", "1.0.0", -3})));
    QVERIFY(offers(camera));
    QVERIFY(!offers(makeLayer("l", {})));
    QVERIFY(offers(camera));
    QVERIFY(!offers(Plugin::CameraPool::CameraInfoPtr()));
}

void CFirmwareUpdaterPluginTest::preselectsTheCameraRememberedFromTheSelector()
{
    QVERIFY(m_plugin->postInitialize());
    const auto layer = makeLayer("l", {{"a"}, {"b"}});
    m_host->enumeration->announce({layer});
    QVERIFY(offers(layer->getCameraInfoList().first()));
    // A selected layer does not make the camera forgotten.
    QVERIFY(!offers(layer));

    QVERIFY(!getVisibleDialog());
    getToolsEntry()->trigger();
    QTRY_VERIFY(getVisibleDialog());
    QVERIFY(getVisibleDialog()->inherits(
        "Plugin::FirmwareUpdater::Internal::View::CCameraSelectionDialog"));
    // Next is available because the remembered camera is ticked.
    QVERIFY(TestSupport::getButton(*getVisibleDialog(), "Next")->isEnabled());

    getVisibleDialog()->close();
    QTRY_VERIFY(!getVisibleDialog());
}

void CFirmwareUpdaterPluginTest::loadsTheCatalogueOfTheLanguage()
{
    const QVector<std::pair<QString, QString>> folders{
        {"en", "en"}, {"ko_KR", "ko"}, {"ja-JP", "ja"}, {"zh", "zh"}, {"fr", "en"}, {"", "en"}};
    for (const auto &[language, folder] : folders) {
        m_plugin->setLanguage(language);
        // Each catalogue has its own folder on the support site.
        QCOMPARE(QCoreApplication::translate(
                     "Plugin::FirmwareUpdater::Internal::Service::CFirmwareUpdaterService",
                     "https://support.korvane.example/en/"),
                 "https://support.korvane.example/" + folder + "/");
    }
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

void CFirmwareUpdaterPluginTest::isHarmlessOutOfOrder()
{
    destroyPlugin();
    createPlugin();
    QVERIFY(m_plugin->postInitialize());
    QVERIFY(m_plugin->unInitialize(&m_host->initializer));
    QVERIFY(m_host->menus->entries.isEmpty());

    QVERIFY(m_plugin->initialize(&m_host->initializer));
    QVERIFY(m_plugin->postInitialize());
    QVERIFY(m_plugin->unInitialize(&m_host->initializer));
    // The host still has cameras to announce.
    const auto layer = makeLayer("l", {{"a"}});
    m_host->enumeration->announce({layer});
    QVERIFY(!offers(layer->getCameraInfoList().first()));
}

QDialog *
CFirmwareUpdaterPluginTest::goTo(int step,
                                 const Plugin::CameraPool::DeviceFirmwareUpdatePtr &job) const
{
    QFile file(m_temporaryFolder.filePath("update.guf"));
    const auto layer = makeLayer("l", {{"a"}});
    m_host->updates->entries
        = {TestSupport::UpdateInfoPtr(new TestSupport::CFakeUpdateInfo("2.0.0"))};
    m_host->updates->createJob
        = [job](const QString &, const TestSupport::UpdateInfoPtr &) { return job; };
    m_host->enumeration->announce({layer});
    if (!file.open(QIODevice::WriteOnly) || !offers(layer->getCameraInfoList().first()))
        return nullptr;

    getToolsEntry()->trigger();
    const auto waitForPage = [](int number) {
        return TestSupport::waitForPage(qPrintable(QString("Step %1").arg(number)));
    };
    for (int current = 1; current < std::min(step, 4); ++current) {
        QDialog *const page = waitForPage(current);
        if (auto *const edit = page->findChild<QLineEdit *>()) {
            edit->selectAll();
            QTest::keyClicks(edit, file.fileName());
        }
        TestSupport::click(*page, "Next");
    }
    return waitForPage(step);
}

qint64 CFirmwareUpdaterPluginTest::getLogSize() const
{
    qint64 size = 0;
    const QFileInfoList logs = QDir(m_temporaryFolder.path()).entryInfoList({"*.log"});
    for (const QFileInfo &log : logs)
        size += log.size();
    return size;
}

void CFirmwareUpdaterPluginTest::leavesNothingBehind_data()
{
    QTest::addColumn<int>("step"); // which is open when the plug-in dies
    QTest::addColumn<bool>("windowFirst");
    QTest::newRow("window last") << 0 << false;
    QTest::newRow("window first") << 0 << true;
    QTest::newRow("while cameras are selected, window last") << 1 << false;
    QTest::newRow("while cameras are selected, window first") << 1 << true;
    QTest::newRow("while a camera is updated, window last") << 4 << false;
    QTest::newRow("while a camera is updated, window first") << 4 << true;
}

void CFirmwareUpdaterPluginTest::leavesNothingBehind()
{
    QFETCH(int, step);
    QFETCH(bool, windowFirst);

    QVERIFY(m_plugin->postInitialize());
    const Plugin::CameraPool::DeviceFirmwareUpdatePtr job(new CScriptedUpdate);
    auto &script = static_cast<CScriptedUpdate &>(*job);
    script.begin(1000).beginStep(CScriptedUpdate::EStep::DeviceReset, 1000);
    if (step == 4)
        script.hold();
    script.endStep(CScriptedUpdate::EStep::DeviceReset, 1000).done();
    QDialog *const page = goTo(step == 0 ? 5 : step, job);
    QVERIFY(page);
    auto *const tree = page->findChild<QTreeView *>();
    QAccessibleInterface *const known = QAccessible::queryAccessibleInterface(tree);
    if (step == 0) {
        TestSupport::click(*page, "Close");
        QTRY_VERIFY(!page->isVisible());
    } else if (step == 4) {
        QTRY_VERIFY(script.isHeld());
    }
    m_plugin->setLanguage("ko");

    if (windowFirst)
        m_host->windows->destroyMainWindow();
    destroyPlugin();
    QVERIFY(m_loader.unload());
    const qint64 logSize = getLogSize();
    if (step == 4) {
        // Started behind the timer of the camera's reset, it is the later one to end.
        QTimer later;
        later.setTimerType(Qt::PreciseTimer);
        QSignalSpy ended(&later, &QTimer::timeout);
        later.start(250);
        QVERIFY(ended.wait());
        script.release();
        QTRY_COMPARE(job->thread(), thread());
    }
    QCoreApplication::processEvents();
    QCOMPARE(getLogSize(), logSize);
    QCOMPARE(QCoreApplication::translate("QObject", "Cameras"), "Cameras");
    for (const QObject *const child : qApp->children())
        QVERIFY(!QByteArray(child->metaObject()->className()).contains("FirmwareUpdater"));
    if (windowFirst)
        return;

    // The pages live on: what screen readers know goes on, and what is new to them is Qt's.
    QVERIFY(!page->isVisible());
    QVERIFY(known->childCount() > 0);
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(known));
    const QAccessibleInterface &unknown = *QAccessible::queryAccessibleInterface(tree);
    QVERIFY(!QByteArray(typeid(unknown).name()).contains("FirmwareUpdater"));
    QVERIFY(!page->grab().isNull());
    QTest::keyClick(page, Qt::Key_Escape);
    QCoreApplication::processEvents();
    QVERIFY(!getVisibleDialog());
}

QTEST_MAIN(CFirmwareUpdaterPluginTest)
#include "tst_firmwareupdaterplugin.moc"
