#pragma once

#include "viewer/camera/featureinfo.h"
#include "viewer/camera/icamerastream.h"
#include "viewer/text/errortext.h"

#include <QCborMap>
#include <QVector>

#include <optional>

namespace Viewer::Stream {

/// What a worker tells of the camera whose images it hands on.
struct CStreamEvent
{
    enum class EType {
        Hello, ///< the first one: the worker has understood its task
        Opened, ///< it controls the camera
        Started, ///< images come, into memory that is described here
        Frame, ///< an image has come
        Statistics, ///< about once a second while images come
        Features, ///< some of those that were asked for; the last ones of an answer have `isLast`
        Refused, ///< a feature was not written, read or executed; everything else goes on
        Stopped, ///< no image comes any more
        Failed, ///< the last one: the camera has gone, or was never had
    };

    EType type = EType::Hello;
    int descriptor = -1; ///< Started: of the memory, in the worker
    int slotCount = 0; ///< Started
    qint64 slotSize = 0; ///< Started
    Camera::CFrameInfo frame; ///< Frame
    Camera::CStreamStatistics statistics; ///< Statistics
    qint64 skippedFrames = 0; ///< Statistics: those that the viewer was too slow for
    QVector<Camera::CFeatureInfo> features; ///< Features
    bool isLast = true; ///< Features
    Text::CErrorText error; ///< Refused and Failed: one line
    bool isInUse = false; ///< Failed: since somebody else works with the camera

    [[nodiscard]] QCborMap toCbor() const;

    /// Nothing: @p map is no event of this protocol.
    [[nodiscard]] static std::optional<CStreamEvent> fromCbor(const QCborMap &map);
};

} // namespace Viewer::Stream
