#include "viewer/camerapool/progressthrottle.h"
#include "viewer/camerapool/updateestimate.h"

#include <QTest>

#include <limits>

using namespace Viewer::CameraPool;
using namespace std::chrono_literals;
using std::chrono::milliseconds;

class CUpdateEstimateTest : public QObject
{
    Q_OBJECT

private slots:
    void staysInItsLimits();
    void progressIsThrottled();
};

void CUpdateEstimateTest::staysInItsLimits()
{
    const milliseconds longest(std::numeric_limits<int>::max());
    UpdateFile::CUpdateStep step;
    QVERIFY(estimateStep(step, 0) >= 1ms); // whatever kind it is
    step.kind = Plugin::CameraPool::EFirmwareUpdateStep::FileUpload;
    step.payload.size = 5000;
    QCOMPARE(estimateStep(step, 2000).count(), (2500ms).count());
    step.payload.size = std::numeric_limits<qint64>::max();
    UpdateFile::CUpdateEntry entry;
    entry.steps = {step, step};
    QCOMPARE(estimateEntry(entry, 1).count(), longest.count());
    for (const milliseconds estimate : {milliseconds(1), milliseconds(20s), longest})
        QVERIFY(getTimeLimit(estimate) > estimate && getTimeLimit(estimate) >= 30s);
}

void CUpdateEstimateTest::progressIsThrottled()
{
    const CProgressThrottle::Clock::time_point start(1h);
    CProgressThrottle throttle(start);
    QVERIFY(!throttle.passes(50.0, start + 99ms)); // too soon
    QVERIFY(throttle.passes(50.0, start + 100ms));
    QVERIFY(!throttle.passes(50.9, start + 10s)); // not a percent further
    QVERIFY(throttle.passes(51.0, start + 10s));
    QVERIFY(!throttle.passes(99.9, start + 10'099ms));
    QVERIFY(throttle.passes(100.0, start + 10'099ms)); // the end, always
    QVERIFY(!throttle.passes(100.0, start + 20s)); // but once
}

QTEST_GUILESS_MAIN(CUpdateEstimateTest)
#include "tst_updateestimate.moc"
