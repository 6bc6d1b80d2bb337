#include "core/iplugin.h"
#include "support/camerakinds.h"
#include "support/fakehost.h"
#include "support/loopbackonly.h"
#include "support/processes.h"
#include "support/virtualcameraprocess.h"
#include "support/wizardpages.h"
#include "viewer/camerapool/camerapool.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPluginLoader>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>
#include <QtTest>

#include <csignal>

using namespace TestSupport;
using TestSupport::click;
using TestSupport::getText;

/// The built plug-in and the viewer's camera pool together: a user clicks through the wizard, and
/// simulated cameras are updated from real update files.
class CWizardTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void updatesAllCamerasOfAModel_data();
    void updatesAllCamerasOfAModel();
    void stopsAtAFailureInTheMiddle();
    void stopsAfterTheCurrentCameraOnCancel();
    void updatesAgainInTheSameRun();
    void updatesCamerasOnTheWire_data();
    void updatesCamerasOnTheWire();
    void tellsEachFault_data();
    void tellsEachFault();
    void agreesWithTheProgramWithoutAScreen();
    void leavesNothingBehind();

private:
    void openPool(const QStringList &arguments, const QString &journalFolder = QString());
    [[nodiscard]] QHash<QString, QString> getVersions() const;

    static void toggle(QDialog *page, const QString &row);
    [[nodiscard]] static bool isShown(const QDialog *page, const char *label);
    [[nodiscard]] static QStringList column(const QDialog *page, int column);
    [[nodiscard]] QString readLog(const QDialog *resultPage) const;

    void startWizard(const QString &row);
    void chooseFile(const char *name);
    void startUpdate();

    QTemporaryDir m_folder;
    QPluginLoader m_loader{QStringLiteral(PLUGIN_FILE)};
    std::unique_ptr<TestSupport::CFakeHost> m_host;
    std::unique_ptr<Viewer::CameraPool::CCameraPool> m_pool;
    std::unique_ptr<Core::Plugin::IPlugin> m_plugin;
    QSharedPointer<Plugin::CameraPool::ICameraEnumerationService> m_enumeration;
};

void CWizardTest::initTestCase()
{
    qputenv("TMPDIR", m_folder.path().toLocal8Bit());
    QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
}

void CWizardTest::init()
{
    m_host = std::make_unique<TestSupport::CFakeHost>();
    m_host->initializer.removeService(m_host->enumeration);
    m_host->initializer.removeService(m_host->status);
    m_host->initializer.removeService(m_host->streams);
    m_host->initializer.removeService(m_host->updates);
    m_host->windows->getMainWindow()->show();
}

void CWizardTest::cleanup()
{
    m_plugin->unInitialize(&m_host->initializer);
    m_plugin.reset();
    m_enumeration.reset();
    m_host.reset();
    m_pool.reset();
}

void CWizardTest::openPool(const QStringList &arguments, const QString &journalFolder)
{
    m_pool = std::make_unique<Viewer::CameraPool::CCameraPool>(
        TestSupport::makeCameraKinds(arguments), journalFolder);
    m_pool->setWorker(WORKER, "en");
    const auto services = m_pool->getServices();
    for (const auto &service : services)
        m_host->initializer.addService(service);
    m_enumeration = m_host->initializer.getService<Plugin::CameraPool::ICameraEnumerationService>();

    m_plugin.reset(qobject_cast<Core::Plugin::IPlugin *>(m_loader.instance()));
    m_plugin->setLanguage("en");
    QVERIFY(m_plugin->initialize(&m_host->initializer));
    QVERIFY(m_plugin->postInitialize());
    QSignalSpy announced(m_enumeration.data(),
                         &Plugin::CameraPool::ICameraEnumerationService::enumerationChanged);
    m_pool->start();
    QTRY_COMPARE(announced.count(), 1);
}

QHash<QString, QString> CWizardTest::getVersions() const
{
    QHash<QString, QString> versions;
    const auto layers = m_enumeration->getTransportLayerInfoVector();
    for (const auto &layer : layers) {
        for (const auto &camera : layer->getCameraInfoList())
            versions.insert(camera->getId(), camera->getFirmwareVersion());
    }
    return versions;
}

