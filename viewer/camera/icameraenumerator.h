#pragma once

#include "camerasnapshot.h"

namespace Viewer::Camera {

/// Looks for cameras on all transport layers.
class ICameraEnumerator
{
public:
    virtual ~ICameraEnumerator() = default;

    /// Blocks until every layer has answered; at most some seconds. Throws nothing. One worker
    /// thread.
    [[nodiscard]] virtual QVector<CTransportLayerSnapshot> enumerate() = 0;

    /// Makes a running enumerate() and all later ones return at once, with whatever result. Any
    /// thread.
    virtual void cancel() = 0;
};

} // namespace Viewer::Camera
