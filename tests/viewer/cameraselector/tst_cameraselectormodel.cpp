#include "support/fakeinfos.h"
#include "viewer/cameraselector/cameraselectormodel.h"

#include <QAbstractItemModelTester>
#include <QtTest>

using namespace TestSupport;
using Viewer::CameraPool::ECameraActivity;
using Viewer::CameraSelector::CCameraSelectorModel;

Q_DECLARE_METATYPE(ECameraActivity)

class CCameraSelectorModelTest : public QObject
{
    Q_OBJECT

private slots:
    void showsLayersAndCameras();
    void staysConsistent();
    void showsStates_data();
    void showsStates();
    void announcesOnlyTheStateThatChanged();
    void findsIds();
};

static QVector<Plugin::CameraPool::TransportLayerInfoPtr> makeLayers()
{
    return {makeLayer("gev", {{"a"}, {"b", "VX-2", {}, "2.0.0", 4}}), makeLayer("empty", {}),
            makeLayer("u3v", {{"c"}})};
}

static QString text(const CCameraSelectorModel &model, const QString &id, int column)
{
    return model.findId(id).siblingAtColumn(column).data().toString();
}

void CCameraSelectorModelTest::showsLayersAndCameras()
{
    CCameraSelectorModel model;
    model.setTransportLayers(makeLayers());
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(model.getCameraCount(), 3);
    QCOMPARE(text(model, "gev", CCameraSelectorModel::NameColumn), "Layer gev");
    QCOMPARE(model.rowCount(model.findId("gev")), 2);
    QCOMPARE(model.rowCount(model.findId("empty")), 0);
    QCOMPARE(text(model, "b", CCameraSelectorModel::NameColumn), "VX-2");
    QCOMPARE(text(model, "b", CCameraSelectorModel::SerialNumberColumn), "SN-b");
    QCOMPARE(text(model, "b", CCameraSelectorModel::FirmwareColumn), "2.0.0");
}

void CCameraSelectorModelTest::staysConsistent()
{
    CCameraSelectorModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setTransportLayers(makeLayers());
    model.setActivity("c", ECameraActivity::Recording);
    model.setTransportLayers({makeLayer("u3v", {{"c"}, {"d"}})});
    QCOMPARE(model.getCameraCount(), 2);
    model.setTransportLayers({});
    QCOMPARE(model.rowCount(), 0);
    QVERIFY(!model.getInfo({}));
}

void CCameraSelectorModelTest::showsStates_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<ECameraActivity>("activity");
    QTest::addColumn<QString>("state");
    QTest::newRow("ready") << "a" << ECameraActivity::Idle << "Ready";
    QTest::newRow("cannot be updated") << "b" << ECameraActivity::Idle << "Not updatable (4)";
    QTest::newRow("acquires") << "a" << ECameraActivity::Acquiring << "Acquiring";
    QTest::newRow("records") << "a" << ECameraActivity::Recording << "Recording";
    QTest::newRow("is updated") << "a" << ECameraActivity::Updating << "Updating";
    QTest::newRow("busy, whatever its status")
        << "b" << ECameraActivity::InUseElsewhere << "In use elsewhere";
}

void CCameraSelectorModelTest::showsStates()
{
    QFETCH(const QString, id);
    QFETCH(const ECameraActivity, activity);
    QFETCH(const QString, state);
    CCameraSelectorModel model;
    model.setTransportLayers(makeLayers());
    model.setActivity(id, activity);
    QCOMPARE(text(model, id, CCameraSelectorModel::StateColumn), state);
    // The activity outlives an enumeration that begins while the camera works.
    model.setTransportLayers(makeLayers());
    QCOMPARE(text(model, id, CCameraSelectorModel::StateColumn), state);
}

void CCameraSelectorModelTest::announcesOnlyTheStateThatChanged()
{
    CCameraSelectorModel model;
    model.setTransportLayers(makeLayers());
    QSignalSpy spy(&model, &QAbstractItemModel::dataChanged);
    model.setActivity("c", ECameraActivity::Idle);
    model.setActivity("nobody", ECameraActivity::Acquiring);
    QCOMPARE(spy.count(), 0);
    model.setActivity("c", ECameraActivity::Acquiring);
    QCOMPARE(spy.count(), 1);
    const QModelIndex changed = spy.constFirst().at(0).toModelIndex();
    QCOMPARE(changed, model.findId("c").siblingAtColumn(CCameraSelectorModel::StateColumn));
    QCOMPARE(spy.constFirst().at(1).toModelIndex(), changed);
}

void CCameraSelectorModelTest::findsIds()
{
    CCameraSelectorModel model;
    model.setTransportLayers(makeLayers());
    for (const char *id : {"gev", "a", "b", "empty", "u3v", "c"})
        QCOMPARE(model.getInfo(model.findId(id))->getId(), id);
    QVERIFY(!model.findId("A").isValid());
    QVERIFY(!model.findId("").isValid());
}

QTEST_MAIN(CCameraSelectorModelTest)

#include "tst_cameraselectormodel.moc"
