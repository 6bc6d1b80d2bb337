#pragma once

#include "camerapool/icameraenumerationservice.h"
#include "camerapool/idevicefirmwareupdateservice.h"

#include <QString>
#include <QVector>

namespace Viewer::Demo {

/// Which cameras the demonstration updates, and with which file.
struct CDemoPlan
{
    QString modelName;
    QString updateFile;
    QString targetVersion;
    QVector<Plugin::CameraPool::CameraInfoPtr> cameras; ///< as they were before the update

    /// Chooses the model and, from the update files in @p samplesDirectory, the one with the
    /// highest version for it. Without a file that fits, `cameras` is empty and @p error says so.
    static CDemoPlan create(Plugin::CameraPool::ICameraEnumerationService &enumeration,
                            Plugin::CameraPool::IDeviceFirmwareUpdateService &updates,
                            const QString &samplesDirectory, QString &error);
};

} // namespace Viewer::Demo
