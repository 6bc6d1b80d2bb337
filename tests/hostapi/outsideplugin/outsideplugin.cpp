#include "appcore/imenuservice.h"
#include "appcore/iwindowservice.h"
#include "camerapool/icameraenumerationservice.h"
#include "camerapool/icamerastatusservice.h"
#include "camerapool/icamerastreamcontrolservice.h"
#include "camerapool/idevicefirmwareupdateservice.h"
#include "cameraselector/ideviceselectorservice.h"
#include "core/alocalizedplugin.h"
#include "core/baseexception.h"
#include "core/loglevel.h"

/// Uses every interface that the contract has.
class COutsidePlugin : public Core::Plugin::ALocalizedPlugin
{
    Q_OBJECT
    Q_INTERFACES(Core::Plugin::IPlugin)

public:
    COutsidePlugin()
        : ALocalizedPlugin(QStringLiteral("OutsidePlugin"))
    {
    }

    bool initialize(QPointer<Core::Plugin::IPluginInitializer> initializer) override
    {
        if (!initializer->getService<Plugin::CameraPool::ICameraEnumerationService>())
            throw Core::Exception::BaseException(QStringLiteral("There is no enumeration."));
        return initializer->getService<Plugin::AppCore::IMenuService>()
            && initializer->getService<Plugin::AppCore::IWindowService>()
            && initializer->getService<Plugin::CameraPool::ICameraStatusService>()
            && initializer->getService<Plugin::CameraPool::ICameraStreamControlService>()
            && initializer->getService<Plugin::CameraPool::IDeviceFirmwareUpdateService>()
            && initializer->getService<Plugin::CameraSelector::IDeviceSelectorService>();
    }

    bool postInitialize() override { return true; }
    bool unInitialize(QPointer<Core::Plugin::IPluginInitializer>) override { return true; }
};

#include "outsideplugin.moc"
