#pragma once

#include "genicamdevice.h"

#include "viewer/camera/icamerastream.h"

#include <atomic>
#include <mutex>
#include <thread>
#include <vector>

namespace Viewer::Camera::GenICam {

/// The images and settings of a real camera. The library writes each image into its slot itself.
class CGenICamStream : public ICameraStream
{
public:
    explicit CGenICamStream(const CFoundCamera &camera);
    ~CGenICamStream() override;
    Q_DISABLE_COPY(CGenICamStream)

    [[nodiscard]] QString getName() const override;
    void open(std::chrono::milliseconds timeLimit) override;
    void close() noexcept override;
    [[nodiscard]] QVector<CFeatureInfo> readFeatures(const QStringList &names,
                                                     const std::function<void()> &pause) override;
    void writeFeature(const QString &name, const QString &value) override;
    void executeCommand(const QString &name) override;
    [[nodiscard]] qint64 getFrameSize() override;
    void start(uchar *memory, int slotCount, qint64 slotSize,
               const FrameListener &listener) override;
    void giveBack(int slot) override;
    void stop() override;
    [[nodiscard]] CStreamStatistics getStatistics() override;
    void check() override;

private:
    void takeFrames();
    void takeFrame(ArvBuffer *buffer);
    void setLocked(bool isLocked) noexcept;

    CGenICamDevice m_device;
    std::atomic<bool> m_isControlLost{false};

    // While the thread runs, only it and giveBack() use what follows; see the library for what may
    // be called at the same time.
    FrameListener m_listener;
    CObjectPointer<ArvStream> m_stream;
    std::vector<CObjectPointer<ArvBuffer>> m_buffers; ///< by slot
    std::thread m_thread;
    std::atomic<bool> m_isStopping{false};

    std::mutex m_mutex;
    CStreamStatistics m_statistics; ///< but for the packets
};

} // namespace Viewer::Camera::GenICam
