#include "viewer/camerapool/cameraenumerationservice.h"

#include "viewer/camerapool/cameraactivities.h"
#include "viewer/camerapool/icameraenumerator.h"

#include <QSignalSpy>
#include <QTest>

#include <condition_variable>
#include <mutex>

using namespace Viewer::CameraPool;
using Plugin::CameraPool::CameraInfoPtr;
using Plugin::CameraPool::TransportLayerInfoPtr;

Q_DECLARE_METATYPE(Viewer::CameraPool::CTransportLayerSnapshot)

namespace {

/// Finds what the test puts there, as often as the test lets it.
class CHeldEnumerator : public ICameraEnumerator
{
public:
    QVector<CTransportLayerSnapshot> enumerate() override
    {
        std::unique_lock lock(m_mutex);
        const QVector<CTransportLayerSnapshot> found = m_layers;
        ++m_begun;
        m_condition.wait(lock, [this] { return !m_held || m_cancelled; });
        return found;
    }

    void cancel() override
    {
        const std::lock_guard lock(m_mutex);
        m_cancelled = true;
        m_condition.notify_all();
    }

    void setLayers(const QVector<CTransportLayerSnapshot> &layers)
    {
        const std::lock_guard lock(m_mutex);
        m_layers = layers;
    }

    /// A held enumeration has looked already, but does not return.
    void setHeld(bool held)
    {
        const std::lock_guard lock(m_mutex);
        m_held = held;
        m_condition.notify_all();
    }

    int getBegun()
    {
        const std::lock_guard lock(m_mutex);
        return m_begun;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_condition;
    QVector<CTransportLayerSnapshot> m_layers;
    int m_begun = 0;
    bool m_held = false;
    bool m_cancelled = false;
};

CCameraSnapshot makeCamera(const char *id, const char *version = "1.0")
{
    CCameraSnapshot camera;
    camera.id = QString::fromLatin1(id);
    camera.displayName = camera.id;
    camera.firmwareVersion = QString::fromLatin1(version);
    return camera;
}

CTransportLayerSnapshot makeLayer(const char *id, const QVector<CCameraSnapshot> &cameras)
{
    return {QString::fromLatin1(id), QStringLiteral("Layer"), cameras};
}

} // namespace

class CCameraEnumerationServiceTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void isEmptyBeforeTheFirstResult();
    void announcesTheFirstResultEvenIfEmpty();
    void resultIsInPlaceWhenAnnounced();
    void announcesOnlyChanges_data();
    void announcesOnlyChanges();
    void explicitRefreshIsAnnouncedOnce();
    void keepsUnchangedObjects();
    void refreshDuringEnumerationLooksAgain();
    void announcesOnceAfterAnUpdate();
    void distrustsAResultFromBeforeAnUpdate();
    void endsInTheMiddleOfAnEnumeration();
    void takesManyCameras();

private:
    /// Starts an enumeration of @p layers and waits for its announcement.
    void announce(const QVector<CTransportLayerSnapshot> &layers);

    /// Returns when @p begun enumerations have begun and all of them have been taken in. To know
    /// that, it has one more camera found, which is announced.
    void settle(int begun);

    std::unique_ptr<CHeldEnumerator> m_enumerator;
    std::shared_ptr<CCameraActivities> m_activities;
    std::unique_ptr<CCameraEnumerationService> m_service;
    std::unique_ptr<QSignalSpy> m_spy;
};

void CCameraEnumerationServiceTest::init()
{
    m_enumerator = std::make_unique<CHeldEnumerator>();
    m_activities = std::make_shared<CCameraActivities>();
    m_service = std::make_unique<CCameraEnumerationService>(*m_enumerator, m_activities);
    m_spy = std::make_unique<QSignalSpy>(
        m_service.get(), &Plugin::CameraPool::ICameraEnumerationService::enumerationChanged);
    QVERIFY(m_spy->isValid());
}

void CCameraEnumerationServiceTest::cleanup()
{
    m_spy.reset();
    m_service.reset();
}

void CCameraEnumerationServiceTest::announce(const QVector<CTransportLayerSnapshot> &layers)
{
    m_enumerator->setLayers(layers);
    m_spy->clear();
    m_service->refreshEnumeration();
    QTRY_COMPARE(m_spy->count(), 1);
    m_spy->clear();
}

