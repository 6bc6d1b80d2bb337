#include "viewer/pluginsystem/plugininitializer.h"

#include <QtTest>

#include <atomic>
#include <thread>

using Core::Service::IService;
using Viewer::PluginSystem::CPluginInitializer;

class CFirstService : public IService
{
    Q_OBJECT
};

class CSecondService : public IService
{
    Q_OBJECT
};

/// Looks up another service while it dies.
class CLookingUpService : public IService
{
    Q_OBJECT

public:
    explicit CLookingUpService(CPluginInitializer &initializer)
        : m_initializer(initializer)
    {
    }
    ~CLookingUpService() override
    {
        found = m_initializer.getService<CFirstService>() != nullptr;
    }

    static bool found;

private:
    CPluginInitializer &m_initializer;
};

bool CLookingUpService::found = false;

class CPluginInitializerTest : public QObject
{
    Q_OBJECT

private slots:
    void findsTheFirstOfAKind();
    void addingTwiceChangesNothing();
    void removingDropsEveryCopy();
    void removingAnUnknownServiceDoesNothing();
    void locksNobodyOutWhileServicesDie();
    void servesOtherThreads();
};

void CPluginInitializerTest::findsTheFirstOfAKind()
{
    CPluginInitializer initializer;
    const auto first = QSharedPointer<CFirstService>::create();
    const auto second = QSharedPointer<CSecondService>::create();
    const auto third = QSharedPointer<CFirstService>::create();
    initializer.addService(second);
    initializer.addService(first);
    initializer.addService(third);
    initializer.addService({});
    QCOMPARE(initializer.getService<CFirstService>(), first);
    QCOMPARE(initializer.getService<CSecondService>(), second);
    QCOMPARE(initializer.getServices().size(), 3);
}

void CPluginInitializerTest::addingTwiceChangesNothing()
{
    CPluginInitializer initializer;
    const auto service = QSharedPointer<CFirstService>::create();
    initializer.addService(service);
    initializer.addService(service);
    QCOMPARE(initializer.getServices().size(), 1);
    initializer.removeService(service);
    QVERIFY(!initializer.getService<CFirstService>());
}

void CPluginInitializerTest::removingDropsEveryCopy()
{
    CPluginInitializer initializer;
    auto service = QSharedPointer<CFirstService>::create();
    const QWeakPointer<CFirstService> guard = service;
    initializer.addService(service);
    initializer.removeService(service);
    QVERIFY(guard);
    service.reset();
    QVERIFY(!guard);
}

void CPluginInitializerTest::removingAnUnknownServiceDoesNothing()
{
    CPluginInitializer initializer;
    initializer.addService(QSharedPointer<CFirstService>::create());
    initializer.removeService(QSharedPointer<CFirstService>::create());
    initializer.removeService({});
    QCOMPARE(initializer.getServices().size(), 1);
}

void CPluginInitializerTest::locksNobodyOutWhileServicesDie()
{
    CPluginInitializer initializer;
    initializer.addService(QSharedPointer<CFirstService>::create());
    initializer.addService(QSharedPointer<CLookingUpService>::create(initializer));
    CLookingUpService::found = false;
    initializer.removeServicesBehind(1);
    QVERIFY(CLookingUpService::found);
    QCOMPARE(initializer.getServices().size(), 1);
}

void CPluginInitializerTest::servesOtherThreads()
{
    CPluginInitializer initializer;
    initializer.addService(QSharedPointer<CFirstService>::create());
    std::atomic<bool> done = false;
    std::atomic<int> misses = 0;
    std::thread reader([&initializer, &done, &misses] {
        do {
            if (!initializer.getService<CFirstService>())
                ++misses;
        } while (!done);
    });
    for (int i = 0; i < 1000; ++i) {
        const auto service = QSharedPointer<CSecondService>::create();
        initializer.addService(service);
        initializer.removeService(service);
    }
    done = true;
    reader.join();
    QCOMPARE(misses.load(), 0);
}

QTEST_GUILESS_MAIN(CPluginInitializerTest)

#include "tst_plugininitializer.moc"
