#include "cameraverdict.h"

#include "viewer/camerapool/camerapool.h"
#include "viewer/update/entryfit.h"
#include "viewer/update/firmwareupdateinfo.h"
#include "viewer/updatefile/firmwareversion.h"

#include "camerapool/icamerastatusservice.h"
#include "camerapool/idevicefirmwareupdateservice.h"

#include <QCoreApplication>

namespace Viewer::NuvexUpdate {

using Plugin::CameraPool::CameraInfoPtr;
using Plugin::CameraPool::EFirmwareUpdateDirection;
using Plugin::CameraPool::ICameraStatusService;
using Plugin::CameraPool::IDeviceFirmwareUpdateService;
using Update::CFirmwareUpdateInfo;

static QString tr(const char *text)
{
    return QCoreApplication::translate("Viewer::NuvexUpdate", text);
}

static EVerdict toVerdict(EFirmwareUpdateDirection direction)
{
    switch (direction) {
    case EFirmwareUpdateDirection::Upgrade:
        return EVerdict::Upgrade;
    case EFirmwareUpdateDirection::Downgrade:
        return EVerdict::Downgrade;
    case EFirmwareUpdateDirection::Reinstall:
        return EVerdict::Reinstall;
    case EFirmwareUpdateDirection::Invalid:
        break;
    }
    return EVerdict::DoesNotFit;
}

/// Of the entry that comes closest; empty: one fits, whether the camera can be updated now or not.
static QString findMisfit(const Plugin::CameraPool::ICameraInfo &camera,
                          const QVector<CCameraVerdict::InfoPtr> &entries)
{
    QString reason;
    bool isAnyOfModel = false;
    for (const CCameraVerdict::InfoPtr &info : entries) {
        const UpdateFile::CUpdateEntry &entry
            = static_cast<const CFirmwareUpdateInfo &>(*info).getEntry();
        const QString misfit = Update::findMisfit(camera, entry).getLocalized();
        if (misfit.isEmpty())
            return {};
        const bool isOfModel = entry.models.contains(camera.getModelName());
        if (reason.isEmpty() || (isOfModel && !isAnyOfModel))
            reason = misfit;
        isAnyOfModel = isAnyOfModel || isOfModel;
    }
    return reason;
}

QString getVerdictName(EVerdict verdict)
{
    switch (verdict) {
    case EVerdict::Upgrade:
        return QStringLiteral("upgrade");
    case EVerdict::Downgrade:
        return QStringLiteral("downgrade");
    case EVerdict::Reinstall:
        return QStringLiteral("reinstall");
    case EVerdict::DoesNotFit:
        return QStringLiteral("does-not-fit");
    case EVerdict::NotNow:
        return QStringLiteral("not-now");
    }
    return {};
}

QString findObstacle(const CameraPool::CCameraPool &pool, const CameraInfoPtr &camera)
{
    if (pool.getService<ICameraStatusService>()->isCameraBusy(camera))
        return tr("it is in use by another application");
    if (camera->getCameraStatusCode() == 0)
        return {};
    const QString reason = pool.getSnapshot(camera->getId()).statusReason;
    const QString code = QString::number(camera->getCameraStatusCode());
    return reason.isEmpty() ? tr("its status is %1").arg(code)
                            : tr("its status is %1: %2").arg(code, reason);
}

CCameraVerdict judgeCamera(const CameraPool::CCameraPool &pool, const CameraInfoPtr &camera,
                           const QVector<CCameraVerdict::InfoPtr> &entries)
{
    CCameraVerdict verdict;
    verdict.camera = camera;
    verdict.snapshot = pool.getSnapshot(camera->getId());
    QVector<CCameraVerdict::InfoPtr> compatible;
    bool isUpdatable = false;
    pool.getService<IDeviceFirmwareUpdateService>()->getCompatibleFirmwareUpdates(
        camera, entries, compatible, isUpdatable);
    verdict.reason = findMisfit(*camera, entries);
    if (!verdict.reason.isEmpty())
        return verdict;
    verdict.reason = findObstacle(pool, camera);
    if (!verdict.reason.isEmpty() || compatible.isEmpty()) {
        verdict.verdict = EVerdict::NotNow;
    } else {
        verdict.update = compatible.constFirst();
        verdict.verdict = toVerdict(
            UpdateFile::getDirection(camera->getFirmwareVersion(), verdict.update->getVersion()));
    }
    return verdict;
}

} // namespace Viewer::NuvexUpdate
