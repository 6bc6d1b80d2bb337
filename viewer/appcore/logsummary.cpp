#include "logsummary.h"

#include "viewer/text/visibletext.h"

#include <QRegularExpression>
#include <QVector>

#include <algorithm>

namespace Viewer::AppCore {

static constexpr int MAXIMUM_NAME_LENGTH = 80;
static constexpr qint64 MAXIMUM_COUNT = 999999;

namespace {

/// The updates between two visits of the wizard's first page.
struct CSeries
{
    int current = 0; ///< number of the camera, from 1
    int total = 0;
    int updated = 0;
    bool hasFailed = false;
    bool isCanceled = false;
    bool hasEnded = false;
};

/// Follows a log from line to line.
class CLogFollower
{
public:
    void addMessage(const QString &message);
    [[nodiscard]] CLogSummary getSummary() const;

private:
    void addCamera(const QRegularExpressionMatch &match);

    QVector<CSeries> m_series;
    QStringList m_cameraNames;
};

void CLogFollower::addMessage(const QString &message)
{
    static const QRegularExpression camera(
        QStringLiteral("^(Starting firmware|Finished firmware|Firmware) update "
                       "\\((\\d{1,6})/(\\d{1,6})\\)( failed\\.| for camera (.*)|)$"));
    const QRegularExpressionMatch match = camera.match(message);
    if (match.hasMatch()) {
        addCamera(match);
    } else if (!m_series.isEmpty()) {
        CSeries &series = m_series.last();
        if (message == QLatin1String("Firmware updates have been canceled by the user")) {
            series.isCanceled = true;
        } else if (message == QLatin1String("Finished all firmware updates")) {
            series.hasEnded
                = series.hasFailed || series.isCanceled || series.updated == series.total;
        } else if (message.startsWith(QLatin1String("Entering update step: "))) {
            // Whatever was said about this camera before was too early.
            series.updated = std::min(series.updated, std::max(series.current - 1, 0));
            series.hasEnded = false;
        }
    }
}

void CLogFollower::addCamera(const QRegularExpressionMatch &match)
{
    const int number = match.captured(2).toInt();
    const int total = match.captured(3).toInt();
    const bool begins = match.captured(1).startsWith(QLatin1Char('S'));
    if (number < 1 || number > total)
        return;
    if (m_series.isEmpty() || m_series.constLast().total != total
        || (begins && m_series.constLast().hasEnded))
        m_series.append(CSeries());
    CSeries &series = m_series.last();
    series.current = number;
    series.total = total;
    // A series ends with the first camera that fails.
    series.updated = number - 1;
    if (begins) {
        const QString name = Text::toSingleLine(match.captured(5).left(MAXIMUM_NAME_LENGTH));
        if (!m_cameraNames.contains(name))
            m_cameraNames.append(name);
    } else if (match.capturedLength(4) == 0) {
        series.updated = number;
    } else {
        // After a cancel the next camera is booked as failed, although nothing was done to it.
        series.hasFailed = !series.isCanceled;
        series.hasEnded = true;
    }
}

CLogSummary CLogFollower::getSummary() const
{
    CLogSummary summary;
    summary.cameraNames = m_cameraNames;
    qint64 cameraCount = 0;
    qint64 updatedCount = 0;
    for (const CSeries &series : m_series) {
        cameraCount += series.total;
        updatedCount += series.updated;
    }
    summary.cameraCount = static_cast<int>(std::min(cameraCount, MAXIMUM_COUNT));
    summary.updatedCount = static_cast<int>(std::min(updatedCount, MAXIMUM_COUNT));
    const auto any = [this](bool CSeries::*flag, bool value) {
        return std::any_of(m_series.cbegin(), m_series.cend(),
                           [=](const CSeries &series) { return series.*flag == value; });
    };
    if (m_series.isEmpty())
        summary.outcome = CLogSummary::EOutcome::NoUpdate;
    else if (any(&CSeries::hasEnded, false))
        summary.outcome = CLogSummary::EOutcome::Interrupted;
    else if (any(&CSeries::hasFailed, true))
        summary.outcome = CLogSummary::EOutcome::Failed;
    else if (any(&CSeries::isCanceled, true))
        summary.outcome = CLogSummary::EOutcome::Canceled;
    else
        summary.outcome = CLogSummary::EOutcome::Successful;
    return summary;
}

} // namespace

CLogSummary CLogSummary::parse(const QByteArray &text)
{
    // Weekday, month and day, then the time, the year and the level.
    static const QRegularExpression line(
        QStringLiteral("^.{1,80}? \\d\\d:\\d\\d:\\d\\d \\S+ \\S+ (.*)$"));
    CLogFollower follower;
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &bytes : lines) {
        // The many lines about progress are not worth a closer look.
        if (!bytes.contains("irmware update") && !bytes.contains("update step"))
            continue;
        const QRegularExpressionMatch match = line.match(QString::fromUtf8(bytes));
        if (match.hasMatch())
            follower.addMessage(match.captured(1));
    }
    return follower.getSummary();
}

} // namespace Viewer::AppCore
