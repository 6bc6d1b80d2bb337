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

namespace TestSupport {

class CFakeInitializer : public Core::Plugin::IPluginInitializer
{
    Q_OBJECT

public:
    void addService(QSharedPointer<Core::Service::IService> service) override;
    void removeService(QSharedPointer<Core::Service::IService> service) override;
    QList<QSharedPointer<Core::Service::IService>> getServices() const override;
    QReadWriteLock *getServicesLock() const override;

private:
    QList<QSharedPointer<Core::Service::IService>> m_services;
    mutable QReadWriteLock m_lock;
};

class CFakeEnumerationService : public Plugin::CameraPool::ICameraEnumerationService
{
    Q_OBJECT

public:
    QVector<Plugin::CameraPool::TransportLayerInfoPtr> getTransportLayerInfoVector() const override;
    void refreshEnumeration() override;

    /// Puts a new result in place and announces it.
    void announce(const QVector<Plugin::CameraPool::TransportLayerInfoPtr> &layers);

    QVector<Plugin::CameraPool::TransportLayerInfoPtr> layers;
    int refreshCount = 0;
};

class CFakeStatusService : public Plugin::CameraPool::ICameraStatusService
{
    Q_OBJECT

public:
    bool isCameraBusy(Plugin::CameraPool::CameraInfoPtr camera) const override;

    QSet<QString> busyIds;
};

class CFakeStreamControlService : public Plugin::CameraPool::ICameraStreamControlService
{
    Q_OBJECT

public:
    void stopAllCameras() override;

    int stopCount = 0;
};

class CFakeUpdateService : public Plugin::CameraPool::IDeviceFirmwareUpdateService
{
    Q_OBJECT

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
                               const UpdateInfoPtr &updateInfo) override;

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

class CFakeSelectorService : public Plugin::CameraSelector::IDeviceSelectorService
{
    Q_OBJECT
};

class CFakeWindowService : public Plugin::AppCore::IWindowService
{
    Q_OBJECT

public:
    QWidget *getMainWindow() const override;

private:
    mutable QWidget m_mainWindow;
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
    Q_OBJECT

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
    CFakeHost();

    CFakeInitializer initializer;
    const QSharedPointer<CFakeMenuService> menus;
    const QSharedPointer<CFakeWindowService> windows;
    const QSharedPointer<CFakeEnumerationService> enumeration;
    const QSharedPointer<CFakeStatusService> status;
    const QSharedPointer<CFakeStreamControlService> streams;
    const QSharedPointer<CFakeUpdateService> updates;
    const QSharedPointer<CFakeSelectorService> selector;
};

} // namespace TestSupport
