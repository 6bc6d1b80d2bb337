#include "viewer/camerapool/updateestimate.h"

#include <QTest>

#include <limits>

using namespace Viewer::CameraPool;
using Plugin::CameraPool::EFirmwareUpdateStep;
using UpdateFile::CUpdateStep;

Q_DECLARE_METATYPE(Viewer::CameraPool::UpdateFile::CUpdateStep)

static CUpdateStep makeStep(EFirmwareUpdateStep kind, std::optional<int> estimatedMs,
                            qint64 size = 0)
{
    CUpdateStep step;
    step.kind = kind;
    step.estimatedMs = estimatedMs;
    step.payload.size = size;
    return step;
}

class CUpdateEstimateTest : public QObject
{
    Q_OBJECT

private slots:
    void estimates_data();
    void estimates();
    void everyKindHasAnEstimate();
    void totalIsTheSum();
    void timeLimitLeavesRoom();
};

void CUpdateEstimateTest::estimates_data()
{
    QTest::addColumn<CUpdateStep>("step");
    QTest::addColumn<qint64>("rate");
    QTest::addColumn<qint64>("expected");
    using E = EFirmwareUpdateStep;
    QTest::newRow("from the file") << makeStep(E::DeviceReset, 4711) << qint64(1) << qint64(4711);
    QTest::newRow("upload from the file")
        << makeStep(E::FileUpload, 12, 5000) << qint64(1) << qint64(12);
    QTest::newRow("upload from size and speed")
        << makeStep(E::FileUpload, {}, 5000) << qint64(2000) << qint64(2500);
    QTest::newRow("tiny upload") << makeStep(E::FileUpload, {}, 1) << qint64(1'000'000)
                                 << qint64(1);
    QTest::newRow("endless upload")
        << makeStep(E::FileUpload, {}, std::numeric_limits<qint64>::max()) << qint64(1)
        << qint64(std::numeric_limits<int>::max());
    QTest::newRow("zero from the file") << makeStep(E::FeatureWrite, 0) << qint64(1) << qint64(1);
}

void CUpdateEstimateTest::estimates()
{
    QFETCH(CUpdateStep, step);
    QFETCH(qint64, rate);
    QFETCH(qint64, expected);
    QCOMPARE(qint64(estimateStep(step, rate).count()), expected);
}

void CUpdateEstimateTest::everyKindHasAnEstimate()
{
    for (int kind = 0; kind <= static_cast<int>(EFirmwareUpdateStep::Invalid); ++kind)
        QVERIFY(estimateStep(makeStep(static_cast<EFirmwareUpdateStep>(kind), {}), 0).count() >= 1);
}

void CUpdateEstimateTest::totalIsTheSum()
{
    UpdateFile::CUpdateEntry entry;
    entry.steps = {makeStep(EFirmwareUpdateStep::FeatureWrite, 100),
                   makeStep(EFirmwareUpdateStep::FileUpload, {}, 3000)};
    QCOMPARE(qint64(estimateEntry(entry, 1000).count()), qint64(3100));
    const int longest = std::numeric_limits<int>::max();
    entry.steps.append(makeStep(EFirmwareUpdateStep::DeviceReset, longest));
    QCOMPARE(qint64(estimateEntry(entry, 1000).count()), qint64(longest));
}

void CUpdateEstimateTest::timeLimitLeavesRoom()
{
    using std::chrono::milliseconds;
    for (const int estimate : {1, 1000, 20'000, 3'600'000, std::numeric_limits<int>::max()}) {
        const milliseconds limit = getTimeLimit(milliseconds(estimate));
        QVERIFY(limit > milliseconds(estimate));
        QVERIFY(limit >= std::chrono::seconds(30));
        QVERIFY(limit <= milliseconds(estimate) + std::chrono::minutes(5));
    }
}

QTEST_GUILESS_MAIN(CUpdateEstimateTest)
#include "tst_updateestimate.moc"
