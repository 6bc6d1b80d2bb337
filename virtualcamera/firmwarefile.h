#pragma once

#include <QByteArray>

namespace VirtualCamera {

/// What can be done with a file, by the values of the feature FileOperationSelector.
enum class EFileOperation {
    Open = 0,
    Close = 1,
    Read = 2,
    Write = 3,
    Delete = 4,
};

/// The one file of the camera, its firmware image: opened, written piece by piece, closed.
class CFirmwareFile
{
public:
    enum class EOpenMode {
        Read = 0,
        Write = 1,
        ReadWrite = 2,
    };

    /// The largest image that the camera takes, in bytes.
    static constexpr qint64 MAXIMUM_SIZE = 64 * 1024 * 1024;

    /// False when the file is open already or the mode is unknown. Opening to write empties the
    /// file.
    bool open(quint32 mode);

    /// False when the file is not open.
    bool close();

    /// Closes an open file and forgets what was written to it: its writer has gone.
    void abandon();

    /// Empties the file; false when it is open.
    bool remove();

    /// Writes @p bytes at @p offset, which must not lie behind the end. Number of bytes written, or
    /// -1.
    int write(quint32 offset, const QByteArray &bytes);

    /// At most @p length bytes from @p offset on; null when the file is not open to read or
    /// @p offset lies behind the end.
    [[nodiscard]] QByteArray read(quint32 offset, int length) const;

    [[nodiscard]] bool isOpen() const;
    [[nodiscard]] const QByteArray &getContent() const;

    /// The version that the image names in a line "version: <text>" of the header it begins with;
    /// empty when there is none, the file is open, or a line "size: <number>" tells another number
    /// of bytes than there are.
    [[nodiscard]] QByteArray getVersion() const;

private:
    [[nodiscard]] QByteArray readHeader(const QByteArray &name) const;

    enum class EState {
        Closed,
        Reading,
        Writing,
        ReadingAndWriting,
    };

    EState m_state = EState::Closed;
    QByteArray m_content;
};

} // namespace VirtualCamera
