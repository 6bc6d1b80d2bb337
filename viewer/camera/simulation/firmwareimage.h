#pragma once

#include <QByteArray>
#include <QString>

namespace Viewer::Camera::Simulation {

/// What a simulated camera makes of the file that is uploaded to it. A firmware image begins with
/// header lines "key: value" in plain ASCII, which end at the first empty line; what follows is not
/// looked at. "version" says what the camera reports once the image is installed, "model" for whom
/// it is. Keys are not case-sensitive, and others may stand between them.
struct CFirmwareImage
{
    static constexpr int MAXIMUM_HEADER_SIZE = 1024;

    QString version; ///< empty: the file is not a firmware image
    QString model; ///< empty: for any model

    /// @p beginning holds the first bytes of the file; more than MaximumHeaderSize are not needed.
    [[nodiscard]] static CFirmwareImage parse(const QByteArray &beginning);
};

/// The command feature that makes the next reset install the uploaded image.
constexpr const char *ACTIVATE_COMMAND = "FirmwareActivate";

} // namespace Viewer::Camera::Simulation
