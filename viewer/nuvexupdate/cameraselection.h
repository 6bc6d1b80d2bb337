#pragma once

#include "exitcode.h"
#include "message.h"
#include "updaterequest.h"

#include "camerapool/icamerainfo.h"

#include <QCoreApplication>
#include <QVector>

namespace Viewer::NuvexUpdate {

/// Which of the cameras that were found are meant.
class CCameraSelection
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::NuvexUpdate::CCameraSelection)

public:
    using CameraInfos = QVector<Plugin::CameraPool::CameraInfoPtr>;

    struct CResult
    {
        CameraInfos cameras; ///< in the order of the list; each once
        CMessage fault; ///< then there are no cameras
        EExitCode exitCode = EExitCode::Done; ///< of the fault
    };

    /// Those of @p found that @p request names. A name that stands for none, or for several, is a
    /// fault: who mistypes one camera wants none to be updated.
    [[nodiscard]] static CResult select(const CameraInfos &found, const CUpdateRequest &request);

private:
    [[nodiscard]] static CMessage addNamed(const CameraInfos &found, const QString &name,
                                           CameraInfos &cameras);
    [[nodiscard]] static CMessage describeUnknown(const CameraInfos &found, const QString &name);
};

} // namespace Viewer::NuvexUpdate
