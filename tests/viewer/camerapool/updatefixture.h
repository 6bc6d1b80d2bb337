#pragma once

#include "viewer/camerapool/firmwareupdateinfo.h"
#include "viewer/camerapool/updatefile/updatemanifest.h"

#include <QByteArray>
#include <QSharedPointer>

namespace Test {

/// A file that a simulated camera takes for the firmware @p version of @p model; "size" bytes long.
[[nodiscard]] QByteArray makeImage(const QString &model, const QString &version, int size);

/// An entry with every kind of step for the model "VX-1400M": precondition Ready = 1 on top of the
/// usual ones, mode On, one upload of @p image, activation, reset, assertion of the new version.
/// All steps but the upload have an estimate.
[[nodiscard]] Viewer::CameraPool::UpdateFile::CUpdateEntry makeEntry(const QString &version,
                                                                     const QByteArray &image);

/// Writes an archive with the payload of makeEntry() to @p path; there is no manifest in it.
void writePayload(const QString &path, const QByteArray &image);

/// Writes a whole update file, whose entries are the ones of makeEntry() for @p versions, but with
/// the precondition DeviceStatus = 0 instead of Ready.
void writeUpdateFile(const QString &path, const QStringList &versions, int imageSize);

[[nodiscard]] QSharedPointer<Viewer::CameraPool::CFirmwareUpdateInfo>
makeInfo(const Viewer::CameraPool::UpdateFile::CUpdateEntry &entry, const QString &path);

} // namespace Test
