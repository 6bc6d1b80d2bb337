#include "streamchannel.h"

#include <algorithm>
#include <cstring>

namespace VirtualCamera {

using Gvsp::EContent;
using Gvsp::EStatus;

// Of so many frames packets can be had again.
static constexpr std::size_t MOST_FRAMES = 8;
static constexpr std::size_t MOST_RESENDS = 256;

int CStreamChannel::CFrame::getDataSize() const
{
    return packetSize - Gvsp::TRANSPORT_SIZE - Gvsp::HEADER_SIZE;
}

int CStreamChannel::CFrame::getPacketCount() const
{
    return (picture->getSize() + getDataSize() - 1) / getDataSize() + 2;
}

CStreamChannel::CStreamChannel(const CCameraSettings &settings)
    : m_faults(settings)
{
}

void CStreamChannel::configure(const CStreamSettings &settings)
{
    m_clock.configure(settings.framePeriod, settings.isTriggered);
    m_settings = settings;
}

void CStreamChannel::setPicture(std::shared_ptr<const CPicture> picture)
{
    m_picture = std::move(picture);
}

void CStreamChannel::start(quint32 frameCount, Time now)
{
    abort();
    m_clock.start(frameCount, now);
}

void CStreamChannel::stop()
{
    m_clock.stop();
    // Its rest is not to come.
    if (m_isStuck)
        m_isSending = false;
}

void CStreamChannel::abort()
{
    m_clock.stop();
    m_isSending = false;
    m_isStuck = false;
    m_hasTestPacket = false;
    m_nextPacket = Time(0);
    m_payloadCount = 0;
    m_heldBack.reset();
    m_frames.clear();
    m_resends.clear();
}

void CStreamChannel::trigger()
{
    if (!m_isSending)
        m_clock.trigger();
}

void CStreamChannel::fireTestPacket()
{
    m_hasTestPacket = true;
}

void CStreamChannel::resend(quint16 block, quint32 first, quint32 last)
{
    const CFrame *const frame = findFrame(block);
    // Of a frame that is not known it is said once, whatever was asked for.
    last = frame ? std::min(last, static_cast<quint32>(frame->getPacketCount()) - 1) : first;
    if (first <= last && m_resends.size() < MOST_RESENDS)
        m_resends.push_back({block, first, last});
}

const CStreamChannel::CFrame *CStreamChannel::findFrame(quint16 block) const
{
    const auto frame = std::find_if(m_frames.begin(), m_frames.end(),
                                    [block](const CFrame &each) { return each.block == block; });
    return frame == m_frames.end() ? nullptr : &*frame;
}

void CStreamChannel::take(Time now, CPacketBatch &batch)
{
    if (m_hasTestPacket && m_settings.receiver.port != 0) {
        const int size = m_settings.packetSize - Gvsp::TRANSPORT_SIZE;
        uchar *const bytes = batch.append(m_settings.receiver, m_settings.mayBeFragmented, size);
        if (!bytes)
            return;
        std::memset(bytes, 0, static_cast<std::size_t>(size));
    }
    m_hasTestPacket = false;
    takeResends(batch);
    while (m_resends.empty() && (m_isSending || beginFrame(now))) {
        if (m_isStuck || now < getPacketDue() || !sendNextPacket(batch, now))
            return;
    }
}

void CStreamChannel::takeResends(CPacketBatch &batch)
{
    if (m_settings.receiver.port == 0)
        m_resends.clear();
    while (!m_resends.empty()) {
        CResend &resend = m_resends.front();
        const CFrame *const frame = findFrame(resend.block);
        const bool isKnown = frame && resend.next < static_cast<quint32>(frame->position);
        if (isKnown) {
            if (!sendPacket(batch, *frame, static_cast<int>(resend.next), EStatus::Resent))
                return;
            ++m_statistics.resent;
        } else {
            uchar *const bytes
                = batch.append(m_settings.receiver, m_settings.mayBeFragmented, Gvsp::HEADER_SIZE);
            if (!bytes)
                return;
            Gvsp::writeHeader(bytes, EStatus::Unavailable, resend.block, EContent::Payload,
                              resend.next);
            ++m_statistics.unavailable;
        }
        if (resend.next++ == resend.last)
            m_resends.pop_front();
    }
}

bool CStreamChannel::beginFrame(Time now)
{
    if (!m_picture || !m_clock.take(now))
        return false;
    if (m_settings.receiver.port == 0) {
        endFrame();
        return false;
    }
    if (m_frames.size() == MOST_FRAMES)
        m_frames.pop_front();
    CFrame frame;
    frame.number = m_clock.getNumber();
    // 0 is no block.
    frame.block = static_cast<quint16>((frame.number - 1) % 0xffff + 1);
    frame.start = now;
    frame.receiver = m_settings.receiver;
    frame.packetSize = m_settings.packetSize;
    frame.mayBeFragmented = m_settings.mayBeFragmented;
    frame.picture = m_picture;
    m_frames.push_back(frame);
    m_isSending = true;
    return true;
}

void CStreamChannel::endFrame()
{
    ++m_statistics.frames;
    m_isSending = false;
}

Time CStreamChannel::getPacketDue() const
{
    const CFrame &frame = m_frames.back();
    if (m_settings.packetDelay.count() > 0)
        return std::max(frame.start, m_nextPacket);
    // Over half of the period, as over a wire of that speed: all at once are more than a receiver's
    // buffer holds. In bunches, each of which costs one call.
    const int bunch
        = std::clamp(CPacketBatch::MOST_BYTES / frame.packetSize, 1, CPacketBatch::MOST_PACKETS);
    return frame.start
        + m_settings.framePeriod / 2 * (frame.position / bunch * bunch) / frame.getPacketCount();
}

bool CStreamChannel::sendNextPacket(CPacketBatch &batch, Time now)
{
    CFrame &frame = m_frames.back();
    const int position = frame.position;
    const int last = frame.getPacketCount() - 1;
    const bool isPayload = position > 0 && position < last;
    const qint64 payloadNumber = m_payloadCount + 1;
    if (isPayload && isEachNth(payloadNumber, m_faults.losesPacket)) {
        ++m_statistics.lost;
        m_heldBack.reset();
    } else {
        const bool isSwapped = isPayload && !m_heldBack && position + 1 < last
            && isEachNth(payloadNumber, m_faults.swapsPacket);
        const int packet = isSwapped ? position + 1 : m_heldBack.value_or(position);
        if (!sendPacket(batch, frame, packet, EStatus::Success))
            return false;
        ++m_statistics.packets;
        m_heldBack = isSwapped ? std::optional<int>(position) : std::nullopt;
    }
    if (isPayload)
        m_payloadCount = payloadNumber;
    m_nextPacket = now + m_settings.packetDelay;
    ++frame.position;
    m_isStuck = frame.number == m_faults.stopsInFrame && frame.position > last / 2;
    if (frame.position > last)
        endFrame();
    return true;
}

bool CStreamChannel::sendPacket(CPacketBatch &batch, const CFrame &frame, int packet,
                                EStatus status)
{
    const int last = frame.getPacketCount() - 1;
    const int offset = (packet - 1) * frame.getDataSize();
    const CPicture &picture = *frame.picture;
    const bool isPayload = packet > 0 && packet < last;
    const int dataSize = std::min(frame.getDataSize(), picture.getSize() - offset);
    const int size = packet == 0 ? Gvsp::LEADER_SIZE
        : isPayload              ? Gvsp::HEADER_SIZE + dataSize
                                 : Gvsp::TRAILER_SIZE;
    uchar *const bytes = batch.append(frame.receiver, frame.mayBeFragmented, size);
    if (!bytes)
        return false;
    const EContent content = packet == 0 ? EContent::Leader
        : isPayload                      ? EContent::Payload
                                         : EContent::Trailer;
    Gvsp::writeHeader(bytes, status, frame.block, content, static_cast<quint32>(packet));
    uchar *const data = bytes + Gvsp::HEADER_SIZE;
    QRect region = picture.getRegion();
    switch (content) {
    case EContent::Leader:
        if (isEachNth(frame.number, m_faults.wrongLeaderSize))
            region.setHeight(region.height() * 2);
        Gvsp::writeLeader(data, frame.start, picture.getFormat(), region);
        break;
    case EContent::Payload:
        picture.copy(frame.block, offset, dataSize, data);
        break;
    case EContent::Trailer:
        if (isEachNth(frame.number, m_faults.wrongTrailerSize))
            region.setHeight(region.height() / 2);
        Gvsp::writeTrailer(data, region.height());
        break;
    }
    return true;
}

std::optional<Time> CStreamChannel::getNextDeadline() const
{
    if (m_hasTestPacket || !m_resends.empty())
        return Time(0);
    if (m_isSending)
        return m_isStuck ? std::nullopt : std::optional<Time>(getPacketDue());
    return m_clock.getNextDeadline();
}

} // namespace VirtualCamera
