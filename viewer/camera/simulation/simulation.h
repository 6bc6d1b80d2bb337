#pragma once

#include "viewer/camera/icamerakind.h"

#include <QString>
#include <QVector>

#include <memory>
#include <optional>

namespace Viewer::Camera::Simulation {

/// How the cameras are simulated.
struct CSimulationOptions
{
    bool simulates = true; ///< false: there are no simulated cameras
    QString descriptionFile; ///< JSON; empty: the built-in description
    QString stateFile; ///< remembers the firmware versions that updates wrote; empty: nothing does
    bool forgets = false; ///< forget what earlier updates wrote
    double speedFactor = 1.0; ///< divides every simulated duration and every time limit
};

/// Cameras without hardware, with what stands in for cables and for other applications.
class CSimulation : public ICameraKind
{
    Q_OBJECT

public:
    /// How many times faster than real cameras a demonstration runs unless told otherwise.
    static constexpr double DEMONSTRATION_SPEED = 4.0;

    explicit CSimulation(const CSimulationOptions &options = {}, QObject *parent = nullptr);
    ~CSimulation() override;

    // ICameraKind
    [[nodiscard]] QString getName() const override;
    [[nodiscard]] QVector<CommandLine::COption> getOptions() override;
    void setDataFolder(const QString &folder) override;
    void prepareDemonstration() override;
    void start() override;
    [[nodiscard]] QString getMenuTitle() const override;
    [[nodiscard]] QVector<CCameraSwitch> getSwitches() override;
    [[nodiscard]] ECameraPresence getPresence(const QString &cameraId) const override;
    void freeCameras() override;
    [[nodiscard]] std::unique_ptr<ICameraHandle>
    createHandle(const QString &cameraId) const override;
    [[nodiscard]] std::unique_ptr<ICameraDevice> makeDevice(const QCborMap &description) override;
    [[nodiscard]] std::unique_ptr<ICameraStream> makeStream(const QCborMap &description) override;
    [[nodiscard]] QCborMap describeMade() const override;
    [[nodiscard]] double getSlownessOfMade() const override;
    void loseMade() override;

    // ICameraDeviceFactory
    [[nodiscard]] std::unique_ptr<ICameraDevice> createDevice(const QString &cameraId) override;

    // ICameraEnumerator
    [[nodiscard]] QVector<CTransportLayerSnapshot> enumerate() override;
    void cancel() override;

private:
    CSimulationOptions m_options;
    std::optional<double> m_askedSpeed; ///< on the command line

    struct CPrivate;
    const std::unique_ptr<CPrivate> d;
};

} // namespace Viewer::Camera::Simulation
