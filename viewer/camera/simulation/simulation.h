#pragma once

#include "viewer/camera/icameradevicefactory.h"
#include "viewer/camera/icameraenumerator.h"

#include <QObject>
#include <QString>
#include <QVector>

#include <memory>

namespace Viewer::Camera::Simulation {

struct CCameraDescription;

/// What a menu needs to know about a described camera, plugged in or not.
struct CSimulatedCameraState
{
    QString id;
    QString displayName;
    bool plugged = true;
    bool busy = false;
};

/// Cameras without hardware, with what stands in for cables and for other applications. GUI thread,
/// but for enumerate().
class CSimulation : public QObject, public ICameraDeviceFactory, public ICameraEnumerator
{
    Q_OBJECT

public:
    /// @p stateFile remembers the firmware versions that updates wrote; empty: nothing is kept.
    /// @p speedFactor divides every simulated duration and every time limit.
    CSimulation(const CCameraDescription &description, const QString &stateFile, double speedFactor,
                QObject *parent = nullptr);
    ~CSimulation() override;

    /// All described cameras in the order of the description, also unplugged ones.
    [[nodiscard]] QVector<CSimulatedCameraState> getCameras() const;

    [[nodiscard]] bool hasCamera(const QString &cameraId) const;

    /// Removing a camera interrupts whatever is being done with it. Both do nothing for unknown
    /// ids and when the camera already is in that state.
    void plugIn(const QString &cameraId);
    void unplug(const QString &cameraId);
    [[nodiscard]] bool isPlugged(const QString &cameraId) const;

    /// A busy camera acquires continuously for another application.
    void setBusy(const QString &cameraId, bool busy);
    [[nodiscard]] bool isBusy(const QString &cameraId) const;

    // ICameraDeviceFactory
    [[nodiscard]] std::unique_ptr<ICameraDevice> createDevice(const QString &cameraId) override;

    // ICameraEnumerator
    [[nodiscard]] QVector<CTransportLayerSnapshot> enumerate() override;
    void cancel() override;

signals:
    /// GUI thread; another enumeration would have another result.
    void camerasChanged();

    /// GUI thread; the camera was made busy or free, plugged in or unplugged.
    void cameraStateChanged(const QString &cameraId);

private:
    struct CPrivate;
    const std::unique_ptr<CPrivate> d;
};

} // namespace Viewer::Camera::Simulation
