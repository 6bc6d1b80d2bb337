#include "windowservice.h"

namespace Viewer::AppCore {

CWindowService::CWindowService(QWidget *mainWindow, QObject *parent)
    : Plugin::AppCore::IWindowService(parent)
    , m_mainWindow(mainWindow)
{
}

CWindowService::~CWindowService() = default;

QWidget *CWindowService::getMainWindow() const
{
    return m_mainWindow;
}

} // namespace Viewer::AppCore
