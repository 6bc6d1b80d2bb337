#pragma once

#include <QString>

#include <functional>

namespace Viewer::NuvexUpdate {

/// Lines of text for a file descriptor. What cannot be written any more, as the reader has gone or
/// the disk is full, is told once; the program goes on.
class COutput
{
public:
    using FaultListener = std::function<void(const QString &reason)>;

    /// @p descriptor is borrowed. @p listener gets the reason of the first failure.
    explicit COutput(int descriptor, const FaultListener &listener = {});

    /// @p text and a line end, at once.
    void writeLine(const QString &text);

    void write(const QByteArray &bytes);

    [[nodiscard]] bool isTerminal() const;

    /// Of the terminal, in letters and lines; 0: unknown.
    [[nodiscard]] int getWidth() const;
    [[nodiscard]] int getHeight() const;

private:
    const int m_descriptor;
    const FaultListener m_listener;
    bool m_hasFailed = false;
};

} // namespace Viewer::NuvexUpdate
