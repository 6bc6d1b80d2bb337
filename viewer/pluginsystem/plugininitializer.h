#pragma once

#include "core/iplugininitializer.h"

#include <QReadWriteLock>

namespace Viewer::PluginSystem {

/// The viewer's service registry.
class CPluginInitializer : public Core::Plugin::IPluginInitializer
{
    Q_OBJECT

public:
    explicit CPluginInitializer(QObject *parent = nullptr);
    ~CPluginInitializer() override;

    /// Withdraws all services that were added behind the first @p count ones: what a plug-in that
    /// failed half-way has left behind.
    void removeServicesBehind(int count);

    void addService(QSharedPointer<Core::Service::IService> service) override;
    void removeService(QSharedPointer<Core::Service::IService> service) override;
    [[nodiscard]] QList<QSharedPointer<Core::Service::IService>> getServices() const override;
    [[nodiscard]] QReadWriteLock *getServicesLock() const override;

private:
    mutable QReadWriteLock m_lock;
    QList<QSharedPointer<Core::Service::IService>> m_services;
};

} // namespace Viewer::PluginSystem
