#include "viewer/camerapool/devicefirmwareupdateservice.h"

#include "scripteddevice.h"
#include "updatefixture.h"
#include "viewer/camerapool/cameraactivities.h"
#include "viewer/camerapool/camerainfo.h"
#include "viewer/camerapool/icameradevicefactory.h"

#include "core/baseexception.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Viewer::CameraPool;
using namespace Test;
using Plugin::CameraPool::CameraInfoPtr;
using Plugin::CameraPool::EFirmwareUpdateDirection;
using Plugin::CameraPool::IFirmwareUpdateInfo;
using UpdateFile::CUpdateEntry;

using Infos = QVector<QSharedPointer<IFirmwareUpdateInfo>>;

namespace {

class CScriptedFactory : public ICameraDeviceFactory
{
public:
    std::unique_ptr<ICameraDevice> createDevice(const QString &cameraId) override
    {
        return cameraId == QLatin1String("id") ? std::make_unique<CScriptedDevice>(script)
                                               : nullptr;
    }

    std::shared_ptr<CDeviceScript> script = std::make_shared<CDeviceScript>();
};

CCameraSnapshot makeCamera()
{
    CCameraSnapshot camera;
    camera.id = QStringLiteral("id");
    camera.displayName = QStringLiteral("Camera");
    camera.modelName = QStringLiteral("VX-1400M");
    camera.deviceVersion = QStringLiteral("R2");
    camera.firmwareVersion = QStringLiteral("1.2.0");
    return camera;
}

CameraInfoPtr makeCameraInfo(const CCameraSnapshot &camera)
{
    return CameraInfoPtr(new CCameraInfo(camera, QStringLiteral("layer")));
}

QStringList getVersions(const Infos &infos)
{
    QStringList versions;
    for (const auto &info : infos)
        versions.append(info->getVersion());
    return versions;
}

/// An entry that this service did not make.
class CForeignInfo : public IFirmwareUpdateInfo
{
public:
    QString getVersion() const override
    {
        return QStringLiteral("9.0");
    }
    QString getDescription() const override
    {
        return QString();
    }
    QString getReleaseNotes() const override
    {
        return QString();
    }
    QString getFileName() const override
    {
        return QString();
    }
};

} // namespace

class CDeviceFirmwareUpdateServiceTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void readsEntriesInTheFilesOrder();
    void noticesAChangedFile();
    void throwsOneSentenceForUnreadableFiles_data();
    void throwsOneSentenceForUnreadableFiles();
    void findsWhatFits_data();
    void findsWhatFits();
    void statusPreventsUpdates();
    void newestComesFirst();
    void refusesWhatIsNotThere();
    void jobKnowsTheCurrentVersion();
    void jobsAreMadeWithoutTouchingTheCamera();

private:
    [[nodiscard]] QString getPath(const char *name) const;

    QScopedPointer<QTemporaryDir> m_folder;
    CScriptedFactory m_factory;
    CameraInfoPtr m_enumerated;
    std::unique_ptr<CDeviceFirmwareUpdateService> m_service;
};

void CDeviceFirmwareUpdateServiceTest::init()
{
    m_folder.reset(new QTemporaryDir);
    m_enumerated.clear();
    m_service = std::make_unique<CDeviceFirmwareUpdateService>(
        m_factory, [this](const QString &) { return m_enumerated; },
        std::make_shared<CCameraActivities>());
}

QString CDeviceFirmwareUpdateServiceTest::getPath(const char *name) const
{
    return m_folder->filePath(QString::fromLatin1(name));
}

void CDeviceFirmwareUpdateServiceTest::readsEntriesInTheFilesOrder()
{
    const QString path = getPath("a.guf");
    const QStringList versions{QStringLiteral("2.0.0"), QStringLiteral("1.0.0"),
                               QStringLiteral("3.0.0")};
    writeUpdateFile(path, versions, 100);
    const Infos infos = m_service->getFirmwareUpdateInfos(QDir::toNativeSeparators(path), {});
    QCOMPARE(getVersions(infos), versions);
    QCOMPARE(infos.constFirst()->getFileName(), path);
}

