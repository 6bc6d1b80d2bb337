#include "deviceselectorservice.h"

namespace Viewer::CameraSelector {

CDeviceSelectorService::CDeviceSelectorService(QObject *parent)
    : Plugin::CameraSelector::IDeviceSelectorService(parent)
{
}

CDeviceSelectorService::~CDeviceSelectorService() = default;

void CDeviceSelectorService::setSelection(const QSharedPointer<Plugin::CameraPool::IBaseInfo> &info)
{
    if (info == m_selection)
        return;
    m_selection = info;
    emit selectionChanged(m_selection);
}

QSharedPointer<Plugin::CameraPool::IBaseInfo> CDeviceSelectorService::getSelection() const
{
    return m_selection;
}

} // namespace Viewer::CameraSelector
