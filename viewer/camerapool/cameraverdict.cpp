#include "cameraverdict.h"

#include "camerapool.h"
#include "viewer/update/entryfit.h"
#include "viewer/update/firmwareupdateinfo.h"
#include "viewer/updatefile/firmwareversion.h"

#include "camerapool/icamerastatusservice.h"

#include <QCoreApplication>

#include <algorithm>
#include <optional>

namespace Viewer::CameraPool {

using Plugin::CameraPool::CameraInfoPtr;
using Plugin::CameraPool::EFirmwareUpdateDirection;
using Plugin::CameraPool::ICameraStatusService;
using Update::CFirmwareUpdateInfo;

static QString tr(const char *text)
{
    return QCoreApplication::translate("Viewer::CameraPool", text);
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

static const UpdateFile::CUpdateEntry *getEntry(const CCameraVerdict::InfoPtr &info)
{
    const auto *const own = dynamic_cast<const CFirmwareUpdateInfo *>(info.data());
    return own ? &own->getEntry() : nullptr;
}

Text::CErrorText findMisfit(const Plugin::CameraPool::ICameraInfo &camera,
                            const QVector<CCameraVerdict::InfoPtr> &entries)
{
    Text::CErrorText reason;
    bool isAnyOfModel = false;
    for (const CCameraVerdict::InfoPtr &info : entries) {
        const UpdateFile::CUpdateEntry *const entry = getEntry(info);
        if (!entry)
            continue;
        const Text::CErrorText misfit = Update::findMisfit(camera, *entry);
        if (misfit.isEmpty())
            return {};
        const bool isOfModel = entry->models.contains(camera.getModelName());
        if (reason.isEmpty() || (isOfModel && !isAnyOfModel))
            reason = misfit;
        isAnyOfModel = isAnyOfModel || isOfModel;
    }
    return reason;
}

/// Unreadable versions come last; a stable order for a stable sort.
static bool isNewer(const CCameraVerdict::InfoPtr &left, const CCameraVerdict::InfoPtr &right)
{
    const std::optional<UpdateFile::CFirmwareVersion> leftVersion
        = UpdateFile::CFirmwareVersion::parse(left->getVersion());
    const std::optional<UpdateFile::CFirmwareVersion> rightVersion
        = UpdateFile::CFirmwareVersion::parse(right->getVersion());
    return leftVersion && (!rightVersion || *leftVersion > *rightVersion);
}

QVector<CCameraVerdict::InfoPtr> findFitting(const Plugin::CameraPool::ICameraInfo &camera,
                                             const QVector<CCameraVerdict::InfoPtr> &entries)
{
    QVector<CCameraVerdict::InfoPtr> fitting;
    for (const CCameraVerdict::InfoPtr &info : entries) {
        const UpdateFile::CUpdateEntry *const entry = getEntry(info);
        if (entry && Update::findMisfit(camera, *entry).isEmpty())
            fitting.append(info);
    }
    std::stable_sort(fitting.begin(), fitting.end(), isNewer);
    return fitting;
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

QString findObstacle(const CCameraPool &pool, const CameraInfoPtr &camera)
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

CCameraVerdict judgeCamera(const CCameraPool &pool, const CameraInfoPtr &camera,
                           const QVector<CCameraVerdict::InfoPtr> &entries)
{
    CCameraVerdict verdict;
    verdict.camera = camera;
    verdict.snapshot = pool.getSnapshot(camera->getId());
    verdict.reason = findMisfit(*camera, entries).getLocalized();
    if (!verdict.reason.isEmpty())
        return verdict;
    const QVector<CCameraVerdict::InfoPtr> fitting = findFitting(*camera, entries);
    verdict.reason = findObstacle(pool, camera);
    if (!verdict.reason.isEmpty() || fitting.isEmpty()) {
        verdict.verdict = EVerdict::NotNow;
    } else {
        verdict.update = fitting.constFirst();
        verdict.verdict = toVerdict(
            UpdateFile::getDirection(camera->getFirmwareVersion(), verdict.update->getVersion()));
    }
    return verdict;
}

} // namespace Viewer::CameraPool