void CDeviceFirmwareUpdateServiceTest::noticesAChangedFile()
{
    const QString path = getPath("a.guf");
    writeUpdateFile(path, {QStringLiteral("2.0.0")}, 100);
    const Infos before = m_service->getFirmwareUpdateInfos(path, {});
    writeUpdateFile(path, {QStringLiteral("2.5.0"), QStringLiteral("3.0.0")}, 100);
    QCOMPARE(getVersions(m_service->getFirmwareUpdateInfos(path, {})),
             QStringList({QStringLiteral("2.5.0"), QStringLiteral("3.0.0")}));
    // Who holds the old entries can go on reading them.
    QCOMPARE(getVersions(before), QStringList(QStringLiteral("2.0.0")));
}

void CDeviceFirmwareUpdateServiceTest::throwsOneSentenceForUnreadableFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << QStringLiteral("missing.guf");
    QTest::newRow("folder") << QStringLiteral(".");
    QTest::newRow("no archive") << QStringLiteral("text.guf");
    QTest::newRow("no manifest") << QStringLiteral("bare.guf");
}

void CDeviceFirmwareUpdateServiceTest::throwsOneSentenceForUnreadableFiles()
{
    QFETCH(QString, name);
    QFile text(getPath("text.guf"));
    QVERIFY(text.open(QIODevice::WriteOnly));
    text.write("Just text");
    text.close();
    writePayload(getPath("bare.guf"), "payload");
    for (int i = 0; i < 2; ++i) { // the second time from the cache
        try {
            m_service->getFirmwareUpdateInfos(m_folder->filePath(name), {});
            QFAIL("nothing was thrown");
        } catch (const Core::Exception::BaseException &error) {
            QVERIFY(!error.getMessage().isEmpty());
            QVERIFY(!error.getMessage().contains(QLatin1Char('\n')));
        }
    }
}

void CDeviceFirmwareUpdateServiceTest::findsWhatFits_data()
{
    QTest::addColumn<QStringList>("models");
    QTest::addColumn<QStringList>("deviceVersions");
    QTest::addColumn<QString>("minimumVersion");
    QTest::addColumn<QString>("currentVersion");
    QTest::addColumn<bool>("fits");

    const QStringList model{QStringLiteral("VX-1"), QStringLiteral("VX-1400M")};
    const auto row = [](const char *name, const QStringList &models, const QStringList &devices,
                        const char *minimum, const char *current, bool fits) {
        QTest::newRow(name) << models << devices << QString::fromLatin1(minimum)
                            << QString::fromLatin1(current) << fits;
    };
    row("model listed", model, {}, "", "1.2.0", true);
    row("model not listed", {QStringLiteral("VX-1400")}, {}, "", "1.2.0", false);
    row("model in other letter case", {QStringLiteral("vx-1400m")}, {}, "", "1.2.0", false);
    row("device version listed", model, {QStringLiteral("R1"), QStringLiteral("R2")}, "", "1.2.0",
        true);
    row("device version not listed", model, {QStringLiteral("R1")}, "", "1.2.0", false);
    row("above the minimum", model, {}, "1.1", "1.2.0", true);
    row("at the minimum", model, {}, "1.2", "1.2.0", true);
    row("below the minimum", model, {}, "1.2.1", "1.2.0", false);
    row("ten is above nine", model, {}, "1.9", "1.10", true);
    row("prerelease is below its release", model, {}, "1.2.0", "1.2.0-rc1", false);
    row("unreadable, with a minimum", model, {}, "1.0", "unknown", false);
    row("unreadable, without a minimum", model, {}, "", "unknown", true);
}

void CDeviceFirmwareUpdateServiceTest::findsWhatFits()
{
    QFETCH(QStringList, models);
    QFETCH(QStringList, deviceVersions);
    QFETCH(QString, minimumVersion);
    QFETCH(QString, currentVersion);
    QFETCH(bool, fits);
    CUpdateEntry entry;
    entry.version = QStringLiteral("2.0");
    entry.models = models;
    entry.deviceVersions = deviceVersions;
    entry.minimumVersion = minimumVersion;
    CCameraSnapshot camera = makeCamera();
    camera.firmwareVersion = currentVersion;

    Infos compatible;
    bool updatable = false;
    QVERIFY(m_service->getCompatibleFirmwareUpdates(makeCameraInfo(camera), {makeInfo(entry, {})},
                                                    compatible, updatable));
    QVERIFY(updatable);
    QCOMPARE(compatible.size(), fits ? 1 : 0);
}

