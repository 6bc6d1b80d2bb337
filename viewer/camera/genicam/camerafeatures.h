#pragma once

#include "glibpointers.h"

#include "viewer/text/errortext.h"

#include "core/baseexception.h"

#include <QByteArray>

namespace Viewer::Camera::GenICam {

/// A camera did not do what was asked of a feature. The message is a cause without the camera's
/// name, to be put behind it.
class CFeatureError : public Core::Exception::BaseException
{
public:
    enum class EReason {
        NoAnswer, ///< the camera may be gone; what it was asked may be done
        Refused, ///< what it was asked is not done
        InUse, ///< the same, since somebody else controls it
        Unknown, ///< it answers, but what was to be done may be done, or in part
    };

    CFeatureError(const Text::CErrorText &text, EReason reason);
    ~CFeatureError() override;

    /// The message, also in the user's language.
    [[nodiscard]] Text::CErrorText getText() const;
    [[nodiscard]] EReason getReason() const;

private:
    Text::CErrorText m_text;
    EReason m_reason;
};

/// What to say about a camera that does not answer.
[[nodiscard]] Text::CErrorText getNoAnswerText();

/// What to say of a camera that another application has taken control over.
[[nodiscard]] Text::CErrorText getInUseText();

/// Throws the CFeatureError for @p error, of which there is one: "<attempt>: <why, and what to do
/// about it>". @p refusal is what a refusal amounts to. To be called behind `if (error)`, as the
/// text of the attempt, made for every command of an upload, would take a fifth of its time.
[[noreturn]] void throwError(const CErrorGuard &error, const Text::CErrorText &attempt,
                             CFeatureError::EReason refusal = CFeatureError::EReason::Refused);

/// The features of one open camera, by name. All operations block for as long as the camera takes,
/// up to 2.5 s for an answer that does not come, and throw CFeatureError; what cannot be read says
/// nothing about what was done before, so that is never a refusal. The thread that owns the device.
class CFeatures
{
public:
    /// @p device is borrowed.
    explicit CFeatures(ArvDevice *device);

    [[nodiscard]] bool has(const QByteArray &name) const;

    /// The value as text, whatever kind the feature is of: of an enumeration the entry's name, of a
    /// boolean "true" or "false".
    [[nodiscard]] QString read(const QByteArray &name) const;
    void write(const QByteArray &name, const QString &value) const;

    [[nodiscard]] qint64 readInteger(const QByteArray &name) const;
    void writeInteger(const QByteArray &name, qint64 value) const;

    /// Starts the command. Whether the camera is done is told by isDone().
    void execute(const QByteArray &name) const;

    /// False as long as the camera tells that the command is being executed. A camera that tells
    /// nothing is done at once.
    [[nodiscard]] bool isDone(const QByteArray &name) const;

    /// A stretch of the camera's memory.
    struct CRegister
    {
        quint64 address = 0;
        quint64 length = 0; ///< in bytes
    };

    [[nodiscard]] CRegister findRegister(const QByteArray &name) const;

    /// Writes @p bytes at @p address, filled up to whole words. There may be getLongestWrite() of
    /// them.
    void writeMemory(quint64 address, QByteArray bytes) const;

    /// So many bytes go into one command, a multiple of 4 where that is a limit. Asks the camera.
    [[nodiscard]] int getLongestWrite() const;

private:
    [[nodiscard]] ArvGcNode *getNode(const QByteArray &name,
                                     CFeatureError::EReason ifMissing
                                     = CFeatureError::EReason::Refused) const;

    ArvDevice *const m_device;
};

} // namespace Viewer::Camera::GenICam
