#pragma once

#include "viewer/camerapool/cameraverdict.h"

#include <QElapsedTimer>

#include <chrono>

namespace Viewer::NuvexUpdate {

using CameraPool::CCameraVerdict;
using CameraPool::EVerdict;

/// What has become of a camera that was to be updated.
enum class EOutcome {
    NotStarted, ///< the series has ended before
    Running,
    Updated,
    Failed,
    InUse, ///< somebody else works with it; it was not touched
    LeftAlone, ///< it does not fit, or has this version or a newer one
    Planned, ///< of a dry run: it would be updated
};

/// "not-started", "running", "updated", "failed", "in-use", "left-alone", "planned": the same in
/// every language.
[[nodiscard]] QString getOutcomeName(EOutcome outcome);

/// One camera in a series of updates, and how far it is. A value.
struct CCameraRun
{
    using Milliseconds = std::chrono::milliseconds;

    CCameraVerdict verdict;
    EOutcome outcome = EOutcome::NotStarted;
    QString message; ///< why not updated, one sentence or clause in the user's language
    QString firmwareVersion; ///< that it reported last

    int step = 0; ///< the current one, from 1; 0: none has begun
    int stepCount = 0;
    QString stepName; ///< of the kind of step, like "FileUpload"
    double stepPercent = 0; ///< of the step, 0 to 100
    Milliseconds estimate{0}; ///< of the whole update
    Milliseconds doneEstimate{0}; ///< of the steps that have ended
    Milliseconds stepEstimate{0};
    QElapsedTimer stepTimer;
    QElapsedTimer timer; ///< since the begin
    Milliseconds duration{0}; ///< once it has ended

    /// By the estimates of the steps, 0 to 100.
    [[nodiscard]] double getPercent() const;

    [[nodiscard]] Milliseconds getTimeLeft() const;

    /// Sentences call it so: its name and serial number, as one line.
    [[nodiscard]] QString getName() const;

private:
    [[nodiscard]] Milliseconds getDone() const;
};

} // namespace Viewer::NuvexUpdate
