#include "testplugin.h"

#include "core/iplugininitializer.h"

#include <QCoreApplication>
#include <QVariant>

#include <stdexcept>

static void note(const QString &call)
{
    QStringList calls = qApp->property("calls").toStringList();
    calls.append(QStringLiteral(TEST_PLUGIN_NAME) + QLatin1Char('.') + call);
    qApp->setProperty("calls", calls);
}

CTestPlugin::CTestPlugin()
{
    note("construct");
}

CTestPlugin::~CTestPlugin()
{
    note("destroy");
}

bool CTestPlugin::initialize(QPointer<Core::Plugin::IPluginInitializer> initializer)
{
    note("initialize");
    // A child and shared at the same time: deleted twice if the host kept a copy of the pointer.
    m_service.reset(new Core::Service::IService(this));
    initializer->addService(m_service);
    if (TEST_PLUGIN_BEHAVIOUR == ThrowsInInitialize)
        throw std::runtime_error("out of order");
    return TEST_PLUGIN_BEHAVIOUR != RefusesInitialize;
}

bool CTestPlugin::postInitialize()
{
    note("postInitialize");
    return TEST_PLUGIN_BEHAVIOUR != RefusesPostInitialize;
}

bool CTestPlugin::unInitialize(QPointer<Core::Plugin::IPluginInitializer> initializer)
{
    note("unInitialize");
    initializer->removeService(m_service);
    m_service.reset();
    return true;
}

void CTestPlugin::aboutToUninitialize()
{
    note("aboutToUninitialize");
}

void CTestPlugin::setLanguage(const QString &language)
{
    note("setLanguage " + language);
}
