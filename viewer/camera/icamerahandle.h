#pragma once

#include <QCborMap>

namespace Viewer::Camera {

/// A camera as the process sees it that has another process work with it. Made on the GUI thread
/// and used by one worker thread; may outlive the kind that made it.
class ICameraHandle
{
public:
    virtual ~ICameraHandle() = default;

    /// All that the other process needs to make the device, as the camera is now; see
    /// ICameraKind::makeDevice().
    [[nodiscard]] virtual QCborMap describe() const = 0;

    /// From now on until end() another process works with the camera.
    virtual void begin() = 0;

    /// It was taken away in the meantime, and the other process cannot know.
    [[nodiscard]] virtual bool isLost() const = 0;

    /// The other process has left the camera in this @p state, see ICameraKind::describeMade();
    /// empty: nobody knows in which.
    virtual void end(const QCborMap &state) = 0;
};

} // namespace Viewer::Camera
