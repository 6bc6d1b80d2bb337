#pragma once

#include "simulatedcamera.h"

#include "viewer/camera/icamerahandle.h"

#include <QString>

#include <memory>

namespace Viewer::Camera::Simulation {

/// A simulated camera while another process works with it. There, it is another object with the
/// same facts; here, it is kept from others, and takes over what became of it.
class CSimulatedCameraHandle : public ICameraHandle
{
public:
    CSimulatedCameraHandle(const std::shared_ptr<CSimulatedCamera> &camera, double speedFactor,
                           const QString &stateFile);
    ~CSimulatedCameraHandle() override;
    Q_DISABLE_COPY(CSimulatedCameraHandle)

    // ICameraHandle
    [[nodiscard]] QCborMap describe() const override;
    void begin() override;
    [[nodiscard]] bool isLost() const override;
    void end(const QCborMap &state) override;

    // In the other process:

    /// The camera that describe() has described; null: @p description is none, or its speed is not
    /// within the two limits.
    [[nodiscard]] static std::shared_ptr<CSimulatedCamera>
    makeCamera(const QCborMap &description, double slowestSpeed, double fastestSpeed);

    /// What end() takes over.
    [[nodiscard]] static QCborMap describeState(const CSimulatedCamera &camera);

private:
    const std::shared_ptr<CSimulatedCamera> m_camera;
    const double m_speedFactor;
    const QString m_stateFile;
    CSimulatedCamera::Session m_session = 0;
};

} // namespace Viewer::Camera::Simulation