void CWizardTest::toggle(QDialog *page, const QString &row)
{
    auto *const tree = page->findChild<QTreeView *>("cameraTreeView");
    const QModelIndexList found = tree->model()->match(
        tree->model()->index(0, 0), Qt::DisplayRole, row, 1, Qt::MatchExactly | Qt::MatchRecursive);
    QCOMPARE(found.size(), 1);
    tree->scrollTo(found.first());
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {},
                      tree->visualRect(found.first()).center());
}

bool CWizardTest::isShown(const QDialog *page, const char *label)
{
    return page->findChild<QLabel *>(label)->isVisible();
}

QStringList CWizardTest::column(const QDialog *page, int column)
{
    QStringList texts;
    const QAbstractItemModel *const model = page->findChild<QTreeView *>("cameraTreeView")->model();
    for (int row = 0; row < model->rowCount(); ++row)
        texts.append(QString::number(model->index(row, column).data().toInt()));
    return texts;
}

QString CWizardTest::readLog(const QDialog *resultPage) const
{
    QFile file(getText(*resultPage, "infoTextLabel_2").section('"', 1, 1));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void CWizardTest::startWizard(const QString &row)
{
    QAction *const entry = m_host->menus->getEntry("NuvexViewer.Menu.Tools").action;
    QVERIFY(entry->isEnabled());
    entry->trigger();
    QDialog *const page = waitForPage("Step 1");
    toggle(page, row);
    click(*page, "Next");
}

void CWizardTest::chooseFile(const char *name)
{
    QDialog *const page = waitForPage("Step 2");
    auto *const edit = page->findChild<QLineEdit *>("updateFileLineEdit");
    edit->selectAll();
    QTest::keyClicks(edit, QStringLiteral(SAMPLE_UPDATES "/") + name);
    QVERIFY2(!isShown(page, "errorTextLabel"), qPrintable(edit->text()));
    click(*page, "Next");
}

void CWizardTest::startUpdate()
{
    QDialog *const summary = waitForPage("Step 3");
    click(*summary, "Next");
}

void CWizardTest::updatesAllCamerasOfAModel_data()
{
    QTest::addColumn<QString>("current");
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("direction");
    QTest::newRow("upgrade") << "1.2.0" << QByteArray("vx-1400m_2.0.0.guf") << "2.0.0" << 0;
    QTest::newRow("downgrade") << "2.0.0" << QByteArray("vx-1400m_1.1.0.guf") << "1.1.0" << 1;
    QTest::newRow("reinstall") << "2.0.0" << QByteArray("vx-1400m_2.0.0.guf") << "2.0.0" << 2;
}

void CWizardTest::updatesAllCamerasOfAModel()
{
    QFETCH(QString, current);
    QFETCH(QByteArray, file);
    QFETCH(QString, target);
    QFETCH(int, direction);

    openPool({"--speed", "100", "--cameras", describeCameras(m_folder.path(), current)});
    startWizard("VX-1400M");
    chooseFile(file.constData());

    QDialog *const summary = waitForPage("Step 3");
    const QString each = QString::number(direction);
    QTRY_COMPARE(column(summary, 5), QStringList({each, each, each}));
    QCOMPARE(isShown(summary, "warningTextLabel_1"), direction == 1);
    QCOMPARE(isShown(summary, "warningTextLabel_2"), direction == 2);
    click(*summary, "Next");

    QDialog *const result = waitForPage("Step 5");
    QTRY_COMPARE(getText(*result, "successfulUpdatesLabel"), "Successful updates: 3");
    QVERIFY(!isShown(result, "failedUpdatesLabel"));
    QVERIFY(!isShown(result, "errorTextLabel"));
    QVERIFY(readLog(result).contains("Finished firmware update (3/3)"));
    click(*result, "Close");
    QTRY_VERIFY(!result->isVisible());
    QTRY_COMPARE(getVersions().values(), QList<QString>({target, target, target}));
}

void CWizardTest::stopsAtAFailureInTheMiddle()
{
    openPool({"--speed", "100", "--cameras", describeCameras(m_folder.path(), "1.2.0", 2)});
    startWizard("VX-1400M");
    chooseFile("vx-1400m_2.0.0.guf");
    startUpdate();
    QDialog *const result = waitForPage("Step 5");
    QTRY_COMPARE(getText(*result, "successfulUpdatesLabel"), "Successful updates: 1");
    QCOMPARE(getText(*result, "failedUpdatesLabel"), "Failed updates: 1");
    QCOMPARE(getText(*result, "skippedUpdatesLabel"), "Skipped updates: 1");
    QCOMPARE(column(result, 7), QStringList({"0", "1", "2"}));
    QVERIFY(getText(*result, "errorTextLabel").contains("subsequent updates have been skipped"));
    QVERIFY(getText(*result, "errorTextLabel").contains("Line 2"));
    QVERIFY(readLog(result).contains("Firmware update (2/3) failed."));
    QTRY_COMPARE(getVersions().value("camera-1"), "2.0.0");
    QCOMPARE(getVersions().value("camera-3"), "1.2.0");
}

void CWizardTest::stopsAfterTheCurrentCameraOnCancel()
{
    openPool({"--speed", "100", "--cameras", describeCameras(m_folder.path(), "1.2.0")});
    startWizard("VX-1400M");
    chooseFile("vx-1400m_2.0.0.guf");
    startUpdate();
    QDialog *const updating = waitForPage("Step 4");
    click(*updating, "Cancel");

    QDialog *const result = waitForPage("Step 5");
    QTRY_COMPARE(getText(*result, "successfulUpdatesLabel"), "Successful updates: 1");
    QVERIFY(readLog(result).contains("Firmware updates have been canceled by the user"));
    // No camera that was left out has been touched, and none of them counts as updated.
    QTRY_COMPARE(getVersions().value("camera-1"), "2.0.0");
    QCOMPARE(getVersions().value("camera-2"), "1.2.0");
    QCOMPARE(getVersions().value("camera-3"), "1.2.0");
    QCOMPARE(column(result, 7), QStringList({"0", "1", "2"}));
}

void CWizardTest::updatesAgainInTheSameRun()
{
    openPool({"--speed", "100", "--cameras", describeCameras(m_folder.path(), "1.2.0")});
    startWizard("Line 2");
    chooseFile("vx-1400m_2.0.0.guf");
    startUpdate();
    QDialog *const result = waitForPage("Step 5");
    QTRY_COMPARE(getVersions().value("camera-2"), "2.0.0");
    click(*result, "Next");

    QDialog *const selection = waitForPage("Step 1");
    toggle(selection, "Line 2");
    click(*selection, "Next");
    chooseFile("vx-1400m_2.0.0.guf");
    QDialog *const summary = waitForPage("Step 3");
    QTRY_COMPARE(column(summary, 5), QStringList({"2"}));
    click(*summary, "Back");
    (void)waitForPage("Step 2");
}

void CWizardTest::updatesCamerasOnTheWire_data()
{
    QTest::addColumn<bool>("secondDies");
    QTest::newRow("all well") << false;
    if (!TestSupport::CVirtualCameraProcess::isOnUsb())
        QTest::newRow("the second one dies") << true;
}

void CWizardTest::updatesCamerasOnTheWire()
{
    QFETCH(bool, secondDies);
    if (TestSupport::makeCameraKinds({"--network"}).empty())
        QSKIP("The viewer was built without the library for real cameras.");

    using TestSupport::CVirtualCameraProcess;
    // An emulated USB has one.
    const int count = CVirtualCameraProcess::isOnUsb() ? 1 : 3;
    if (CVirtualCameraProcess::isOnUsb())
        SKIP_IF_OTHERS_HEAR_IT();
    QStringList poolArguments("--no-simulation");
    std::vector<std::unique_ptr<CVirtualCameraProcess>> cameras;
    for (int number = 1; number <= count; ++number) {
        QStringList arguments{"--serial", QString("5000000%1").arg(number), "--flash",
                              m_folder.filePath(QString::number(number))};
        if (secondDies && number == 2)
            arguments << "--die-after"
                      << "40960";
        const QHostAddress address = CVirtualCameraProcess::getOwnAddress(number);
        poolArguments += CVirtualCameraProcess::getSearchOptions(address);
        cameras.push_back(std::make_unique<CVirtualCameraProcess>(address, arguments));
    }
    openPool(poolArguments);
    startWizard("GV-1400M");
    chooseFile("gv-1400m_2.0.0.guf");
    startUpdate();

    QElapsedTimer sinceTurn;
    qint64 longestGap = 0;
    QTimer turns;
    connect(&turns, &QTimer::timeout, this,
            [&] { longestGap = qMax(longestGap, sinceTurn.restart()); });
    sinceTurn.start();
    turns.start(1);
    QDialog *const result = waitForPage("Step 5");
    qInfo("longest gap of the GUI thread: %lld ms", longestGap);

    if (secondDies) {
        QTRY_COMPARE(column(result, 7), QStringList({"0", "1", "2"}));
        const QString error = getText(*result, "errorTextLabel");
        QVERIFY2(error.contains("Camera 50000002 (GV-1400M, 127."), qPrintable(error));
        QVERIFY2(error.contains("failed at byte 36864: "), qPrintable(error));
        QVERIFY(cameras[2]->getEvents().isEmpty());
        return;
    }
    QTRY_COMPARE(column(result, 7).count("0"), count);
    QTRY_COMPARE(getVersions().values().count("2.0.0"), count);
    QFile payload(SAMPLE_PAYLOAD);
    QVERIFY(payload.open(QIODevice::ReadOnly));
    const QByteArray image = payload.readAll();
    for (int number = 1; number <= count; ++number) {
        QFile flash(m_folder.filePath(QString::number(number)));
        QVERIFY(flash.open(QIODevice::ReadOnly));
        QVERIFY(flash.readAll() == image);
    }
}

void CWizardTest::tellsEachFault_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("error"); // empty: the update succeeds
    const auto row
        = [](const char *name, const char *error) { QTest::newRow(name) << name << error; };
    row("No fault", "");
    row("Precondition not met", "cannot be updated now");
    row("Write refused", "refuses to write the feature");
    row("Upload fails", "broke off after 100000");
    row("Vanishes", "the connection was lost");
    row("Assert fails", "instead of");
    row("Never returns", "did not come back from its reset");
    row("Returns late", "");
    row("Returns with old", "is \"1.2.0\" instead of \"2.0.0\"");
}

