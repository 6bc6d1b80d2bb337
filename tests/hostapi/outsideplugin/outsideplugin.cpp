#include "outsideplugin.h"

#include "appcore/imenuservice.h"
#include "appcore/iwindowservice.h"
#include "camerapool/icameraenumerationservice.h"
#include "camerapool/icamerastatusservice.h"
#include "camerapool/icamerastreamcontrolservice.h"
#include "camerapool/idevicefirmwareupdateservice.h"
#include "cameraselector/ideviceselectorservice.h"
#include "core/baseexception.h"
#include "core/loglevel.h"

COutsidePlugin::COutsidePlugin()
    : ALocalizedPlugin(QStringLiteral("OutsidePlugin"))
{
}

bool COutsidePlugin::initialize(QPointer<Core::Plugin::IPluginInitializer> initializer)
{
    m_initializer = initializer;
    return true;
}

bool COutsidePlugin::postInitialize()
{
    if (!m_initializer->getService<Plugin::CameraPool::ICameraEnumerationService>())
        throw Core::Exception::BaseException(QStringLiteral("There is no enumeration service."));
    return m_initializer->getService<Plugin::AppCore::IMenuService>()
        && m_initializer->getService<Plugin::AppCore::IWindowService>()
        && m_initializer->getService<Plugin::CameraPool::ICameraStatusService>()
        && m_initializer->getService<Plugin::CameraPool::ICameraStreamControlService>()
        && m_initializer->getService<Plugin::CameraPool::IDeviceFirmwareUpdateService>()
        && m_initializer->getService<Plugin::CameraSelector::IDeviceSelectorService>();
}

bool COutsidePlugin::unInitialize(QPointer<Core::Plugin::IPluginInitializer> initializer)
{
    return initializer == m_initializer;
}
