#include "model/firmwareupdateentity.h"
#include "support/fakeinfos.h"
#include "support/scriptedupdate.h"

#include <QMetaProperty>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

using Plugin::CameraPool::EFirmwareUpdateDirection;
using Plugin::FirmwareUpdater::Internal::Entity::CFirmwareUpdateEntity;
using EntityType = CFirmwareUpdateEntity::EFirmwareUpdateEntityType;
using Status = CFirmwareUpdateEntity::EFirmwareUpdateStatus;
using Result = CFirmwareUpdateEntity::EFirmwareUpdateResult;
using EntityPtr = QPointer<CFirmwareUpdateEntity>;

class CFirmwareUpdateEntityTest : public QObject
{
    Q_OBJECT

private slots:
    void startsUnselectedAndWaiting();
    void announcesEachChangeOnce_data();
    void announcesEachChangeOnce();
    void showsValuesByKindOfNode_data();
    void showsValuesByKindOfNode();
    void addsAChildOnce();
    void knowsItsRow();
    void findsRowsAfterTheListWasReplaced();
    void survivesDeadChildren();
    void takesListedChildrenElsewhereAlong();
    void copiesValuesButNeitherChildrenNorJob();
    void comparesParentsOnly();
};

void CFirmwareUpdateEntityTest::startsUnselectedAndWaiting()
{
    const CFirmwareUpdateEntity entity;
    QCOMPARE(entity.getEntityType(), EntityType::TransportLayer);
    QCOMPARE(entity.getUpdateStatus(), Status::Waiting);
    QCOMPARE(entity.getUpdateResult(), Result::Skipped);
    QCOMPARE(static_cast<int>(entity.getUpdateDetails()), 3);
    QVERIFY(entity.isEnabled());
    QVERIFY(!entity.isSelected());
    QCOMPARE(entity.getSelectedFirmware(), QString());
    QVERIFY(!entity.getCameraInfo());
    QVERIFY(!entity.getDeviceFirmwareUpdate());
    QCOMPARE(entity.getChildCount(), 0);
    QCOMPARE(entity.getRow(), 0);
}

void CFirmwareUpdateEntityTest::announcesEachChangeOnce_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");

    const auto camera = TestSupport::makeCamera({QStringLiteral("c")});
    const Plugin::CameraPool::DeviceFirmwareUpdatePtr job(new TestSupport::CScriptedUpdate);
    const auto row = [](const char *property, const QVariant &value) {
        QTest::newRow(property) << QByteArray(property) << value;
    };
    row("entityType", QVariant::fromValue(EntityType::CameraDevice));
    row("ptrTransportLayerInfo",
        QVariant::fromValue(TestSupport::makeLayer(QStringLiteral("l"), {})));
    row("ptrCameraInfo", QVariant::fromValue(camera));
    row("selected", true);
    row("selectedFirmware", QStringLiteral("2.0"));
    row("updateDetails", QVariant::fromValue(EFirmwareUpdateDirection::Downgrade));
    row("updateStatus", QVariant::fromValue(Status::Complete));
    row("updateResult", QVariant::fromValue(Result::Failed));
    row("enabled", false);
    row("ptrDeviceFirmwareUpdate", QVariant::fromValue(job));
    row("children", QVariant::fromValue(QVector<EntityPtr>{EntityPtr()}));
}

void CFirmwareUpdateEntityTest::announcesEachChangeOnce()
{
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);

    CFirmwareUpdateEntity entity;
    const QMetaObject *const metaObject = entity.metaObject();
    const QMetaProperty metaProperty
        = metaObject->property(metaObject->indexOfProperty(property.constData()));
    QVERIFY(metaProperty.hasNotifySignal());
    QSignalSpy spy(&entity, metaProperty.notifySignal());
    QVERIFY(spy.isValid());

    QVERIFY(metaProperty.read(&entity) != value);
    QVERIFY(metaProperty.write(&entity, value));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first(), value);
    QCOMPARE(metaProperty.read(&entity), value);

    QVERIFY(metaProperty.write(&entity, value));
    QCOMPARE(spy.count(), 1);
}

