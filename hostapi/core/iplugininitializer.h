#pragma once

#include "hostapi_global.h"
#include "iservice.h"

#include <QList>
#include <QObject>
#include <QReadLocker>
#include <QSharedPointer>

class QReadWriteLock;

namespace Core::Plugin {

/// The plug-ins' access to the host's service registry. The host owns it and keeps it alive for as
/// long as any plug-in lives.
class HOSTAPI_EXPORT IPluginInitializer : public QObject
{
    Q_OBJECT

public:
    explicit IPluginInitializer(QObject *parent = nullptr);
    ~IPluginInitializer() override;

    /// Publishes @p service behind those already published. Publishing the same service again
    /// changes nothing. The registry keeps a copy of the pointer until removeService().
    virtual void addService(QSharedPointer<Core::Service::IService> service) = 0;

    /// Withdraws @p service. The registry holds no copy of the pointer afterwards, which allows a
    /// plug-in to own its service as a child object. An unknown service is ignored.
    virtual void removeService(QSharedPointer<Core::Service::IService> service) = 0;

    /// All published services, oldest first. Takes no lock: the caller holds getServicesLock() for
    /// reading, as getService() does.
    [[nodiscard]] virtual QList<QSharedPointer<Core::Service::IService>> getServices() const = 0;

    /// The lock that guards the list, or null where the registry is used by one thread only. No
    /// signal is emitted and no plug-in is called while the host holds it for writing.
    [[nodiscard]] virtual QReadWriteLock *getServicesLock() const = 0;

    /// The first published service that is a @p T, or null when there is none. May be called on
    /// any thread.
    template <typename T>
    [[nodiscard]] QSharedPointer<T> getService() const
    {
        const QReadLocker locker(getServicesLock());
        const QList<QSharedPointer<Core::Service::IService>> services = getServices();
        for (const QSharedPointer<Core::Service::IService> &service : services) {
            if (const QSharedPointer<T> match = service.template dynamicCast<T>())
                return match;
        }
        return {};
    }
};

} // namespace Core::Plugin