void CDeviceFirmwareUpdateServiceTest::statusPreventsUpdates()
{
    CCameraSnapshot camera = makeCamera();
    camera.statusCode = -1;
    const Infos all{makeInfo(makeEntry(QStringLiteral("2.0"), "x"), {})};
    Infos compatible = all;
    bool updatable = true;
    m_service->getCompatibleFirmwareUpdates(makeCameraInfo(camera), all, compatible, updatable);
    QVERIFY(!updatable);
    QVERIFY(compatible.isEmpty());
}

void CDeviceFirmwareUpdateServiceTest::newestComesFirst()
{
    Infos all;
    for (const char *version : {"1.9", "odd", "1.10", "1.10-rc1", "2.0", "older still"})
        all.append(makeInfo(makeEntry(QString::fromLatin1(version), "x"), {}));
    Infos compatible;
    bool updatable = false;
    QVERIFY(m_service->getCompatibleFirmwareUpdates(makeCameraInfo(makeCamera()), all, compatible,
                                                    updatable));
    QCOMPARE(
        getVersions(compatible),
        QStringList({QStringLiteral("2.0"), QStringLiteral("1.10"), QStringLiteral("1.10-rc1"),
                     QStringLiteral("1.9"), QStringLiteral("odd"), QStringLiteral("older still")}));
}

void CDeviceFirmwareUpdateServiceTest::refusesWhatIsNotThere()
{
    const auto info = makeInfo(makeEntry(QStringLiteral("2.0"), "x"), {});
    const QSharedPointer<IFirmwareUpdateInfo> foreign(new CForeignInfo);
    const CameraInfoPtr camera = makeCameraInfo(makeCamera());
    Infos compatible{info};
    bool updatable = true;
    QVERIFY(!m_service->getCompatibleFirmwareUpdates({}, {info}, compatible, updatable));
    QVERIFY(compatible.isEmpty());
    QVERIFY(m_service->getCompatibleFirmwareUpdates(camera, {foreign, {}}, compatible, updatable));
    QVERIFY(compatible.isEmpty());

    QVERIFY(!m_service->createDeviceFirmwareUpdate({}, info));
    QVERIFY(!m_service->createDeviceFirmwareUpdate(camera, {}));
    QVERIFY(!m_service->createDeviceFirmwareUpdate(camera, foreign));
    CCameraSnapshot unknown = makeCamera();
    unknown.id = QStringLiteral("ID");
    QVERIFY(!m_service->createDeviceFirmwareUpdate(makeCameraInfo(unknown), info));
}

void CDeviceFirmwareUpdateServiceTest::jobKnowsTheCurrentVersion()
{
    const auto info = makeInfo(makeEntry(QStringLiteral("2.0"), "x"), {});
    const CameraInfoPtr old = makeCameraInfo(makeCamera());
    const auto first = m_service->createDeviceFirmwareUpdate(old, info);
    QCOMPARE(first->getFirmwareVersion(), QStringLiteral("1.2.0"));
    QCOMPARE(first->getFirmwareUpdateDirection(), EFirmwareUpdateDirection::Upgrade);
    QCOMPARE(first->getFirmwareUpdateInfo(), info);

    CCameraSnapshot updated = makeCamera();
    updated.firmwareVersion = QStringLiteral("2.0.0");
    m_enumerated = makeCameraInfo(updated);
    const auto second = m_service->createDeviceFirmwareUpdate(old, info);
    QCOMPARE(second->getFirmwareVersion(), QStringLiteral("2.0.0"));
    QCOMPARE(second->getFirmwareUpdateDirection(), EFirmwareUpdateDirection::Reinstall);
}

void CDeviceFirmwareUpdateServiceTest::jobsAreMadeWithoutTouchingTheCamera()
{
    const auto job = m_service->createDeviceFirmwareUpdate(
        makeCameraInfo(makeCamera()), makeInfo(makeEntry(QStringLiteral("2.0"), "x"), {}));
    QVERIFY(job);
    QVERIFY(!job->parent());
    QVERIFY(m_factory.script->calls.isEmpty());
}

QTEST_GUILESS_MAIN(CDeviceFirmwareUpdateServiceTest)
#include "tst_devicefirmwareupdateservice.moc"
