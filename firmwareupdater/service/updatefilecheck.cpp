#include "updatefilecheck.h"

#include "camerapool/idevicefirmwareupdateservice.h"
#include "core/baseexception.h"

#include <QFileInfo>

namespace Plugin::FirmwareUpdater::Internal::Service {

CUpdateFileVerdict
checkUpdateFile(const QFileInfo &file,
                const QSharedPointer<Plugin::CameraPool::ICameraInfo> &camera,
                const QSharedPointer<Plugin::CameraPool::IDeviceFirmwareUpdateService> &service)
{
    CUpdateFileVerdict verdict;
    verdict.isFile = file.exists() && file.isReadable() && file.isFile();
    if (!verdict.isFile || !service)
        return verdict;
    try {
        // Read also without a camera: a fault of the file belongs in the log.
        const auto all = service->getFirmwareUpdateInfos(file.absoluteFilePath(), QString());
        if (!camera)
            return verdict;
        bool updatable = false;
        const bool checked
            = service->getCompatibleFirmwareUpdates(camera, all, verdict.updates, updatable);
        verdict.isCompatible = checked && !verdict.updates.isEmpty();
    } catch (const Core::Exception::BaseException &exception) {
        verdict.updates.clear();
        verdict.fault = exception.getMessage();
    }
    return verdict;
}

} // namespace Plugin::FirmwareUpdater::Internal::Service
