#pragma once

#include "featureinfo.h"

#include <QString>
#include <QVector>

#include <chrono>
#include <functional>

namespace Viewer::Camera {

/// How an image of a camera lies in its slot of the memory.
struct CFrameInfo
{
    int slot = 0; ///< from 0
    quint32 pixelFormat = 0; ///< PFNC code
    int width = 0; ///< pixels
    int height = 0;
    int linePadding = 0; ///< bytes behind each line
    qint64 size = 0; ///< bytes
    quint64 number = 0; ///< as the camera counts
    qint64 timestamp = 0; ///< ns, by the camera's clock
};

/// What has come since start().
struct CStreamStatistics
{
    qint64 frames = 0; ///< complete ones
    qint64 bytes = 0; ///< of these
    qint64 incompleteFrames = 0; ///< with parts that never came; not delivered
    qint64 resentPackets = 0;
    qint64 lostPackets = 0; ///< although they were asked for once more
};

/// The images and settings of one camera, whatever the wire. Blocks; all on one thread but where
/// something else is said. A failure is thrown as CCameraError.
class ICameraStream
{
public:
    /// Called on a thread of this object with an image in the memory, whose slot is not written
    /// again before giveBack(). Must not block.
    using FrameListener = std::function<void(const CFrameInfo &frame)>;

    virtual ~ICameraStream() = default;

    /// What messages call the camera. Any thread.
    [[nodiscard]] virtual QString getName() const = 0;

    /// Takes control of the camera. Fails when it is gone, or in use by somebody else.
    virtual void open(std::chrono::milliseconds timeLimit) = 0;

    /// Stops, and gives control back. Never fails; does nothing on a closed stream.
    virtual void close() noexcept = 0;

    /// Those called @p names that the camera has; no names: all that it has. Each one can take a
    /// while: @p pause is called between them.
    [[nodiscard]] virtual QVector<CFeatureInfo> readFeatures(const QStringList &names,
                                                             const std::function<void()> &pause)
        = 0;

    virtual void writeFeature(const QString &name, const QString &value) = 0;
    virtual void executeCommand(const QString &name) = 0;

    /// How many bytes an image takes with the settings as they are, at least 1.
    [[nodiscard]] virtual qint64 getFrameSize() = 0;

    /// Has images written into @p slotCount slots of @p slotSize bytes each, one behind the other
    /// from @p memory on, which stay until stop() or close() has returned.
    virtual void start(uchar *memory, int slotCount, qint64 slotSize, const FrameListener &listener)
        = 0;

    /// The image in @p slot is not needed any more. Any thread, between start() and stop().
    virtual void giveBack(int slot) = 0;

    /// No image comes afterwards. Does nothing where none could.
    virtual void stop() = 0;

    [[nodiscard]] virtual CStreamStatistics getStatistics() = 0;

    /// Throws when the camera has gone, or has been taken over, since start().
    virtual void check() = 0;
};

} // namespace Viewer::Camera
