#pragma once

#include <QByteArray>

namespace VirtualCamera {

/// Learns what happens to a camera, while it happens.
class ICameraObserver
{
public:
    virtual ~ICameraObserver() = default;

    /// @p event is one line without its end.
    virtual void onEvent(const QByteArray &event) = 0;

    /// Whoever had the firmware file open has closed it.
    virtual void onFileClosed(const QByteArray &content) = 0;
};

} // namespace VirtualCamera