void CWizardTest::tellsEachFault()
{
    QFETCH(QString, name);
    QFETCH(QString, error);

    openPool({"--speed", "100", "--cameras", QStringLiteral(SAMPLE_CAMERAS "/faults.json")});
    QString camera;
    const auto layers = m_enumeration->getTransportLayerInfoVector();
    for (const auto &info : layers.first()->getCameraInfoList()) {
        if (info->getDisplayName().startsWith(name))
            camera = info->getDisplayName();
    }
    QVERIFY(!camera.isEmpty());
    startWizard(camera);
    chooseFile("vx-1400m_2.0.0.guf");
    startUpdate();
    QDialog *const result = waitForPage("Step 5");
    const bool failed = !error.isEmpty();
    QTRY_COMPARE(getText(*result, "successfulUpdatesLabel"),
                 QString("Successful updates: %1").arg(failed ? 0 : 1));
    QCOMPARE(isShown(result, "errorTextLabel"), failed);
    QCOMPARE(column(result, 7), QStringList({failed ? "1" : "0"}));
    if (failed) {
        const QString shown = getText(*result, "errorTextLabel");
        QVERIFY2(shown.contains(error.toHtmlEscaped()), qPrintable(shown));
        QVERIFY2(shown.startsWith("An error has occurred during the update.<br>"),
                 qPrintable(shown));
        const QString log = readLog(result);
        QVERIFY(log.contains(error));
        QVERIFY(log.contains("Firmware update (1/1) failed."));
    }
}

