#pragma once

#include "viewer/camera/icamerastream.h"

#include <QCoreApplication>
#include <QString>

namespace Viewer::ImageView {

/// What the user is told of a stream: how fast it is, and what was lost since the last look.
class CStreamRates
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::ImageView::CStreamRates)

public:
    /// @p statistics and @p droppedCount (frames that were not shown) count from the start of the
    /// stream; @p time in milliseconds, of a clock that only goes forward. Counts that have become
    /// smaller are those of a stream that has been started again.
    void add(const Camera::CStreamStatistics &statistics, qint64 droppedCount, qint64 time);

    void clear();

    /// One line of what has come between the last two calls of add(); empty before the second one.
    [[nodiscard]] QString getText() const;

    /// Several lines of what has come since the start.
    [[nodiscard]] QString getTotals() const;

private:
    struct CSample
    {
        Camera::CStreamStatistics statistics;
        qint64 droppedCount = 0;
        qint64 time = 0;
    };

    CSample m_previous;
    CSample m_last;
    int m_count = 0;
};

} // namespace Viewer::ImageView