void CCameraEnumerationServiceTest::settle(int begun)
{
    QTRY_COMPARE(m_enumerator->getBegun(), begun);
    m_enumerator->setLayers({makeLayer("last", {makeCamera("last")})});
    m_service->onCamerasChanged();
    QTRY_VERIFY(m_service->findCamera(QStringLiteral("last")));
}

void CCameraEnumerationServiceTest::isEmptyBeforeTheFirstResult()
{
    QVERIFY(m_service->getTransportLayerInfoVector().isEmpty());
    QVERIFY(!m_service->findCamera(QStringLiteral("a")));
    QCOMPARE(m_enumerator->getBegun(), 0);
}

void CCameraEnumerationServiceTest::announcesTheFirstResultEvenIfEmpty()
{
    announce({});
    QVERIFY(m_service->getTransportLayerInfoVector().isEmpty());
}

void CCameraEnumerationServiceTest::resultIsInPlaceWhenAnnounced()
{
    QVector<TransportLayerInfoPtr> seen;
    QThread *thread = nullptr;
    connect(m_service.get(), &Plugin::CameraPool::ICameraEnumerationService::enumerationChanged,
            this, [&] {
                seen = m_service->getTransportLayerInfoVector();
                thread = QThread::currentThread();
            });
    announce({makeLayer("l1", {makeCamera("a"), makeCamera("b")}), makeLayer("l2", {})});
    QCOMPARE(thread, QThread::currentThread());
    QCOMPARE(seen.size(), 2);
    QCOMPARE(seen[0]->getCameraInfoList().size(), 2);
    QCOMPARE(seen[0]->getCameraInfoList()[1]->getId(), QStringLiteral("b"));
    QCOMPARE(seen[0]->getCameraInfoList()[1]->getTransportLayerId(), seen[0]->getId());
    QVERIFY(seen[1]->getCameraInfoList().isEmpty());
    QCOMPARE(m_service->findCamera(QStringLiteral("b")), seen[0]->getCameraInfoList()[1]);
}

void CCameraEnumerationServiceTest::announcesOnlyChanges_data()
{
    using Layers = QVector<CTransportLayerSnapshot>;
    QTest::addColumn<Layers>("layers");
    QTest::addColumn<bool>("announced");
    const CCameraSnapshot a = makeCamera("a");
    const CCameraSnapshot b = makeCamera("b");
    CCameraSnapshot broken = b;
    broken.statusCode = 3;
    QTest::newRow("the same") << Layers{makeLayer("l1", {a, b}), makeLayer("l2", {})} << false;
    QTest::newRow("camera gone") << Layers{makeLayer("l1", {a}), makeLayer("l2", {})} << true;
    QTest::newRow("new firmware") << Layers{makeLayer("l1", {a, makeCamera("b", "2.0")}),
                                            makeLayer("l2", {})}
                                  << true;
    QTest::newRow("new status") << Layers{makeLayer("l1", {a, broken}), makeLayer("l2", {})}
                                << true;
    QTest::newRow("other order") << Layers{makeLayer("l1", {b, a}), makeLayer("l2", {})} << true;
    QTest::newRow("other layer") << Layers{makeLayer("l1", {a}), makeLayer("l2", {b})} << true;
    QTest::newRow("layer gone") << Layers{makeLayer("l1", {a, b})} << true;
}

void CCameraEnumerationServiceTest::announcesOnlyChanges()
{
    QFETCH(QVector<CTransportLayerSnapshot>, layers);
    QFETCH(bool, announced);
    announce({makeLayer("l1", {makeCamera("a"), makeCamera("b")}), makeLayer("l2", {})});

    m_enumerator->setLayers(layers);
    m_service->onCamerasChanged();
    settle(2);
    QCOMPARE(m_spy->count(), announced ? 2 : 1);
}

void CCameraEnumerationServiceTest::explicitRefreshIsAnnouncedOnce()
{
    const QVector<CTransportLayerSnapshot> layers{makeLayer("l1", {makeCamera("a")})};
    announce(layers);
    const QVector<TransportLayerInfoPtr> before = m_service->getTransportLayerInfoVector();
    m_service->refreshEnumeration();
    QCOMPARE(m_spy->count(), 0); // it returns at once
    QTRY_COMPARE(m_spy->count(), 1);
    QCOMPARE(m_service->getTransportLayerInfoVector(), before);
}

