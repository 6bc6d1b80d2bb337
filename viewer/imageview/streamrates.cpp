#include "streamrates.h"

#include <QStringList>

namespace Viewer::ImageView {

static constexpr double MEGA = 1e6;

void CStreamRates::add(const Camera::CStreamStatistics &statistics, qint64 droppedCount,
                       qint64 time)
{
    if (statistics.frames < m_last.statistics.frames)
        clear();
    m_previous = m_last;
    m_last = {statistics, droppedCount, time};
    ++m_count;
}

void CStreamRates::clear()
{
    *this = {};
}

QString CStreamRates::getText() const
{
    const qint64 time = m_last.time - m_previous.time;
    if (m_count < 2 || time <= 0)
        return {};
    const Camera::CStreamStatistics &now = m_last.statistics;
    const Camera::CStreamStatistics &then = m_previous.statistics;
    const double seconds = static_cast<double>(time) / 1000;
    const double frames = static_cast<double>(now.frames - then.frames) / seconds;
    const double bytes = static_cast<double>(now.bytes - then.bytes) / seconds;
    QStringList parts{
        tr("%1 frames/s, %2 MB/s")
            .arg(QString::number(frames, 'f', 1), QString::number(bytes / MEGA, 'f', 1))};
    // Beside a small image there is room for what is wrong, but not for what is not.
    const auto add = [&parts](const QString &text, qint64 count) {
        if (count > 0)
            parts.append(text.arg(count));
    };
    add(tr("packets resent: %1"), now.resentPackets - then.resentPackets);
    add(tr("packets lost: %1"), now.lostPackets - then.lostPackets);
    add(tr("frames incomplete: %1"), now.incompleteFrames - then.incompleteFrames);
    add(tr("frames not shown: %1"), m_last.droppedCount - m_previous.droppedCount);
    return parts.join(QStringLiteral(", "));
}

QString CStreamRates::getTotals() const
{
    if (m_count == 0)
        return {};
    const Camera::CStreamStatistics &now = m_last.statistics;
    return tr("Since acquisition was started:\nframes: %1\ndata: %2 MB\nresent "
              "packets: %3\nlost packets: %4\nincomplete frames: %5\nframes "
              "not shown: %6")
        .arg(QString::number(now.frames),
             QString::number(static_cast<double>(now.bytes) / MEGA, 'f', 1),
             QString::number(now.resentPackets), QString::number(now.lostPackets),
             QString::number(now.incompleteFrames), QString::number(m_last.droppedCount));
}

} // namespace Viewer::ImageView