void CFirmwareUpdateEntityTest::showsValuesByKindOfNode_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("name");
    QTest::addColumn<QVariant>("id");
    QTest::addColumn<QVariant>("firmware");

    QTest::newRow("transport layer") << 0 << QVariant(QStringLiteral("Layer layer1"))
                                     << QVariant(QStringLiteral("layer1")) << QVariant();
    QTest::newRow("model group") << 1 << QVariant(QStringLiteral("VX-1"))
                                 << QVariant(QStringLiteral("c1")) << QVariant();
    QTest::newRow("camera") << 2 << QVariant(QStringLiteral("Camera c1"))
                            << QVariant(QStringLiteral("c1")) << QVariant(QStringLiteral("1.0.0"));
    QTest::newRow("unknown kind") << 3 << QVariant() << QVariant() << QVariant();
}

void CFirmwareUpdateEntityTest::showsValuesByKindOfNode()
{
    QFETCH(int, type);
    QFETCH(QVariant, name);
    QFETCH(QVariant, id);
    QFETCH(QVariant, firmware);

    CFirmwareUpdateEntity entity;
    entity.setCameraInfo(TestSupport::makeCamera({QStringLiteral("c1")}));
    entity.setTransportLayerInfo(TestSupport::makeLayer(QStringLiteral("layer1"), {}));
    entity.setEntityType(static_cast<EntityType>(type));
    entity.setSelected(true);
    entity.setSelectedFirmware(QStringLiteral("2.0"));

    QCOMPARE(entity.getData(0), name);
    QCOMPARE(entity.getData(1), id);
    QCOMPARE(entity.getData(2), QVariant(true));
    QCOMPARE(entity.getData(3), firmware);
    QCOMPARE(entity.getData(4), QVariant(QStringLiteral("2.0")));
    QCOMPARE(entity.getData(5), QVariant(3));
    QCOMPARE(entity.getData(6).userType(), qMetaTypeId<Status>());
    QCOMPARE(entity.getData(6).toInt(), 0);
    QCOMPARE(entity.getData(7).userType(), qMetaTypeId<Result>());
    QCOMPARE(entity.getData(7).toInt(), 2);
    QVERIFY(!entity.getData(-1).isValid());
    QVERIFY(!entity.getData(8).isValid());
}

void CFirmwareUpdateEntityTest::addsAChildOnce()
{
    CFirmwareUpdateEntity parent;
    auto *const child = new CFirmwareUpdateEntity;
    QSignalSpy spy(&parent, &CFirmwareUpdateEntity::childrenChanged);
    parent.addChildEntity(child);
    parent.addChildEntity(child);
    QCOMPARE(parent.getChildCount(), 1);
    QCOMPARE(child->parent(), &parent);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(parent.getChildEntity(0).data(), child);
    QVERIFY(!parent.getChildEntity(1));
    QVERIFY(!parent.getChildEntity(-1));
}

void CFirmwareUpdateEntityTest::knowsItsRow()
{
    CFirmwareUpdateEntity parent;
    auto *const first = new CFirmwareUpdateEntity;
    auto *const second = new CFirmwareUpdateEntity;
    auto *const unlisted = new CFirmwareUpdateEntity(EntityPtr(&parent));
    parent.addChildEntity(first);
    parent.addChildEntity(second);
    QCOMPARE(first->getRow(), 0);
    QCOMPARE(second->getRow(), 1);
    QCOMPARE(unlisted->getRow(), -1);
}

void CFirmwareUpdateEntityTest::findsRowsAfterTheListWasReplaced()
{
    CFirmwareUpdateEntity parent;
    auto *const first = new CFirmwareUpdateEntity;
    auto *const second = new CFirmwareUpdateEntity;
    parent.addChildEntity(first);
    parent.addChildEntity(second);

    parent.setChildren({second, first, second});
    QCOMPARE(second->getRow(), 0);
    QCOMPARE(first->getRow(), 1);

    parent.setChildren({first});
    QCOMPARE(second->getRow(), -1);
    QCOMPARE(second->parent(), &parent);
    parent.addChildEntity(second);
    QCOMPARE(second->getRow(), 1);
}