void CCameraEnumerationServiceTest::keepsUnchangedObjects()
{
    announce(
        {makeLayer("l1", {makeCamera("a"), makeCamera("b")}), makeLayer("l2", {makeCamera("c")})});
    const CameraInfoPtr a = m_service->findCamera(QStringLiteral("a"));
    const CameraInfoPtr b = m_service->findCamera(QStringLiteral("b"));
    const TransportLayerInfoPtr l2 = m_service->getTransportLayerInfoVector().at(1);
    announce({makeLayer("l1", {makeCamera("a"), makeCamera("b", "2.0")}),
              makeLayer("l2", {makeCamera("c")})});
    QCOMPARE(m_service->findCamera(QStringLiteral("a")), a);
    QVERIFY(m_service->findCamera(QStringLiteral("b")) != b);
    QCOMPARE(b->getFirmwareVersion(), QStringLiteral("1.0")); // a snapshot stays as it is
    QCOMPARE(m_service->findCamera(QStringLiteral("b"))->getFirmwareVersion(),
             QStringLiteral("2.0"));
    QCOMPARE(m_service->getTransportLayerInfoVector().at(1), l2);
}

void CCameraEnumerationServiceTest::refreshDuringEnumerationLooksAgain()
{
    announce({});
    m_enumerator->setHeld(true);
    m_service->onCamerasChanged();
    QTRY_COMPARE(m_enumerator->getBegun(), 2);
    // The running one has looked already and will not see this camera.
    m_enumerator->setLayers({makeLayer("l1", {makeCamera("a")})});
    m_service->refreshEnumeration();
    m_enumerator->setHeld(false);
    QTRY_COMPARE(m_spy->count(), 1);
    QVERIFY(m_service->findCamera(QStringLiteral("a")));
    QCOMPARE(m_enumerator->getBegun(), 3);
}

void CCameraEnumerationServiceTest::announcesOnceAfterAnUpdate()
{
    announce({makeLayer("l1", {makeCamera("a")})});
    const QString id = QStringLiteral("a");
    m_activities->begin(id, ECameraActivity::Updating);

    m_enumerator->setLayers({makeLayer("l1", {})});
    m_service->onCamerasChanged(); // the restart
    m_service->refreshEnumeration(); // and an impatient user
    QCOMPARE(m_enumerator->getBegun(), 1);
    m_enumerator->setLayers({makeLayer("l1", {makeCamera("a", "2.0")})});
    m_service->onCamerasChanged(); // it is back
    QCoreApplication::processEvents();
    QCOMPARE(m_spy->count(), 0);

    m_activities->end(id);
    m_service->onUpdatesEnded();
    QTRY_COMPARE(m_spy->count(), 1);
    QCOMPARE(m_service->findCamera(id)->getFirmwareVersion(), QStringLiteral("2.0"));
    settle(2);
    QCOMPARE(m_spy->count(), 2);
}

void CCameraEnumerationServiceTest::distrustsAResultFromBeforeAnUpdate()
{
    announce({makeLayer("l1", {makeCamera("a")})});
    // It looks while the camera is gone for its restart, and returns when all is over.
    m_enumerator->setHeld(true);
    m_enumerator->setLayers({makeLayer("l1", {})});
    m_service->onCamerasChanged();
    QTRY_COMPARE(m_enumerator->getBegun(), 2);
    m_activities->begin(QStringLiteral("a"), ECameraActivity::Updating);
    m_activities->end(QStringLiteral("a"));
    m_enumerator->setLayers({makeLayer("l1", {makeCamera("a")})});
    m_enumerator->setHeld(false);
    settle(3);
    QCOMPARE(m_spy->count(), 1); // the one of settle()
}

void CCameraEnumerationServiceTest::endsInTheMiddleOfAnEnumeration()
{
    m_enumerator->setHeld(true);
    m_service->refreshEnumeration();
    QTRY_COMPARE(m_enumerator->getBegun(), 1);
    m_spy.reset();
    m_service.reset(); // would hang without cancelling
    QVERIFY(!m_service);
}

void CCameraEnumerationServiceTest::takesManyCameras()
{
    QVector<CCameraSnapshot> cameras;
    for (int i = 0; i < 100'000; ++i)
        cameras.append(makeCamera(QByteArray::number(i).constData()));
    announce({makeLayer("l1", cameras)});
    QCOMPARE(m_service->getTransportLayerInfoVector().at(0)->getCameraInfoList().size(), 100'000);
    QCOMPARE(m_service->findCamera(QStringLiteral("99999"))->getId(), QStringLiteral("99999"));
}

QTEST_GUILESS_MAIN(CCameraEnumerationServiceTest)
#include "tst_cameraenumerationservice.moc"
