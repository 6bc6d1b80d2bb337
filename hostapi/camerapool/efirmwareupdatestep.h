#pragma once

#include <QMetaType>

namespace Plugin::CameraPool {

/// The kinds of step that an update of one camera consists of.
enum class EFirmwareUpdateStep {
    CheckPreconditions = 0,
    AcquireUpdateData = 1,
    FeatureWrite = 2,
    FeatureExecute = 3,
    FeatureAssert = 4,
    FileUpload = 5,
    DeviceReset = 6,
    Invalid = 7,
};

} // namespace Plugin::CameraPool

Q_DECLARE_METATYPE(Plugin::CameraPool::EFirmwareUpdateStep)
