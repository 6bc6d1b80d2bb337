#include "viewer/camera/genicam/cameraidentities.h"

#include <QtTest>

using namespace Viewer::Camera::GenICam;

class CCameraIdentitiesTest : public QObject
{
    Q_OBJECT

private slots:
    void staysWithTheCamera_data();
    void staysWithTheCamera();
    void knowsATwinByItsHardware();
};

void CCameraIdentitiesTest::staysWithTheCamera_data()
{
    // One search each: "serial number/hardware address/place" of all cameras found, and their ids
    // after the model; "!" marks the ambiguous ones.
    QTest::addColumn<QStringList>("searches");
    QTest::addColumn<QStringList>("ids");
    const QString both = "1/A/10 1/B/11";
    QTest::newRow("a twin turns up")
        << QStringList{"1/A/10", both, "1/B/11 1/A/10"} << QStringList{"1", "1! 1@B!", "1@B! 1!"};
    QTest::newRow("the first one leaves and returns")
        << QStringList{both, "1/B/11", "1/A/10", "1/B/11 1/A/10"}
        << QStringList{"1! 1@B!", "1@B", "1", "1@B! 1!"};
    QTest::newRow("both leave, others stay")
        << QStringList{both + " 2/C/12", "2/C/12", "1/B/11 2/C/12 1/A/10"}
        << QStringList{"1! 1@B! 2", "2", "1@B! 2 1!"};
    QTest::newRow("a new address") << QStringList{"1/A/10", "1/A/12"} << QStringList{"1", "1"};
    QTest::newRow("exchanged addresses")
        << QStringList{both, "1/A/11 1/B/10"} << QStringList{"1! 1@B!", "1! 1@B!"};
    QTest::newRow("a twin at the first one's address")
        << QStringList{"1/A/10", "1/B/10", "1/A/10"} << QStringList{"1", "1@B", "1"};
    QTest::newRow("a new place, hardware unknown")
        << QStringList{"1//10", "1//12", "1/A/10", "1/B/10"} << QStringList{"1", "1", "1", "1@B"};
    QTest::newRow("twins, hardware unknown")
        << QStringList{"1//10 1//11", "1//11", "1//10", "1//12"}
        << QStringList{"1! 1@11!", "1@11", "1", "1@12"};
    QTest::newRow("one hardware address for two")
        << QStringList{"1/A/10 1/A/11", "1/A/11", "1/A/10"} << QStringList{"1! 1@A!", "1@A", "1"};
    QTest::newRow("a serial number like a twin's id")
        << QStringList{both, "1@B/D/13 " + both} << QStringList{"1! 1@B!", "1@B@2 1! 1@B!"};
    QTest::newRow("nothing to tell them apart") << QStringList{"1// 1//"} << QStringList{"1! 1@!"};
}

void CCameraIdentitiesTest::staysWithTheCamera()
{
    QFETCH(QStringList, searches);
    QFETCH(QStringList, ids);
    CCameraIdentities identities;
    for (int i = 0; i < searches.size(); ++i) {
        QVector<CFoundCamera> cameras;
        for (const QString &text : searches[i].split(' ')) {
            CFoundCamera camera;
            camera.serialNumber = text.section('/', 0, 0);
            camera.hardwareAddress = text.section('/', 1, 1);
            camera.address = text.section('/', 2, 2);
            cameras.append(camera);
        }
        identities.assign(cameras);
        QStringList found;
        for (const CFoundCamera &camera : qAsConst(cameras))
            found.append(camera.id.mid(QString("GEV:::").size()) + (camera.isAmbiguous ? "!" : ""));
        QCOMPARE(found.join(' '), ids[i]);
    }
}

void CCameraIdentitiesTest::knowsATwinByItsHardware()
{
    CFoundCamera camera;
    camera.hardwareAddress = "A";
    CFoundCamera other = camera;
    other.address = "elsewhere";
    QVERIFY(other.isSameAs(camera));
    other.hardwareAddress = "B";
    QVERIFY(!other.isSameAs(camera));
    other.hardwareAddress.clear();
    QVERIFY(other.isSameAs(camera));
    other.serialNumber = "2";
    QVERIFY(!other.isSameAs(camera));
}

QTEST_GUILESS_MAIN(CCameraIdentitiesTest)
#include "tst_cameraidentities.moc"
