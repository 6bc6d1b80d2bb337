#pragma once

#include "cameradescription.h"

#include <QByteArray>

namespace Viewer::Camera::Simulation {

/// Reads descriptions of simulated cameras. No state; any thread. All functions throw
/// `Core::Exception::BaseException` when the description cannot be read or is faulty; the message
/// is one sentence without a final full stop, for faults in the text with line, column and field.
class CCameraDescriptionReader
{
public:
    static constexpr qint64 MAXIMUM_FILE_SIZE = 64 * 1024 * 1024;
    static constexpr int MAXIMUM_LAYER_COUNT = 100;
    static constexpr int MAXIMUM_CAMERA_COUNT = 200'000;
    static constexpr int MAXIMUM_TEXT_LENGTH = 200;
    static constexpr qint64 MAXIMUM_UPLOAD_SPEED = 1'000'000'000;
    static constexpr qint64 DEFAULT_UPLOAD_SPEED = 100'000;

    /// The description that is compiled in: three layers, four models, twelve cameras.
    [[nodiscard]] static CCameraDescription readBuiltIn();

    [[nodiscard]] static CCameraDescription readFile(const QString &path);

    /// @p name stands for the file in messages.
    [[nodiscard]] static CCameraDescription read(const QByteArray &text, const QString &name);
};

} // namespace Viewer::Camera::Simulation
