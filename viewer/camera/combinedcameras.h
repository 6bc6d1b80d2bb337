#pragma once

#include "icamerakind.h"

namespace Viewer::Camera {

/// Several kinds of cameras as one: their transport layers stand one kind behind the other.
class CCombinedCameras : public ICameraDeviceFactory, public ICameraEnumerator
{
public:
    /// @p kinds is borrowed and outlives this object.
    explicit CCombinedCameras(const CCameraKinds &kinds);

    // ICameraDeviceFactory
    [[nodiscard]] std::unique_ptr<ICameraDevice> createDevice(const QString &cameraId) override;

    // ICameraEnumerator
    [[nodiscard]] QVector<CTransportLayerSnapshot> enumerate() override;
    void cancel() override;

private:
    const CCameraKinds &m_kinds;
};

} // namespace Viewer::Camera
