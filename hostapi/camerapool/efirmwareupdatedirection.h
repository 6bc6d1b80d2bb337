#pragma once

#include <QMetaType>

namespace Plugin::CameraPool {

/// What an update does to a camera's firmware version. A 32-bit integer, so that a value from a
/// newer host survives being stored and handed on.
enum class EFirmwareUpdateDirection : int {
    Upgrade = 0,
    Downgrade = 1,
    Reinstall = 2,
    Invalid = 3, ///< no update has been chosen yet; never reported by a host
};

} // namespace Plugin::CameraPool

Q_DECLARE_METATYPE(Plugin::CameraPool::EFirmwareUpdateDirection)
