#pragma once

#include "camerapool/efirmwareupdatestep.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace Viewer::UpdateFile {

/// A feature of the camera and the value that is written to it or expected of it.
struct CFeatureValue
{
    QString feature;
    QString value;
};

/// A file inside the archive that a step uploads.
struct CPayload
{
    QString name; ///< path inside the archive, with forward slashes
    qint64 size = 0; ///< unpacked size in bytes, at least 1
    QByteArray sha256; ///< 32 raw bytes
};

inline bool operator==(const CPayload &left, const CPayload &right)
{
    return left.name == right.name && left.size == right.size && left.sha256 == right.sha256;
}

/// One step of an update. Which members are used depends on the kind.
struct CUpdateStep
{
    Plugin::CameraPool::EFirmwareUpdateStep kind = Plugin::CameraPool::EFirmwareUpdateStep::Invalid;
    std::optional<int>
        estimatedMs; ///< at least 1; absent only for FileUpload: to be estimated by the job
    QString description; ///< may be empty

    QVector<CFeatureValue> preconditions; ///< CheckPreconditions: all must hold; may be empty
    CFeatureValue feature; ///< FeatureWrite and FeatureAssert; FeatureExecute uses the name alone
    CPayload payload; ///< FileUpload
    QString targetFile; ///< FileUpload: the camera's file that takes the payload
};

/// One entry of an update file.
struct CUpdateEntry
{
    QString version;
    QString description;
    QString releaseNotes;
    QStringList models; ///< at least one
    QStringList deviceVersions; ///< empty: every device version
    QString minimumVersion; ///< empty: every current version
    QVector<CUpdateStep> steps; ///< at least one, in order of execution
};

/// What the manifest of an update file says.
struct CUpdateManifest
{
    QVector<CUpdateEntry> updates; ///< at least one, in the file's order
    QByteArray sha256; ///< of update.json, 32 raw bytes; empty: it does not come from a file
    QByteArray json; ///< the bytes of update.json; empty: the same
    std::optional<QByteArray> signature; ///< the bytes of update.json.p7s, unread; nothing: none
};

} // namespace Viewer::UpdateFile
