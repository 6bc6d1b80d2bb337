#pragma once

#include "viewer/camera/icamerastream.h"
#include "viewer/image/frame.h"

#include <QString>

#include <functional>
#include <memory>

namespace Viewer::Stream {

/// The memory for images of another process, for reading alone. Whatever that process does, reading
/// is safe; only the pictures may be wrong. Images keep it alive.
class CFrameWindow : public std::enable_shared_from_this<CFrameWindow>
{
public:
    /// Told of a slot whose image nobody looks at any more, on any thread.
    using Listener = std::function<void(int slot)>;

    /// Opens the @p descriptor of the process @p process, with @p slotCount slots of @p slotSize
    /// bytes. Null, with a clause in @p fault: this is no such memory.
    [[nodiscard]] static std::shared_ptr<CFrameWindow> open(qint64 process, int descriptor,
                                                            int slotCount, qint64 slotSize,
                                                            const Listener &listener,
                                                            QString &fault);
    ~CFrameWindow();
    Q_DISABLE_COPY(CFrameWindow)

    /// The image that @p info describes; nothing if that does not fit the memory.
    [[nodiscard]] std::optional<Image::CFrame> getFrame(const Camera::CFrameInfo &info);

private:
    CFrameWindow(const uchar *data, int slotCount, qint64 slotSize, const Listener &listener);

    const uchar *const m_data;
    const int m_slotCount;
    const qint64 m_slotSize;
    const Listener m_listener;
};

} // namespace Viewer::Stream
