#include "viewer/camerapool/cameraenumerationservice.h"

#include "viewer/camerapool/cameraactivities.h"
#include "viewer/camerapool/icameraenumerator.h"

#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <mutex>
#include <thread>

using namespace Viewer::CameraPool;
using Layers = QVector<CTransportLayerSnapshot>;

/// Finds what the test puts there, as often as the test lets it.
class CHeldEnumerator : public ICameraEnumerator
{
public:
    Layers enumerate() override
    {
        const Layers found = exchange(nullptr);
        ++m_begun;
        while (m_held) // it has looked already, but does not return
            std::this_thread::yield();
        return found;
    }

    void cancel() override { m_held = false; }

    void set(const Layers &layers) { (void)exchange(&layers); }

    std::atomic<int> m_begun = 0;
    std::atomic<bool> m_held = false;

private:
    Layers exchange(const Layers *layers)
    {
        const std::lock_guard lock(m_mutex);
        return layers ? m_layers = *layers : m_layers;
    }

    std::mutex m_mutex;
    Layers m_layers;
};

static CCameraSnapshot makeCamera(const QString &id, const QString &version = "1.0", int status = 0)
{
    return {id, id, "Model", "1", "R1", version, status, {}, {}, {}};
}

class CCameraEnumerationServiceTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void announcesOnlyChanges();
    void refreshDuringEnumerationLooksAgain();
    void distrustsAResultFromBeforeAnUpdate();

private:
    /// Starts an enumeration of @p layers and waits for its announcement.
    void announce(const Layers &layers);

    /// Begins the second enumeration, which looks but does not return.
    void beginHeld();

    /// Returns when @p begun enumerations have begun and all of them have been taken in. To know
    /// that, it has one more camera found, which is announced.
    void settle(int begun);

    CHeldEnumerator m_enumerator;
    std::shared_ptr<CCameraActivities> m_activities;
    std::unique_ptr<CCameraEnumerationService> m_service;
    int m_announced = 0; ///< since announce()
};

void CCameraEnumerationServiceTest::init()
{
    m_service.reset();
    m_enumerator.m_begun = 0;
    m_activities = std::make_shared<CCameraActivities>();
    m_service = std::make_unique<CCameraEnumerationService>(m_enumerator, m_activities);
    connect(m_service.get(), &CCameraEnumerationService::enumerationChanged, this, [this] {
        ++m_announced;
        QCOMPARE(QThread::currentThread(), thread());
    });
}

void CCameraEnumerationServiceTest::announce(const Layers &layers)
{
    m_enumerator.set(layers);
    m_announced = 0;
    m_service->refreshEnumeration();
    QCOMPARE(m_announced, 0); // it returns at once
    QTRY_COMPARE(m_announced, 1);
    m_announced = 0;
}

void CCameraEnumerationServiceTest::beginHeld()
{
    m_enumerator.m_held = true;
    m_service->onCamerasChanged();
    QTRY_COMPARE(m_enumerator.m_begun.load(), 2);
}

void CCameraEnumerationServiceTest::settle(int begun)
{
    QTRY_COMPARE(m_enumerator.m_begun.load(), begun);
    m_enumerator.set({{"last", "Last", {makeCamera("last")}}});
    m_service->onCamerasChanged();
    QTRY_VERIFY(m_service->findCamera("last"));
}

void CCameraEnumerationServiceTest::announcesOnlyChanges()
{
    const auto a = makeCamera("a");
    const auto b = makeCamera("b");
    const auto makeLayers
        = [](const QVector<CCameraSnapshot> &first, const QVector<CCameraSnapshot> &second) {
              return Layers{{"l1", "Layer", first}, {"l2", "Layer", second}};
          };
    const auto verify = [&](const Layers &layers, bool announced) {
        init();
        announce(makeLayers({a, b}, {}));
        m_enumerator.set(layers);
        m_service->onCamerasChanged();
        settle(2);
        QCOMPARE(m_announced, announced ? 2 : 1);
    };
    verify(makeLayers({a, b}, {}), false);
    verify(makeLayers({a, makeCamera("b", "2.0")}, {}), true);
    verify(makeLayers({a, makeCamera("b", "1.0", 3)}, {}), true);
    verify(makeLayers({b, a}, {}), true);
    verify(makeLayers({a}, {b}), true);
    verify({{"l1", "Layer", {a, b}}}, true);

    announce(makeLayers({a, b}, {}));
    const auto kept = m_service->findCamera("a");
    announce(makeLayers({a, makeCamera("b", "2.0")}, {}));
    QCOMPARE(m_service->findCamera("a"), kept);
    announce(makeLayers({a, makeCamera("b", "2.0")}, {})); // asked for, so without a change, too
}

void CCameraEnumerationServiceTest::refreshDuringEnumerationLooksAgain()
{
    announce({});
    beginHeld();
    // The running one has looked already and will not see this camera.
    m_enumerator.set({{"l1", "Layer", {makeCamera("a")}}});
    m_service->refreshEnumeration();
    m_enumerator.m_held = false;
    QTRY_COMPARE(m_announced, 1);
    QVERIFY(m_service->findCamera("a"));
    QCOMPARE(m_enumerator.m_begun.load(), 3);
}

void CCameraEnumerationServiceTest::distrustsAResultFromBeforeAnUpdate()
{
    const Layers layers{{"l1", "Layer", {makeCamera("a")}}};
    announce(layers);
    // It looks while the camera is gone for its restart, and returns when all is over.
    m_enumerator.set({});
    beginHeld();
    m_activities->begin("a", ECameraActivity::Updating);
    m_activities->end("a");
    m_enumerator.set(layers);
    m_enumerator.m_held = false;
    settle(3);
    QCOMPARE(m_announced, 1); // the one of settle()
}

QTEST_GUILESS_MAIN(CCameraEnumerationServiceTest)
#include "tst_cameraenumerationservice.moc"
