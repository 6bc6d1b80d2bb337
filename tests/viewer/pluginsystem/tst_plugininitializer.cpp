#include "viewer/pluginsystem/plugininitializer.h"

#include <QtTest>

#include <atomic>
#include <thread>

using Core::Service::IService;
using Viewer::PluginSystem::CPluginInitializer;

class CPluginInitializerTest : public QObject
{
    Q_OBJECT

private slots:
    void servesOtherThreadsAndDyingServices();
};

void CPluginInitializerTest::servesOtherThreadsAndDyingServices()
{
    CPluginInitializer initializer;
    const auto first = QSharedPointer<IService>::create();
    initializer.addService(first);
    std::atomic<bool> done = false;
    std::atomic<int> misses = 0;
    const auto lookUp = [&initializer, &misses] {
        if (!initializer.getService<IService>())
            ++misses;
    };
    std::thread reader([&lookUp, &done] {
        do
            lookUp();
        while (!done);
    });
    for (int i = 0; i < 1000; ++i) {
        initializer.addService(first);
        // Held by the registry alone, so that it dies while it is removed.
        initializer.addService(QSharedPointer<IService>::create());
        connect(initializer.getServices().constLast().data(), &QObject::destroyed, this, lookUp);
        initializer.removeServicesBehind(1);
    }
    done = true;
    reader.join();
    QCOMPARE(misses.load(), 0);
    QCOMPARE(initializer.getServices().size(), 1);
}

QTEST_GUILESS_MAIN(CPluginInitializerTest)

#include "tst_plugininitializer.moc"
