#include "viewer/camerapool/cameraactivities.h"

#include <QStringList>
#include <QTest>

#include <atomic>
#include <thread>
#include <vector>

using Viewer::CameraPool::CCameraActivities;
using Viewer::CameraPool::ECameraActivity;

Q_DECLARE_METATYPE(Viewer::CameraPool::ECameraActivity)

class CCameraActivitiesTest : public QObject
{
    Q_OBJECT

private slots:
    void permits_data();
    void permits();
    void countsUpdates();
    void tellsTheListener();
    void oneUpdatePerCameraAcrossThreads();
};

void CCameraActivitiesTest::permits_data()
{
    QTest::addColumn<ECameraActivity>("current");
    QTest::addColumn<ECameraActivity>("wanted");
    QTest::addColumn<bool>("permitted");
    using E = ECameraActivity;
    QTest::newRow("acquire an idle camera") << E::Idle << E::Acquiring << true;
    QTest::newRow("update an idle camera") << E::Idle << E::Updating << true;
    QTest::newRow("record an acquiring camera") << E::Acquiring << E::Recording << true;
    QTest::newRow("go on acquiring after recording") << E::Recording << E::Acquiring << true;
    QTest::newRow("update an acquiring camera") << E::Acquiring << E::Updating << false;
    QTest::newRow("update a recording camera") << E::Recording << E::Updating << false;
    QTest::newRow("acquire a camera in update") << E::Updating << E::Acquiring << false;
    QTest::newRow("update a camera in update") << E::Updating << E::Updating << false;
}

void CCameraActivitiesTest::permits()
{
    QFETCH(ECameraActivity, current);
    QFETCH(ECameraActivity, wanted);
    QFETCH(bool, permitted);
    CCameraActivities activities;
    const QString id = QStringLiteral("a");
    if (current != ECameraActivity::Idle)
        activities.begin(id, current);
    QCOMPARE(activities.begin(id, wanted), current);
    QCOMPARE(activities.get(id), permitted ? wanted : current);
    QCOMPARE(activities.get(QStringLiteral("A")), ECameraActivity::Idle);
}

void CCameraActivitiesTest::countsUpdates()
{
    CCameraActivities activities;
    activities.begin(QStringLiteral("a"), ECameraActivity::Acquiring);
    QVERIFY(!activities.isUpdateRunning());
    activities.begin(QStringLiteral("b"), ECameraActivity::Updating);
    activities.begin(QStringLiteral("c"), ECameraActivity::Updating);
    activities.end(QStringLiteral("b"));
    activities.end(QStringLiteral("b"));
    QVERIFY(activities.isUpdateRunning());
    activities.end(QStringLiteral("c"));
    QVERIFY(!activities.isUpdateRunning());
    QCOMPARE(activities.getUpdateCount(), 2);
}

void CCameraActivitiesTest::tellsTheListener()
{
    CCameraActivities activities;
    QStringList told;
    activities.setListener([&told](const QString &id) { told.append(id); });
    activities.begin(QStringLiteral("a"), ECameraActivity::Updating);
    activities.begin(QStringLiteral("a"), ECameraActivity::Acquiring); // not permitted
    activities.end(QStringLiteral("a"));
    activities.end(QStringLiteral("a"));
    activities.setListener({});
    activities.begin(QStringLiteral("b"), ECameraActivity::Updating);
    QCOMPARE(told, QStringList({QStringLiteral("a"), QStringLiteral("a")}));
}

void CCameraActivitiesTest::oneUpdatePerCameraAcrossThreads()
{
    CCameraActivities activities;
    std::atomic<int> heard = 0;
    std::atomic<int> inside = 0;
    std::atomic<int> together = 0;
    std::atomic<int> permitted = 0;
    activities.setListener([&heard](const QString &) { ++heard; });
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            const QString id = QStringLiteral("a");
            for (int round = 0; round < 500; ++round) {
                if (activities.begin(id, ECameraActivity::Updating) != ECameraActivity::Idle)
                    continue;
                ++permitted;
                if (++inside > 1)
                    ++together;
                --inside;
                activities.end(id);
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(together.load(), 0);
    QVERIFY(permitted.load() > 0);
    QCOMPARE(activities.getUpdateCount(), permitted.load());
    QCOMPARE(heard.load(), 2 * permitted.load());
    QVERIFY(!activities.isUpdateRunning());
}

QTEST_GUILESS_MAIN(CCameraActivitiesTest)
#include "tst_cameraactivities.moc"
