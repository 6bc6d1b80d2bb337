#include "icameraenumerationservice.h"
#include "icamerastatusservice.h"
#include "icamerastreamcontrolservice.h"
#include "idevicefirmwareupdateservice.h"
#include "itransportlayerinfo.h"

// The destructors are the interfaces' key functions: defined here, they give this library the one
// copy of their type information.
namespace Plugin::CameraPool {

IBaseInfo::IBaseInfo(QObject *parent)
    : IInfo(parent)
{
}

IBaseInfo::~IBaseInfo() = default;

ICameraInfo::ICameraInfo(QObject *parent)
    : IBaseInfo(parent)
{
}

ICameraInfo::~ICameraInfo() = default;

ITransportLayerInfo::ITransportLayerInfo(QObject *parent)
    : IBaseInfo(parent)
{
}

ITransportLayerInfo::~ITransportLayerInfo() = default;

ICameraEnumerationService::ICameraEnumerationService(QObject *parent)
    : IService(parent)
{
}

ICameraEnumerationService::~ICameraEnumerationService() = default;

ICameraStatusService::ICameraStatusService(QObject *parent)
    : IService(parent)
{
}

ICameraStatusService::~ICameraStatusService() = default;

ICameraStreamControlService::ICameraStreamControlService(QObject *parent)
    : IService(parent)
{
}

ICameraStreamControlService::~ICameraStreamControlService() = default;

IFirmwareUpdateInfo::IFirmwareUpdateInfo(QObject *parent)
    : QObject(parent)
{
}

IFirmwareUpdateInfo::~IFirmwareUpdateInfo() = default;

IDeviceFirmwareUpdate::IDeviceFirmwareUpdate(QObject *parent)
    : QObject(parent)
{
}

IDeviceFirmwareUpdate::~IDeviceFirmwareUpdate() = default;

IDeviceFirmwareUpdateService::IDeviceFirmwareUpdateService(QObject *parent)
    : IService(parent)
{
}

IDeviceFirmwareUpdateService::~IDeviceFirmwareUpdateService() = default;

} // namespace Plugin::CameraPool
