#pragma once

#include "viewer/text/errortext.h"
#include "viewer/updatefile/updatemanifest.h"

#include "camerapool/icamerainfo.h"

namespace Viewer::Update {

/// Why @p entry of an update file is not for the camera, as a clause; empty: it is. An entry fits
/// when it lists the camera's model, lists its device version or none, and the camera's firmware is
/// not below the entry's minimum.
[[nodiscard]] Text::CErrorText findMisfit(const Plugin::CameraPool::ICameraInfo &camera,
                                          const UpdateFile::CUpdateEntry &entry);

} // namespace Viewer::Update
