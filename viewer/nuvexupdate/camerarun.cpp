#include "camerarun.h"

#include "viewer/text/visibletext.h"

#include <algorithm>

namespace Viewer::NuvexUpdate {

QString getOutcomeName(EOutcome outcome)
{
    switch (outcome) {
    case EOutcome::NotStarted:
        return QStringLiteral("not-started");
    case EOutcome::Running:
        return QStringLiteral("running");
    case EOutcome::Updated:
        return QStringLiteral("updated");
    case EOutcome::Failed:
        return QStringLiteral("failed");
    case EOutcome::InUse:
        return QStringLiteral("in-use");
    case EOutcome::LeftAlone:
        return QStringLiteral("left-alone");
    case EOutcome::Planned:
        return QStringLiteral("planned");
    }
    return {};
}

CCameraRun::Milliseconds CCameraRun::getDone() const
{
    // A reset tells no progress; for it the clock has to do.
    const auto byPercent
        = std::chrono::duration_cast<Milliseconds>(stepEstimate * stepPercent / 100);
    const Milliseconds byTime(stepPercent > 0 || !stepTimer.isValid() ? 0 : stepTimer.elapsed());
    return doneEstimate + std::min(stepEstimate, std::max(byPercent, byTime));
}

double CCameraRun::getPercent() const
{
    if (outcome == EOutcome::Updated)
        return 100;
    return estimate.count() > 0
        ? std::clamp(100.0 * getDone().count() / estimate.count(), 0.0, 100.0)
        : 0;
}

CCameraRun::Milliseconds CCameraRun::getTimeLeft() const
{
    return std::max(estimate - getDone(), Milliseconds(0));
}

QString CCameraRun::getName() const
{
    const QString name = Text::shorten(verdict.snapshot.displayName);
    const QString serialNumber = Text::shorten(verdict.snapshot.serialNumber);
    return serialNumber.isEmpty() || name.contains(serialNumber)
        ? name
        : QStringLiteral("%1 (%2)").arg(name, serialNumber);
}

} // namespace Viewer::NuvexUpdate
