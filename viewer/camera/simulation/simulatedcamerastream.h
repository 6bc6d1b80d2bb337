#pragma once

#include "viewer/camera/icamerastream.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

namespace Viewer::Camera::Simulation {

class CSimulatedCamera;

/// The images of a simulated camera: a pattern that moves.
class CSimulatedCameraStream : public ICameraStream
{
public:
    explicit CSimulatedCameraStream(const std::shared_ptr<CSimulatedCamera> &camera);
    ~CSimulatedCameraStream() override;
    Q_DISABLE_COPY(CSimulatedCameraStream)

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
    void makeFrames();

    const std::shared_ptr<CSimulatedCamera> m_camera;
    int m_session = 0;

    // What follows up to the mutex does not change while the thread runs.
    uchar *m_memory = nullptr;
    qint64 m_slotSize = 0;
    FrameListener m_listener;

    std::mutex m_mutex;
    std::condition_variable m_changed;
    QVector<int> m_freeSlots;
    CStreamStatistics m_statistics;
    double m_frameRate;
    bool m_isStopping = false;
    std::thread m_thread;
};

} // namespace Viewer::Camera::Simulation