void CFirmwareUpdateEntityTest::survivesDeadChildren()
{
    CFirmwareUpdateEntity parent;
    // A node made at the place of a dead one must not be taken for it.
    for (int i = 0; i < 100; ++i) {
        auto *const child = new CFirmwareUpdateEntity;
        parent.addChildEntity(child);
        QCOMPARE(child->getRow(), i);
        delete child;
    }
    QCOMPARE(parent.getChildCount(), 100);
    QVERIFY(!parent.getChildEntity(50));
}

void CFirmwareUpdateEntityTest::takesListedChildrenElsewhereAlong()
{
    CFirmwareUpdateEntity newParent;
    auto *const oldParent = new CFirmwareUpdateEntity;
    const EntityPtr own(new CFirmwareUpdateEntity);
    const EntityPtr moved(new CFirmwareUpdateEntity);
    oldParent->addChildEntity(own);
    oldParent->addChildEntity(moved);
    newParent.addChildEntity(moved);

    delete oldParent;
    QVERIFY(!own);
    QVERIFY(moved);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!moved);
}

void CFirmwareUpdateEntityTest::copiesValuesButNeitherChildrenNorJob()
{
    CFirmwareUpdateEntity parent;
    CFirmwareUpdateEntity original(&parent);
    original.setCameraInfo(TestSupport::makeCamera({QStringLiteral("c1")}));
    original.setTransportLayerInfo(TestSupport::makeLayer(QStringLiteral("l"), {}));
    original.setEntityType(EntityType::CameraDevice);
    original.setSelected(true);
    original.setSelectedFirmware(QStringLiteral("2.0"));
    original.setUpdateDetails(EFirmwareUpdateDirection::Reinstall);
    original.setUpdateStatus(Status::Updating);
    original.setUpdateResult(Result::Failed);
    original.setEnabled(false);
    original.setDeviceFirmwareUpdate(
        Plugin::CameraPool::DeviceFirmwareUpdatePtr(new TestSupport::CScriptedUpdate));
    original.addChildEntity(new CFirmwareUpdateEntity);

    const CFirmwareUpdateEntity copy(original);
    QVERIFY(!copy.parent());
    QCOMPARE(copy.getCameraInfo(), original.getCameraInfo());
    QCOMPARE(copy.getTransportLayerInfo(), original.getTransportLayerInfo());
    QCOMPARE(copy.getEntityType(), EntityType::CameraDevice);
    QVERIFY(copy.isSelected());
    QCOMPARE(copy.getSelectedFirmware(), QStringLiteral("2.0"));
    QCOMPARE(copy.getUpdateDetails(), EFirmwareUpdateDirection::Reinstall);
    QCOMPARE(copy.getUpdateStatus(), Status::Updating);
    QCOMPARE(copy.getUpdateResult(), Result::Failed);
    QVERIFY(!copy.isEnabled());
    QCOMPARE(copy.getChildCount(), 0);
    QVERIFY(!copy.getDeviceFirmwareUpdate());
}

void CFirmwareUpdateEntityTest::comparesParentsOnly()
{
    CFirmwareUpdateEntity parent;
    CFirmwareUpdateEntity other;
    CFirmwareUpdateEntity first(&parent);
    CFirmwareUpdateEntity second(&parent);
    second.setSelectedFirmware(QStringLiteral("2.0"));
    CFirmwareUpdateEntity stranger(&other);
    QVERIFY(first == second);
    QVERIFY(first != second);
    QVERIFY(!(first == stranger));
    QVERIFY(!(first != stranger));
}

QTEST_GUILESS_MAIN(CFirmwareUpdateEntityTest)
#include "tst_firmwareupdateentity.moc"
