#include "plugininitializer.h"

#include <QWriteLocker>

namespace Viewer::PluginSystem {

CPluginInitializer::CPluginInitializer(QObject *parent)
    : Core::Plugin::IPluginInitializer(parent)
{
}

CPluginInitializer::~CPluginInitializer() = default;

void CPluginInitializer::removeServicesBehind(int count)
{
    // Released after the lock: a service's destructor may look up other services.
    QList<QSharedPointer<Core::Service::IService>> removed;
    const QWriteLocker locker(&m_lock);
    while (m_services.size() > count)
        removed.append(m_services.takeLast());
}

void CPluginInitializer::addService(QSharedPointer<Core::Service::IService> service)
{
    const QWriteLocker locker(&m_lock);
    if (service && !m_services.contains(service))
        m_services.append(service);
}

void CPluginInitializer::removeService(QSharedPointer<Core::Service::IService> service)
{
    const QWriteLocker locker(&m_lock);
    m_services.removeAll(service);
}

QList<QSharedPointer<Core::Service::IService>> CPluginInitializer::getServices() const
{
    return m_services;
}

QReadWriteLock *CPluginInitializer::getServicesLock() const
{
    return &m_lock;
}

} // namespace Viewer::PluginSystem
