#include "packetbatch.h"

namespace VirtualCamera {

void CPacketBatch::clear()
{
    m_count = 0;
    m_used = 0;
}

uchar *CPacketBatch::append(const CPeer &receiver, bool mayBeFragmented, int size)
{
    if (isEmpty()) {
        m_receiver = receiver;
        m_mayBeFragmented = mayBeFragmented;
    }
    const bool fits = m_count < MOST_PACKETS && size <= MOST_BYTES - m_used;
    if (!fits || receiver != m_receiver || mayBeFragmented != m_mayBeFragmented)
        return nullptr;
    uchar *const bytes = m_bytes.get() + m_used;
    m_packets[static_cast<std::size_t>(m_count)] = {bytes, size};
    m_used += size;
    ++m_count;
    return bytes;
}

const CPacketBatch::CPacket &CPacketBatch::getPacket(int index) const
{
    return m_packets[static_cast<std::size_t>(index)];
}

} // namespace VirtualCamera
