#pragma once

#include <QString>
#include <QtGlobal>

#include <chrono>
#include <functional>

class QIODevice;

namespace Viewer::Camera {

/// Everything that an update does to one camera, whatever the wire. All operations but the
/// constructor, getName(), getUploadRate() and getShortestResetLimit() block and are called on one
/// worker thread. Each ends within its time limit and reports a failure by throwing CCameraError;
/// nothing else is thrown. The error of an operation that changes
/// the camera says truly whether it may have. After a failure only close() and destruction are
/// safe.
class ICameraDevice
{
public:
    /// Receives the number of bytes written so far, on the calling thread.
    using ProgressFunction = std::function<void(qint64 bytesDone)>;

    virtual ~ICameraDevice() = default;

    /// What messages call the camera. Any thread.
    [[nodiscard]] virtual QString getName() const = 0;

    /// Takes control of the camera. Fails when it is gone, or in use by somebody else.
    virtual void open(std::chrono::milliseconds timeLimit) = 0;

    /// Gives control back. Never fails; does nothing on a closed device.
    virtual void close() noexcept = 0;

    /// Reads the feature @p name as text. The features "DeviceModelName", "DeviceVersion",
    /// "DeviceSerialNumber", "DeviceFirmwareVersion" and "DeviceStatus" exist on every camera; the
    /// status is a whole number, "0" exactly when the camera can be updated.
    [[nodiscard]] virtual QString readFeature(const QString &name,
                                              std::chrono::milliseconds timeLimit)
        = 0;

    virtual void writeFeature(const QString &name, const QString &value,
                              std::chrono::milliseconds timeLimit)
        = 0;

    /// Executes the command feature @p name and waits until the camera says that it is done.
    virtual void executeCommand(const QString &name, std::chrono::milliseconds timeLimit) = 0;

    /// Writes the next @p size bytes of @p source, block by block, into the camera's file
    /// @p fileName. @p source is open and is read only as far as it is written.
    virtual void uploadFile(const QString &fileName, QIODevice &source, qint64 size,
                            const ProgressFunction &progress, std::chrono::milliseconds timeLimit)
        = 0;

    /// Restarts the camera and waits until it answers again; the device is open afterwards.
    virtual void resetAndWait(std::chrono::milliseconds timeLimit) = 0;

    /// Nominal upload speed in bytes per second, at least 1. Does not touch the camera; any thread.
    [[nodiscard]] virtual qint64 getUploadRate() const = 0;

    /// What resetAndWait() is to be given at least, as cameras of this kind may take so long
    /// whatever an update file promises. Does not touch the camera; any thread.
    [[nodiscard]] virtual std::chrono::milliseconds getShortestResetLimit() const = 0;
};

} // namespace Viewer::Camera
