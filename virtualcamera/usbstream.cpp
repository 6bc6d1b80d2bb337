#include "usbstream.h"

#include "picture.h"
#include "u3v.h"

#include <algorithm>
#include <cstring>

namespace VirtualCamera {

static constexpr std::size_t MOST_FRAMES = 4;

CUsbStream::CUsbStream(const CCameraSettings &settings)
    : m_faults(settings)
{
}

void CUsbStream::configure(const CStreamSettings &settings)
{
    m_clock.configure(settings.framePeriod, settings.isTriggered);
}

void CUsbStream::setPicture(std::shared_ptr<const CPicture> picture)
{
    m_picture = std::move(picture);
}

void CUsbStream::start(quint32 frameCount, Time now)
{
    abort();
    m_clock.start(frameCount, now);
}

void CUsbStream::stop()
{
    m_clock.stop();
    // Who stops does not fetch what has not begun.
    while (!m_frames.empty() && !m_frames.back().hasLeader)
        m_frames.pop_back();
}

void CUsbStream::abort()
{
    m_clock.stop();
    m_frames.clear();
    m_isStuck = false;
}

void CUsbStream::trigger()
{
    m_clock.trigger();
}

bool CUsbStream::isAcquiring() const
{
    return m_clock.isRunning();
}

void CUsbStream::fireTestPacket()
{
}

void CUsbStream::setEnabled(bool isEnabled)
{
    if (!isEnabled)
        m_frames.clear();
    m_isEnabled = isEnabled;
}

void CUsbStream::tick(Time now)
{
    while (m_picture && m_clock.take(now)) {
        if (m_isEnabled && m_frames.size() < MOST_FRAMES)
            m_frames.push_back({m_clock.getNumber(), now, m_picture, false, 0});
        else
            ++m_statistics.lost;
    }
}

int CUsbStream::copy(const QByteArray &bytes, uchar *target, int size)
{
    const int count = std::min(int(bytes.size()), size);
    std::memcpy(target, bytes.constData(), static_cast<std::size_t>(count));
    return count;
}

std::optional<int> CUsbStream::take(uchar *target, int size)
{
    if (m_frames.empty() || m_isStuck)
        return {};
    ++m_statistics.packets;
    CFrame &frame = m_frames.front();
    const auto block = static_cast<quint64>(frame.number);
    QRect region = frame.picture->getRegion();
    if (!frame.hasLeader) {
        frame.hasLeader = true;
        if (isEachNth(frame.number, m_faults.wrongLeaderSize))
            region.setHeight(region.height() * 2);
        return copy(U3v::makeLeader(block, frame.time, frame.picture->getFormat(), region), target,
                    size);
    }
    int rest = frame.picture->getSize() - frame.offset;
    if (rest > 0) {
        m_isStuck = frame.number == m_faults.stopsInFrame;
        const bool unplugs = frame.number == m_faults.unplugsInFrame && !m_isAtUnplugging;
        m_isAtUnplugging = m_isAtUnplugging || unplugs;
        if (m_isStuck || unplugs)
            rest = frame.picture->getSize() / 2;
        const int count = std::min(rest, size);
        frame.picture->copy(static_cast<quint32>(frame.number), frame.offset, count, target);
        frame.offset += count;
        return count;
    }
    const auto payloadSize = static_cast<quint64>(frame.picture->getSize());
    if (isEachNth(frame.number, m_faults.wrongTrailerSize))
        region.setHeight(region.height() / 2);
    m_frames.pop_front();
    ++m_statistics.frames;
    return copy(U3v::makeTrailer(block, payloadSize, region.height()), target, size);
}

std::optional<Time> CUsbStream::getNextDeadline() const
{
    return m_clock.getNextDeadline();
}

} // namespace VirtualCamera