/// Virtual cameras number 1 to @p count, of which some have @p faults, and what makes a program
/// find them.
class CManyCameras
{
public:
    CManyCameras(int count, const QMap<int, QString> &faults)
    {
        for (int number = 1; number <= count; ++number) {
            const QHostAddress address = CVirtualCameraProcess::getOwnAddress(number);
            m_options << "--camera-address" << address.toString();
            m_cameras.push_back(std::make_unique<CVirtualCameraProcess>(
                address,
                QStringList{"--serial", getName(number), "--reset-ms", "100"}
                    + faults.value(number).split(' ', Qt::SkipEmptyParts)));
        }
    }

    [[nodiscard]] static QString getName(int number) { return QString::number(50000000 + number); }
    [[nodiscard]] const QStringList &getOptions() const { return m_options; }

private:
    QStringList m_options{"--no-simulation"};
    std::vector<std::unique_ptr<CVirtualCameraProcess>> m_cameras;
};

void CWizardTest::agreesWithTheProgramWithoutAScreen()
{
    if (TestSupport::makeCameraKinds({"--network"}).empty())
        QSKIP("The viewer was built without the library for real cameras.");
    static constexpr int COUNT = 64;
    const QMap<int, QString> faults{{5, "--status 3"},
                                    {13, "--refuse FileOperationExecute"},
                                    {21, "--refuse FirmwareActivate"},
                                    {29, "--refuse DeviceReset"},
                                    {37, "--lose-control 40960"},
                                    {45, "--old-version --reset-ms 1500"},
                                    {53, "--description broken"},
                                    {61, "--description self-value"}};
    auto cameras = std::make_unique<CManyCameras>(COUNT, faults);
    QProcess program;
    program.start(NUVEXUPDATE,
                  QStringList{"update", SAMPLE_UPDATES "/gv-1400m_2.0.0.guf", "--all", "--yes",
                              "--json", "--language", "en", "--max-failures", "64", "--parallel",
                              "64"}
                      + cameras->getOptions());
    QVERIFY(program.waitForFinished(120'000));
    QCOMPARE(program.exitCode(), 1);
    QHash<QString, QJsonObject> results;
    const QByteArray lastLine = program.readAllStandardOutput().trimmed().split('\n').last();
    for (const QJsonValue result : QJsonDocument::fromJson(lastLine)["cameras"].toArray())
        results.insert(result["serialNumber"].toString(), result.toObject());
    QCOMPARE(results.size(), COUNT);

    cameras.reset();
    cameras = std::make_unique<CManyCameras>(COUNT, faults);
    openPool(cameras->getOptions());
    QHash<QString, QString> ids;
    for (const auto &camera :
         m_enumeration->getTransportLayerInfoVector().first()->getCameraInfoList())
        ids.insert(camera->getSerialNumber(), camera->getId());
    // All good ones in one series; each of the others ends the series that it is in.
    m_host->menus->getEntry("NuvexViewer.Menu.Tools").action->trigger();
    QDialog *page = waitForPage("Step 1");
    toggle(page, "GV-1400M");
    for (auto fault = faults.begin(); fault != faults.end(); ++fault)
        toggle(page, CManyCameras::getName(fault.key()) + " (GV-1400M)");
    click(*page, "Next");
    chooseFile("gv-1400m_2.0.0.guf");
    startUpdate();
    page = waitForPage("Step 5");
    QTRY_COMPARE(getText(*page, "successfulUpdatesLabel"), "Successful updates: 56");
    QTRY_COMPARE(getVersions().values().count("2.0.0"), 56);
    for (int number = 1; number <= COUNT; ++number) {
        const QString name = CManyCameras::getName(number);
        QCOMPARE(results[name]["outcome"].toString(),
                 QString(faults.contains(number) ? "failed" : "updated"));
        if (!faults.contains(number))
            QCOMPARE(results[name]["firmwareVersion"].toString(), getVersions().value(ids[name]));
    }
    for (auto fault = faults.begin(); fault != faults.end(); ++fault) {
        const QString name = CManyCameras::getName(fault.key());
        click(*page, "Next");
        page = waitForPage("Step 1");
        toggle(page, name + " (GV-1400M)");
        // What has failed stays ticked, to be repeated.
        if (fault != faults.begin())
            toggle(page, CManyCameras::getName(std::prev(fault).key()) + " (GV-1400M)");
        click(*page, "Next");
        chooseFile("gv-1400m_2.0.0.guf");
        startUpdate();
        page = waitForPage("Step 5");
        QTRY_COMPARE(getText(*page, "failedUpdatesLabel"), "Failed updates: 1");
        const QString message = results[name]["message"].toObject()["text"].toString();
        QVERIFY2(!message.isEmpty() && readLog(page).contains(message), qPrintable(message));
    }
}

/// What this process has of the system: descriptors, threads, children and locks.
static QStringList listPossessions()
{
    const auto count = [](const char *folder) {
        return QString("%1: %2").arg(folder).arg(
            QDir(folder).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size());
    };
    QFile locks("/proc/locks");
    const QByteArray own = ' ' + QByteArray::number(QCoreApplication::applicationPid()) + ' ';
    const int lockCount = locks.open(QIODevice::ReadOnly) ? locks.readAll().count(own) : -1;
    return {
        count("/proc/self/fd"), count("/proc/self/task"),
        QString("children: %1").arg(findChildProcesses(QCoreApplication::applicationPid()).size()),
        QString("locks: %1").arg(lockCount)};
}

/// Many rounds, in some of which the worker is killed; more of them, where WIZARD_ROUNDS says so.
void CWizardTest::leavesNothingBehind()
{
    const QString journals = m_folder.filePath("updates");
    openPool({"--speed", "100", "--cameras", describeCameras(m_folder.path(), "1.2.0")}, journals);
    const int rounds = qMax(qEnvironmentVariableIntValue("WIZARD_ROUNDS"), 9);
    QStringList before;
    QVector<qint64> starts; // milliseconds until the bar moves
    QVector<qint64> gaps; // of the event loop, after a kill
    for (int round = 0; round < rounds; ++round) {
        const bool isKilled = round % 4 == 1;
        startWizard("Line 2");
        chooseFile("vx-1400m_2.0.0.guf");
        QElapsedTimer sinceNext;
        QElapsedTimer sinceTurn;
        QTimer turns;
        qint64 longestGap = 0;
        connect(&turns, &QTimer::timeout, this,
                [&] { longestGap = qMax(longestGap, sinceTurn.restart()); });
        const auto onMoved = [&](int value) {
            if (value == 0 || turns.isActive())
                return;
            starts.append(sinceNext.elapsed());
            turns.start(1);
            sinceTurn.start();
            if (isKilled)
                kill(findChildProcesses(QCoreApplication::applicationPid()).value(0), SIGKILL);
        };
        QObject context;
        connect(findPage("Step 4")->findChild<QProgressBar *>("progressBar"),
                &QProgressBar::valueChanged, &context, onMoved);
        QDialog *const summary = waitForPage("Step 3");
        sinceNext.start();
        click(*summary, "Next");
        QDialog *const result = waitForPage("Step 5");
        if (isKilled) {
            gaps.append(longestGap);
            QVERIFY(getText(*result, "errorTextLabel").contains("ended unexpectedly (signal 9)"));
        } else {
            QCOMPARE(getText(*result, "successfulUpdatesLabel"), "Successful updates: 1");
        }
        click(*result, "Close");
        QTRY_VERIFY(!result->isVisible());
        if (round == 0)
            before = listPossessions();
    }
    QTRY_COMPARE(listPossessions(), before);
    QCOMPARE(QDir(journals).entryList(QDir::Files | QDir::Hidden), QStringList("history.jsonl"));
    std::sort(starts.begin(), starts.end());
    qInfo().noquote() << rounds << "rounds; until the bar moves, in ms: median"
                      << starts.at(starts.size() / 2) << "longest" << starts.last()
                      << "\nlongest gaps of the GUI thread after a kill, in ms:" << gaps << '\n'
                      << listPossessions().join(", ");
}

QTEST_MAIN(CWizardTest)
#include "tst_wizard.moc"
