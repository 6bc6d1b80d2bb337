#include "cameracountplugin.h"

#include "appcore/imenuservice.h"
#include "appcore/iwindowservice.h"
#include "camerapool/icameraenumerationservice.h"

#include <QAction>
#include <QMessageBox>

namespace Sample {

using Plugin::AppCore::IMenuService;
using Plugin::AppCore::IWindowService;
using Plugin::CameraPool::ICameraEnumerationService;

CCameraCountPlugin::CCameraCountPlugin()
    : ALocalizedPlugin(QStringLiteral("CameraCount"))
{
}

CCameraCountPlugin::~CCameraCountPlugin() = default;

bool CCameraCountPlugin::initialize(QPointer<Core::Plugin::IPluginInitializer> initializer)
{
    // A service of this plug-in's own would be published here, before any plug-in looks for it.
    m_initializer = initializer;
    return true;
}

bool CCameraCountPlugin::postInitialize()
{
    const auto menus = m_initializer->getService<IMenuService>();
    if (!menus)
        return false;
    m_action = new QAction(tr("Count Cameras"), this);
    connect(m_action, &QAction::triggered, this, &CCameraCountPlugin::showCount);
    const auto command
        = menus->registerAction(m_action, "CameraCount.Menu.Count", {"AppCore.Global.Context"});
    menus->getActionContainer("NuvexViewer.Menu.Tools")
        ->addAction(command, "NuvexViewer.Group.Tools.Tools");
    return true;
}

bool CCameraCountPlugin::unInitialize(QPointer<Core::Plugin::IPluginInitializer> initializer)
{
    Q_UNUSED(initializer)
    // The menu entry goes with the action.
    delete m_action;
    m_action = nullptr;
    delete m_box;
    return true;
}

void CCameraCountPlugin::showCount()
{
    const auto enumeration = m_initializer->getService<ICameraEnumerationService>();
    const auto windows = m_initializer->getService<IWindowService>();
    if (!enumeration || !windows)
        return;
    int count = 0;
    const auto layers = enumeration->getTransportLayerInfoVector();
    for (const auto &layer : layers)
        count += layer->getCameraInfoList().size();
    delete m_box;
    m_box = new QMessageBox(QMessageBox::NoIcon, tr("Count Cameras"), tr("Cameras: %1").arg(count),
                            QMessageBox::Ok, windows->getMainWindow());
    m_box->setAttribute(Qt::WA_DeleteOnClose);
    // Not exec(), which would keep whoever has triggered the action waiting.
    m_box->open();
}

} // namespace Sample
