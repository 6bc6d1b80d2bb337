#include "viewer/camerapool/camerapool.h"
#include "viewer/camerapool/simulation/simulation.h"

#include "jobrecorder.h"
#include "updatefixture.h"

#include "camerapool/icameraenumerationservice.h"
#include "camerapool/idevicefirmwareupdateservice.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Viewer::CameraPool;
using namespace Test;
using Plugin::CameraPool::CameraInfoPtr;
using Plugin::CameraPool::EFirmwareUpdateDirection;
using Plugin::CameraPool::ICameraEnumerationService;
using Plugin::CameraPool::IDeviceFirmwareUpdateService;

/// The whole way of an update, from the file to the camera's next enumeration, for each thing that
/// the sample description lets go wrong.
class CScriptedFaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void leadsToItsSentence_data();
    void leadsToItsSentence();
    void sameOutcomeAtOtherSpeeds_data();
    void sameOutcomeAtOtherSpeeds();

private:
    struct COutcome
    {
        QStringList milestones;
        QString error;
        QString versionAfterwards; ///< empty: the camera is not found any more
        EFirmwareUpdateDirection direction = EFirmwareUpdateDirection::Invalid;
    };

    /// Updates one camera of the sample in a new pool, on a thread as the wizard does.
    void update(const QString &cameraId, double speedFactor, COutcome &outcome);

    QTemporaryDir m_folder;
    QString m_file;
};

void CScriptedFaultsTest::initTestCase()
{
    m_file = m_folder.filePath(QStringLiteral("update.guf"));
    writeUpdateFile(m_file, {QStringLiteral("2.0.0")}, 200'000);
}

void CScriptedFaultsTest::update(const QString &cameraId, double speedFactor, COutcome &outcome)
{
    CCameraPoolOptions options;
    options.descriptionFile = QStringLiteral(SAMPLE_CAMERAS "/faults.json");
    options.speedFactor = speedFactor;
    CCameraPool pool(options);
    QSharedPointer<ICameraEnumerationService> enumeration;
    QSharedPointer<IDeviceFirmwareUpdateService> updates;
    for (const auto &service : pool.getServices()) {
        if (const auto found = service.dynamicCast<ICameraEnumerationService>())
            enumeration = found;
        if (const auto found = service.dynamicCast<IDeviceFirmwareUpdateService>())
            updates = found;
    }
    QVERIFY(enumeration);
    QVERIFY(updates);
    const auto find = [&enumeration, &cameraId]() -> CameraInfoPtr {
        for (const auto &layer : enumeration->getTransportLayerInfoVector()) {
            for (const CameraInfoPtr &camera : layer->getCameraInfoList()) {
                if (camera->getId() == cameraId)
                    return camera;
            }
        }
        return {};
    };

    QSignalSpy announced(enumeration.data(), &ICameraEnumerationService::enumerationChanged);
    pool.start();
    QTRY_COMPARE(announced.count(), 1);
    QVERIFY(find());

    QVector<QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>> compatible;
    bool updatable = false;
    QVERIFY(updates->getCompatibleFirmwareUpdates(
        find(), updates->getFirmwareUpdateInfos(m_file, {}), compatible, updatable));
    QCOMPARE(compatible.size(), 1);
    const auto job = updates->createDeviceFirmwareUpdate(find(), compatible.constFirst());
    QVERIFY(job);
    outcome.direction = job->getFirmwareUpdateDirection();
    const CJobRecorder recorder(*job);
    executeOnThread(*job);
    QVERIFY(!pool.isUpdateRunning());
    outcome.milestones = recorder.getMilestones();
    QCOMPARE(recorder.getAll("done").size() + recorder.getAll("error").size(), 1);
    outcome.error = recorder.getAll("error").value(0);
    QVERIFY(!outcome.error.endsWith(QLatin1Char('.')));
    QVERIFY(!outcome.error.contains(QLatin1Char('\n')));
    if (!outcome.error.isEmpty())
        QVERIFY2(outcome.error.startsWith(QLatin1String("Camera ")), qPrintable(outcome.error));

    // Nothing has been announced meanwhile, so what comes now is from after the update.
    QCOMPARE(announced.count(), 1);
    announced.clear();
    enumeration->refreshEnumeration();
    QTRY_VERIFY(announced.count() > 0);
    outcome.versionAfterwards = find() ? find()->getFirmwareVersion() : QString();
}

void CScriptedFaultsTest::leadsToItsSentence_data()
{
    QTest::addColumn<QString>("cameraId");
    QTest::addColumn<QString>("error"); // empty: the update succeeds
    QTest::addColumn<bool>("written");
    QTest::addColumn<QString>("version");

    const auto row = [](const char *name, const char *id, const char *error, bool written,
                        const char *version) {
        QTest::newRow(name) << QString::fromLatin1(id) << QString::fromLatin1(error) << written
                            << QString::fromLatin1(version);
    };
    row("no fault", "fault-none", "", false, "2.0.0");
    row("precondition not met", "fault-precondition", "cannot be updated now", false, "1.2.0");
    row("write refused", "fault-write-refused", "refuses to write the feature", true, "1.2.0");
    row("upload fails", "fault-upload-fails", "broke off after 100000 of 200000 bytes", true,
        "1.2.0");
    row("vanishes", "fault-vanishes", "the connection was lost", true, "");
    row("assert fails", "fault-assert-fails",
        "feature \"DeviceFirmwareVersion\" is \"invalid\" instead of \"2.0.0\"", true, "2.0.0");
    row("never returns from reset", "fault-never-returns", "did not come back from its reset", true,
        "");
    row("returns late", "fault-returns-late", "", false, "2.0.0");
    row("returns with the old version", "fault-old-version",
        "feature \"DeviceFirmwareVersion\" is \"1.2.0\" instead of \"2.0.0\"", true, "1.2.0");
}

void CScriptedFaultsTest::leadsToItsSentence()
{
    QFETCH(QString, cameraId);
    QFETCH(QString, error);
    QFETCH(bool, written);
    COutcome outcome;
    update(cameraId, 200.0, outcome);
    if (QTest::currentTestFailed())
        return;
    QCOMPARE(outcome.direction, EFirmwareUpdateDirection::Upgrade);
    QVERIFY2(outcome.error.isEmpty() == error.isEmpty(), qPrintable(outcome.error));
    QVERIFY2(outcome.error.contains(error), qPrintable(outcome.error));
    QVERIFY2(outcome.error.contains(QLatin1String("repeat it before the camera is used"))
                 == written,
             qPrintable(outcome.error));
    QTEST(outcome.versionAfterwards, "version");
}

void CScriptedFaultsTest::sameOutcomeAtOtherSpeeds_data()
{
    QTest::addColumn<QString>("cameraId");
    for (const char *id : {"fault-none", "fault-upload-fails", "fault-vanishes",
                           "fault-never-returns", "fault-returns-late"})
        QTest::newRow(id) << QString::fromLatin1(id);
}

void CScriptedFaultsTest::sameOutcomeAtOtherSpeeds()
{
    QFETCH(QString, cameraId);
    COutcome slow;
    update(cameraId, 50.0, slow);
    COutcome fast;
    update(cameraId, 100'000.0, fast);
    QVERIFY(!slow.milestones.isEmpty());
    QCOMPARE(fast.milestones, slow.milestones);
    QCOMPARE(fast.versionAfterwards, slow.versionAfterwards);
}

QTEST_GUILESS_MAIN(CScriptedFaultsTest)
#include "tst_scriptedfaults.moc"
