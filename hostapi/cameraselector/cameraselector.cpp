#include "ideviceselectorservice.h"

namespace Plugin::CameraSelector {

IDeviceSelectorService::IDeviceSelectorService(QObject *parent)
    : IService(parent)
{
}

IDeviceSelectorService::~IDeviceSelectorService() = default;

} // namespace Plugin::CameraSelector
