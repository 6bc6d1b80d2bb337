#pragma once

#include "fakeinfos.h"

#include "appcore/imenuservice.h"
#include "appcore/iwindowservice.h"
#include "camerapool/icameraenumerationservice.h"
#include "camerapool/icamerastatusservice.h"
#include "camerapool/icamerastreamcontrolservice.h"
#include "camerapool/idevicefirmwareupdateservice.h"
#include "cameraselector/ideviceselectorservice.h"
#include "core/iplugininitializer.h"

#include <QAction>
#include <QHash>
#include <QPointer>
#include <QReadWriteLock>
#include <QSet>
#include <QWidget>

#include <functional>
#include <memory>

namespace TestSupport {

class CFakeInitializer : public Core::Plugin::IPluginInitializer
{
public:
    using Service = QSharedPointer<Core::Service::IService>;

    void addService(Service service) override
    {
        if (!m_services.contains(service))
            m_services.append(service);
    }
    void removeService(Service service) override { m_services.removeAll(service); }
    QList<Service> getServices() const override { return m_services; }
    QReadWriteLock *getServicesLock() const override { return &m_lock; }

private:
    QList<Service> m_services;
    mutable QReadWriteLock m_lock;
};

class CFakeEnumerationService : public Plugin::CameraPool::ICameraEnumerationService
{
public:
    using Layers = QVector<Plugin::CameraPool::TransportLayerInfoPtr>;

    Layers getTransportLayerInfoVector() const override { return layers; }
    void refreshEnumeration() override { ++refreshCount; }

    /// Puts a new result in place and announces it.
    void announce(const Layers &newLayers)
    {
        layers = newLayers;
        emit enumerationChanged();
    }

    Layers layers;
    int refreshCount = 0;
};

class CFakeStatusService : public Plugin::CameraPool::ICameraStatusService
{
public:
    bool isCameraBusy(Plugin::CameraPool::CameraInfoPtr camera) const override
    {
        askedIds.append(camera->getId());
        return busyIds.contains(camera->getId());
    }

    QSet<QString> busyIds;
    mutable QStringList askedIds; ///< cameras of all requests
};

class CFakeStreamControlService : public Plugin::CameraPool::ICameraStreamControlService
{
public:
    void stopAllCameras() override { ++stopCount; }

    int stopCount = 0;
};

class CFakeUpdateService : public Plugin::CameraPool::IDeviceFirmwareUpdateService
{
public:
    /// Throws readError when that is not empty.
    QVector<UpdateInfoPtr> getFirmwareUpdateInfos(const QString &updateFilePath,
                                                  const QString &entryFilter) override;

    /// All entries fit every camera whose id is not in incompatibleIds; throws for those in
    /// failingIds.
    bool getCompatibleFirmwareUpdates(Plugin::CameraPool::CameraInfoPtr camera,
                                      const QVector<UpdateInfoPtr> &all,
                                      QVector<UpdateInfoPtr> &compatible, bool &updatable) override;

    /// What createJob makes; null without it.
    Plugin::CameraPool::DeviceFirmwareUpdatePtr
    createDeviceFirmwareUpdate(Plugin::CameraPool::CameraInfoPtr camera,
                               const UpdateInfoPtr &updateInfo) override
    {
        return createJob ? createJob(camera->getId(), updateInfo) : nullptr;
    }

    QVector<UpdateInfoPtr> entries;
    QString readError;
    QSet<QString> incompatibleIds;
    QSet<QString> failingIds;
    std::function<Plugin::CameraPool::DeviceFirmwareUpdatePtr(const QString &cameraId,
                                                              const UpdateInfoPtr &entry)>
        createJob;
    QStringList readPaths; ///< paths of all read requests
    QStringList checkedIds; ///< cameras of all compatibility requests
};

using CFakeSelectorService = Plugin::CameraSelector::IDeviceSelectorService;

class CFakeWindowService : public Plugin::AppCore::IWindowService
{
public:
    QWidget *getMainWindow() const override { return m_mainWindow.get(); }
    void destroyMainWindow() { m_mainWindow.reset(); }

private:
    std::unique_ptr<QWidget> m_mainWindow = std::make_unique<QWidget>();
};

/// One entry that a plug-in has placed in a menu.
struct CMenuEntry
{
    QString menu;
    QString group;
    QString command;
    QStringList contexts;
    QPointer<QAction> action; ///< the plug-in's own action
};

class CFakeMenuService : public Plugin::AppCore::IMenuService
{
public:
    QSharedPointer<Plugin::AppCore::IActionContainer>
    getActionContainer(const Core::CId &menuId) override;
    QSharedPointer<Plugin::AppCore::ICommand>
    registerAction(QAction *action, const Core::CId &commandId,
                   const QList<Core::CId> &contexts) override;

    /// The entry of @p menu, of which there must be at most one; without action when there is none.
    [[nodiscard]] CMenuEntry getEntry(const char *menu) const;

    QVector<CMenuEntry> entries;
};

/// A host with all its services published.
class CFakeHost
{
public:
    CFakeInitializer initializer;
    const QSharedPointer<CFakeMenuService> menus = publish<CFakeMenuService>();
    const QSharedPointer<CFakeWindowService> windows = publish<CFakeWindowService>();
    const QSharedPointer<CFakeEnumerationService> enumeration = publish<CFakeEnumerationService>();
    const QSharedPointer<CFakeStatusService> status = publish<CFakeStatusService>();
    const QSharedPointer<CFakeStreamControlService> streams = publish<CFakeStreamControlService>();
    const QSharedPointer<CFakeUpdateService> updates = publish<CFakeUpdateService>();
    const QSharedPointer<CFakeSelectorService> selector = publish<CFakeSelectorService>();

private:
    template <typename TService>
    QSharedPointer<TService> publish()
    {
        const auto service = QSharedPointer<TService>::create();
        initializer.addService(service);
        return service;
    }
};

} // namespace TestSupport
