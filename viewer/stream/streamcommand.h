#pragma once

#include <QCborMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace Viewer::Stream {

/// What the viewer asks of a worker that has opened a camera.
struct CStreamCommand
{
    enum class EType {
        Start, ///< images are wanted
        Stop, ///< no more images
        Release, ///< the image in `slot` is not needed any more
        Read, ///< what the features `names` are like; none: all of them
        Write, ///< `value` into the feature `name`
        Execute, ///< the command feature `name`
    };

    EType type = EType::Stop;
    int slot = 0;
    qint64 start = 0; ///< which one the memory of `slot` came with, from 1; 0: none
    QString name;
    QString value;
    QStringList names;

    [[nodiscard]] QCborMap toCbor() const;

    /// Nothing: @p map is no command of this protocol.
    [[nodiscard]] static std::optional<CStreamCommand> fromCbor(const QCborMap &map);
};

} // namespace Viewer::Stream
