#pragma once

#include "viewer/camera/camerasnapshot.h"
#include "viewer/text/errortext.h"

#include "camerapool/icamerainfo.h"
#include "camerapool/ifirmwareupdateinfo.h"

#include <QSharedPointer>
#include <QString>
#include <QVector>

namespace Viewer::CameraPool {

class CCameraPool;

/// What an update file would do to a camera.
enum class EVerdict {
    Upgrade,
    Downgrade,
    Reinstall,
    DoesNotFit, ///< the file has nothing for it
    NotNow, ///< it is in use, being updated, or has a status other than 0
};

/// "upgrade", "downgrade", "reinstall", "does-not-fit", "not-now": the same in every language.
[[nodiscard]] QString getVerdictName(EVerdict verdict);

/// One camera before an update file.
struct CCameraVerdict
{
    using InfoPtr = QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>;

    Plugin::CameraPool::CameraInfoPtr camera;
    Camera::CCameraSnapshot snapshot;
    EVerdict verdict = EVerdict::DoesNotFit;
    InfoPtr update; ///< the newest entry that fits; null: none
    QString reason; ///< DoesNotFit and NotNow: a clause in the user's language
};

/// Why the camera cannot be updated now, as a clause in the user's language; empty: it can.
[[nodiscard]] QString findObstacle(const CCameraPool &pool,
                                   const Plugin::CameraPool::CameraInfoPtr &camera);

/// Why none of the entries of a file is for @p camera, as a clause about the entry that comes
/// closest; empty: one is, whether the camera can be updated now or not.
[[nodiscard]] Text::CErrorText findMisfit(const Plugin::CameraPool::ICameraInfo &camera,
                                          const QVector<CCameraVerdict::InfoPtr> &entries);

/// The entries that fit @p camera, the newest first.
[[nodiscard]] QVector<CCameraVerdict::InfoPtr>
findFitting(const Plugin::CameraPool::ICameraInfo &camera,
            const QVector<CCameraVerdict::InfoPtr> &entries);

/// Chooses for @p camera among the entries of one file, in the same way as the wizard does.
[[nodiscard]] CCameraVerdict judgeCamera(const CCameraPool &pool,
                                         const Plugin::CameraPool::CameraInfoPtr &camera,
                                         const QVector<CCameraVerdict::InfoPtr> &entries);

} // namespace Viewer::CameraPool
