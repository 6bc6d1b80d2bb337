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
    static constexpr qint64 MaximumFileSize = 64 * 1024 * 1024;
    static constexpr int MaximumLayerCount = 100;
    static constexpr int MaximumCameraCount = 200'000;
    static constexpr int MaximumTextLength = 200;
    static constexpr qint64 MaximumUploadSpeed = 1'000'000'000;
    static constexpr qint64 DefaultUploadSpeed = 100'000;

    /// The description that is compiled in: three layers, four models, twelve cameras.
    [[nodiscard]] static CCameraDescription readBuiltIn();

    [[nodiscard]] static CCameraDescription readFile(const QString &path);

    /// @p name stands for the file in messages.
    [[nodiscard]] static CCameraDescription read(const QByteArray &text, const QString &name);
};

} // namespace Viewer::Camera::Simulation
