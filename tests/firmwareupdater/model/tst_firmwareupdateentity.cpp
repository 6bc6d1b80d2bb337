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
    void announcesAndCopiesEachValue_data();
    void announcesAndCopiesEachValue();
    void showsValuesByKindOfNode();
    void listsChildrenOnceAndInOrder();
    void survivesDeadChildren();
    void takesListedChildrenElsewhereAlong();
    void comparesParentsOnly();
};

void CFirmwareUpdateEntityTest::announcesAndCopiesEachValue_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");

    const auto camera = TestSupport::makeCamera({"c"});
    const Plugin::CameraPool::DeviceFirmwareUpdatePtr job(new TestSupport::CScriptedUpdate);
    const auto row = [](const char *property, const QVariant &value) {
        QTest::newRow(property) << QByteArray(property) << value;
    };
    row("entityType", QVariant::fromValue(EntityType::CameraDevice));
    row("ptrTransportLayerInfo", QVariant::fromValue(TestSupport::makeLayer("l", {})));
    row("ptrCameraInfo", QVariant::fromValue(camera));
    row("selected", true);
    row("selectedFirmware", QString("2.0"));
    row("updateDetails", QVariant::fromValue(EFirmwareUpdateDirection::Downgrade));
    row("updateStatus", QVariant::fromValue(Status::Complete));
    row("updateResult", QVariant::fromValue(Result::Failed));
    row("enabled", false);
    row("ptrDeviceFirmwareUpdate", QVariant::fromValue(job));
    row("children", QVariant::fromValue(QVector<EntityPtr>{EntityPtr()}));
}

void CFirmwareUpdateEntityTest::announcesAndCopiesEachValue()
{
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);

    CFirmwareUpdateEntity parent;
    CFirmwareUpdateEntity entity(&parent);
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

    // A copy has all values but children and job.
    const CFirmwareUpdateEntity copy(entity);
    const bool isCopied = property != "children" && property != "ptrDeviceFirmwareUpdate";
    QCOMPARE(metaProperty.read(&copy) == value, isCopied);
    QVERIFY(!copy.parent());
}

void CFirmwareUpdateEntityTest::showsValuesByKindOfNode()
{
    const auto show = [](int type) {
        CFirmwareUpdateEntity entity;
        entity.setCameraInfo(TestSupport::makeCamera({"c1"}));
        entity.setTransportLayerInfo(TestSupport::makeLayer("layer1", {}));
        entity.setEntityType(static_cast<EntityType>(type));
        entity.setSelectedFirmware("2.0");
        QVariantList data;
        for (int column = -1; column < 9; ++column)
            data.append(entity.getData(column));
        return data;
    };
    const auto row = [](const QVariant &name, const QVariant &id, const QVariant &firmware) {
        return QVariantList{{},
                            name,
                            id,
                            false,
                            firmware,
                            "2.0",
                            3,
                            QVariant::fromValue(Status::Waiting),
                            QVariant::fromValue(Result::Skipped),
                            {}};
    };
    QCOMPARE(show(0), row("Layer layer1", "layer1", {}));
    QCOMPARE(show(1), row("VX-1", "c1", {}));
    QCOMPARE(show(2), row("Camera c1", "c1", "1.0.0"));
    QCOMPARE(show(3), row({}, {}, {}));
}

void CFirmwareUpdateEntityTest::listsChildrenOnceAndInOrder()
{
    CFirmwareUpdateEntity parent;
    auto *const first = new CFirmwareUpdateEntity;
    auto *const second = new CFirmwareUpdateEntity(EntityPtr(&parent));
    QSignalSpy spy(&parent, &CFirmwareUpdateEntity::childrenChanged);
    parent.addChildEntity(first);
    QCOMPARE(second->getRow(), -1);
    parent.addChildEntity(second);
    parent.addChildEntity(first);
    QCOMPARE(first->parent(), &parent);
    QCOMPARE(parent.getChildren(), QVector<EntityPtr>({first, second}));
    QCOMPARE(second->getRow(), 1);
    QVERIFY(!parent.getChildEntity(2));
    QVERIFY(!parent.getChildEntity(-1));
    QCOMPARE(spy.count(), 0);

    parent.setChildren({second, first, second});
    QCOMPARE(second->getRow(), 0);
    QCOMPARE(first->getRow(), 1);
    parent.setChildren({first});
    QCOMPARE(second->getRow(), -1);
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

void CFirmwareUpdateEntityTest::comparesParentsOnly()
{
    CFirmwareUpdateEntity parent;
    const CFirmwareUpdateEntity first(&parent);
    CFirmwareUpdateEntity second(&parent);
    second.setSelectedFirmware("2.0");
    QVERIFY(first == second);
    QVERIFY(first != second);
    QVERIFY(!(first == parent));
    QVERIFY(!(first != parent));
}

QTEST_GUILESS_MAIN(CFirmwareUpdateEntityTest)
#include "tst_firmwareupdateentity.moc"
