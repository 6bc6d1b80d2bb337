#pragma once

#include "viewer/camera/icamerakind.h"

#include <QString>
#include <QStringList>

namespace Viewer::NuvexUpdate {

enum class ECommand { List, Check, Update, Resume, History };

/// What the program was asked for on its command line.
struct CUpdateRequest
{
    Camera::CCameraKinds kinds; ///< not started; each knows what was asked of it
    ECommand command = ECommand::List;
    QString filePath; ///< absolute; Check and Update
    QString language; ///< empty: as remembered
    bool isJson = false;
    bool isCsv = false; ///< History
    bool requiresSignature = false; ///< Check, Update, Resume: whatever the policy says

    // Update: which cameras, by exactly one of these.
    QStringList cameras; ///< ids or serial numbers, each once
    QString modelName;
    bool isForAll = false;

    // Update and Resume:
    int parallelCount = 8; ///< at least 1; updates at a time
    int canaryCount = 0; ///< so many first; the others only when all of these have succeeded
    int maximumFailures = 1; ///< at least 1; with so many no further camera is begun
    bool allowsDowngrade = false;
    bool allowsReinstall = false;
    bool isDryRun = false;
    bool isConfirmed = false; ///< do not ask
};

} // namespace Viewer::NuvexUpdate
