#pragma once

#include "camerafeatures.h"
#include "foundcamera.h"

#include "viewer/camera/cameraerror.h"
#include "viewer/camera/icameradevice.h"

#include <type_traits>

class QDeadlineTimer;

namespace Viewer::Camera::GenICam {

/// A real camera. The thread that opens it owns it: only that thread uses and closes it,
/// and closing one that has died takes seconds.
class CGenICamDevice : public ICameraDevice
{
public:
    explicit CGenICamDevice(const CFoundCamera &camera);
    ~CGenICamDevice() override;
    Q_DISABLE_COPY(CGenICamDevice)

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

    /// The library's own object; null: it is not open.
    [[nodiscard]] ArvDevice *getDevice() const;

    /// Runs @p action; whatever it throws leaves as a CCameraError.
    template <typename Action>
    std::invoke_result_t<Action> translate(Action action) const
    {
        try {
            return action();
        } catch (const CFeatureError &error) {
            fail(error);
        }
    }

private:
    /// Addresses can be given to others between a search and an update.
    void checkIdentity(std::chrono::milliseconds timeLimit) const;
    [[nodiscard]] CObjectPointer<ArvDevice> makeDevice(const QDeadlineTimer &deadline) const;
    [[nodiscard]] CObjectPointer<ArvDevice> makeUsbDevice(const QDeadlineTimer &deadline,
                                                          CErrorGuard &error) const;
    void waitForReturn(const CFoundCamera &before, const QDeadlineTimer &deadline) const;

    /// Who answers now where the camera was found: on Ethernet at its address, on USB by its unique
    /// number. Nothing: nobody does within @p timeLimit.
    [[nodiscard]] std::optional<CFoundCamera> find(std::chrono::milliseconds timeLimit) const;
    [[nodiscard]] CFeatures getFeatures() const;
    [[nodiscard]] QString readKnownFeature(const CFeatures &features, const QByteArray &name) const;

    [[noreturn]] void fail(const CFeatureError &error) const;
    [[noreturn]] void fail(const Text::CErrorText &cause,
                           CCameraError::EChange change = CCameraError::EChange::Possible) const;

    const CFoundCamera m_camera;
    CObjectPointer<ArvDevice> m_device;
};

} // namespace Viewer::Camera::GenICam
