#include "core/iplugin.h"
#include "core/iplugininitializer.h"

#include <QCoreApplication>
#include <QVariant>

#include <stdexcept>

#ifndef TEST_PLUGIN_IID
#define TEST_PLUGIN_IID NUVEX_VIEWER_PLUGIN_IID
#endif

// False when the plug-in is one that fails in this call.
static bool note(const QString &call)
{
    QStringList calls = qApp->property("calls").toStringList();
    calls.append(QStringLiteral(TEST_PLUGIN_NAME) + QLatin1Char('.') + call);
    qApp->setProperty("calls", calls);
    return call != QLatin1String(TEST_PLUGIN_FAILS_IN);
}

/// Notes each call of the host in the application's property "calls" and fails where its build
/// says.
class CTestPlugin : public Core::Plugin::IPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID TEST_PLUGIN_IID FILE "testplugin.json")
    Q_INTERFACES(Core::Plugin::IPlugin)

public:
    CTestPlugin() { note("construct"); }
    ~CTestPlugin() override { note("destroy"); }
    bool initialize(QPointer<Core::Plugin::IPluginInitializer> initializer) override
    {
        // A child and shared at the same time: deleted twice if the host kept a copy of the
        // pointer.
        m_service.reset(new Core::Service::IService(this));
        initializer->addService(m_service);
        if (QLatin1String(TEST_PLUGIN_FAILS_IN) == QLatin1String("throw"))
            throw std::runtime_error("out of order");
        return note("initialize");
    }
    bool postInitialize() override { return note("postInitialize"); }
    bool unInitialize(QPointer<Core::Plugin::IPluginInitializer> initializer) override
    {
        note("unInitialize");
        initializer->removeService(m_service);
        m_service.reset();
        return true;
    }
    void aboutToUninitialize() override { note("aboutToUninitialize"); }
    void setLanguage(const QString &language) override { note("setLanguage " + language); }

private:
    QSharedPointer<Core::Service::IService> m_service;
};

#include "testplugin.moc"
