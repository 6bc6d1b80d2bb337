#include "firmwareupdaterplugin.h"

#include "service/firmwareupdaterservice.h"

#include "appcore/imenuservice.h"
#include "camerapool/icameraenumerationservice.h"
#include "camerapool/idevicefirmwareupdate.h"
#include "cameraselector/ideviceselectorservice.h"

#include <QAction>
#include <QIcon>

#include <algorithm>

namespace Plugin::FirmwareUpdater {

using Plugin::AppCore::IMenuService;
using Plugin::CameraPool::ICameraEnumerationService;
using Plugin::CameraPool::ICameraInfo;
using Plugin::CameraSelector::IDeviceSelectorService;

CFirmwareUpdaterPlugin::CFirmwareUpdaterPlugin(QObject *parent)
    : ALocalizedPlugin(QStringLiteral("FirmwareUpdater"), parent)
{
}

CFirmwareUpdaterPlugin::~CFirmwareUpdaterPlugin()
{
    m_service.reset();
}

void CFirmwareUpdaterPlugin::registerMetaTypes()
{
    qRegisterMetaType<Plugin::CameraPool::EFirmwareUpdateStep>(
        "Plugin::CameraPool::EFirmwareUpdateStep");
}

bool CFirmwareUpdaterPlugin::initialize(QPointer<Core::Plugin::IPluginInitializer> initializer)
{
    m_initializer = initializer;
    registerMetaTypes();
    if (!m_service)
        m_service.reset(new Internal::Service::CFirmwareUpdaterService(initializer, this));
    m_initializer->addService(m_service);
    return true;
}

bool CFirmwareUpdaterPlugin::postInitialize()
{
    if (!m_initializer)
        return true;
    createMenuEntries();

    if (const auto enumeration = m_initializer->getService<ICameraEnumerationService>()) {
        connect(enumeration.data(), &ICameraEnumerationService::enumerationChanged, this,
                &CFirmwareUpdaterPlugin::onEnumerationChanged);
        if (m_service) {
            connect(enumeration.data(), &ICameraEnumerationService::enumerationChanged,
                    m_service.data(), &IFirmwareUpdaterService::onEnumerationChanged);
        }
    }
    if (const auto selector = m_initializer->getService<IDeviceSelectorService>()) {
        connect(selector.data(), &IDeviceSelectorService::selectionChanged, this,
                &CFirmwareUpdaterPlugin::onSelectionChanged);
    }
    return true;
}

void CFirmwareUpdaterPlugin::createMenuEntries()
{
    const auto menuService = m_initializer->getService<IMenuService>();
    if (!menuService)
        return;

    const auto contextMenu
        = menuService->getActionContainer("NuvexViewer.CameraSelectorContextMenu");
    const auto toolsMenu = menuService->getActionContainer("NuvexViewer.Menu.Tools");

    const QIcon icon(QStringLiteral(":/firmwareupdater/icons/firmware_updater_icon_16x16_en"));
    m_toolsAction = new QAction(icon, tr("Firmware Updater"), this);
    m_toolsAction->setEnabled(false);
    m_contextAction = new QAction(icon, tr("Firmware Updater"), this);
    m_contextAction->setVisible(false);

    const QList<Core::CId> contexts = {"AppCore.Global.Context"};
    const auto toolsCommand
        = menuService->registerAction(m_toolsAction, "FirmwareUpdater.Menu.Start", contexts);
    const auto contextCommand
        = menuService->registerAction(m_contextAction, "FirmwareUpdater.Context.Start", contexts);

    if (m_service) {
        m_service->postInitialize();
        connect(m_toolsAction, &QAction::triggered, m_service.data(),
                &IFirmwareUpdaterService::startFirmwareUpdater);
        connect(m_contextAction, &QAction::triggered, m_service.data(),
                &IFirmwareUpdaterService::startFirmwareUpdater);
    }

    contextMenu->addAction(contextCommand, "NuvexViewer.Group.CameraSelectorContextMenu.Misc");
    toolsMenu->addAction(toolsCommand, "NuvexViewer.Group.Tools.Tools");
}

bool CFirmwareUpdaterPlugin::unInitialize(QPointer<Core::Plugin::IPluginInitializer> initializer)
{
    Q_UNUSED(initializer)

    if (m_initializer && m_service)
        m_initializer->removeService(m_service);
    m_service.reset();
    return true;
}

void CFirmwareUpdaterPlugin::onSelectionChanged(QSharedPointer<Plugin::CameraPool::IBaseInfo> info)
{
    const QSharedPointer<ICameraInfo> camera = info.dynamicCast<ICameraInfo>();
    const bool isKnownCamera = camera && m_service;
    if (m_contextAction)
        m_contextAction->setVisible(isKnownCamera && m_service->isCompatibleCamera(camera));
    if (isKnownCamera)
        m_service->setSelectedCamera(camera);
}

void CFirmwareUpdaterPlugin::onEnumerationChanged()
{
    if (!m_initializer || !m_toolsAction)
        return;
    const auto enumeration = m_initializer->getService<ICameraEnumerationService>();
    if (!enumeration)
        return;

    const auto layers = enumeration->getTransportLayerInfoVector();
    const bool hasCamera = std::any_of(layers.cbegin(), layers.cend(), [](const auto &layer) {
        return !layer->getCameraInfoList().isEmpty();
    });
    m_toolsAction->setEnabled(hasCamera);
    if (!hasCamera)
        m_contextAction->setVisible(false);
}

} // namespace Plugin::FirmwareUpdater
