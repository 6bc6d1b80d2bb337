#pragma once

#include <QCborMap>
#include <QString>

#include <optional>

namespace Viewer::Stream {

/// What a worker is told at first: whose images are wanted.
struct CStreamTask
{
    /// Of tasks, commands and events; both sides refuse every other one.
    static constexpr int PROTOCOL = 1;

    QString kind; ///< of the camera, by ICameraKind::getName()
    QCborMap camera; ///< by ICameraHandle::describe()
    QString language; ///< code of the texts for the user

    [[nodiscard]] QCborMap toCbor() const;

    /// Nothing, with the reason in @p fault: @p map is no task of this protocol.
    [[nodiscard]] static std::optional<CStreamTask> fromCbor(const QCborMap &map, QString &fault);
};

} // namespace Viewer::Stream
