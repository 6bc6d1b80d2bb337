#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace Viewer::AppCore {

/// What a log of the firmware updater tells about its updates.
struct CLogSummary
{
    enum class EOutcome {
        NoUpdate, ///< the wizard was closed before it began one
        Successful,
        Failed, ///< of a camera; those behind it were skipped
        Canceled,
        Interrupted, ///< the log ends before the updates do
    };

    /// Reads it from @p text, lines in UTF-8. The words that date and level are written in differ
    /// with the user's language, the messages do not. What cannot be is passed over; an update file
    /// can have lines of its own in the log.
    [[nodiscard]] static CLogSummary parse(const QByteArray &text);

    EOutcome outcome = EOutcome::NoUpdate;
    QStringList cameraNames; ///< of those whose update began; each once and on one line
    int cameraCount = 0; ///< of all series of updates together
    int updatedCount = 0;
};

} // namespace Viewer::AppCore
