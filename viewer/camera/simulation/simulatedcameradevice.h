#pragma once

#include "viewer/camera/cameraerror.h"
#include "viewer/camera/icameradevice.h"

#include <QByteArray>
#include <QHash>

#include <memory>

namespace Viewer::Camera::Simulation {

class CSimulatedCamera;

/// The way to a simulated camera: takes the time a real one takes, keeps to the time limits, and
/// fails as the camera's description says.
///
/// Any file that is uploaded is taken for a firmware image. It is installed by the next reset if
/// it was uploaded as a whole, begins with a readable header and was activated.
class CSimulatedCameraDevice : public ICameraDevice
{
public:
    explicit CSimulatedCameraDevice(const std::shared_ptr<CSimulatedCamera> &camera);
    ~CSimulatedCameraDevice() override;
    Q_DISABLE_COPY(CSimulatedCameraDevice)

    [[nodiscard]] QString getName() const override;
    void open(std::chrono::milliseconds timeLimit) override;
    void close() noexcept override;
    [[nodiscard]] QString readFeature(const QString &name,
                                      std::chrono::milliseconds timeLimit) override;
    void writeFeature(const QString &name, const QString &value,
                      std::chrono::milliseconds timeLimit) override;
    void executeCommand(const QString &name, std::chrono::milliseconds timeLimit) override;
    void uploadFile(const QString &fileName, QIODevice &source, qint64 size,
                    const ProgressFunction &progress, std::chrono::milliseconds timeLimit) override;
    void resetAndWait(std::chrono::milliseconds timeLimit) override;
    [[nodiscard]] qint64 getUploadRate() const override;
    [[nodiscard]] std::chrono::milliseconds getShortestResetLimit() const override;

private:
    [[noreturn]] void fail(const Text::CErrorText &cause,
                           CCameraError::EChange change = CCameraError::EChange::Possible) const;
    [[noreturn]] void refuse(const Text::CErrorText &cause) const;
    [[noreturn]] void failByTime(std::chrono::milliseconds timeLimit) const;
    void work(std::chrono::milliseconds duration, std::chrono::milliseconds timeLimit) const;
    void requireConnection(bool connected,
                           CCameraError::EChange change = CCameraError::EChange::Possible) const;
    void activate();

    const std::shared_ptr<CSimulatedCamera> m_camera;
    int m_session = 0;
    QHash<QString, QString> m_features; // written since the camera was opened or restarted
    QByteArray m_image; // the beginning of the file uploaded last, if it was uploaded as a whole
    QString m_activatedVersion;
    bool m_uploaded = false;
};

} // namespace Viewer::Camera::Simulation
