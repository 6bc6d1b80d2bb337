#pragma once

#include "peer.h"

#include <array>
#include <memory>

namespace VirtualCamera {

/// Packets of a stream that are sent in one go, all to one receiver, in memory that is used again
/// and again.
class CPacketBatch
{
public:
    static constexpr int MOST_PACKETS = 64;
    static constexpr int MOST_BYTES = 64 * 1024;

    /// Bytes of one packet.
    struct CPacket
    {
        uchar *bytes;
        int size;
    };

    void clear();

    /// Room for one more packet of @p size bytes for @p receiver; null when it has to wait for the
    /// next batch.
    [[nodiscard]] uchar *append(const CPeer &receiver, bool mayBeFragmented, int size);

    [[nodiscard]] bool isEmpty() const { return m_count == 0; }
    [[nodiscard]] int getCount() const { return m_count; }
    [[nodiscard]] const CPacket &getPacket(int index) const;
    [[nodiscard]] const CPeer &getReceiver() const { return m_receiver; }
    [[nodiscard]] bool mayBeFragmented() const { return m_mayBeFragmented; }

private:
    const std::unique_ptr<uchar[]> m_bytes = std::make_unique<uchar[]>(MOST_BYTES);
    std::array<CPacket, MOST_PACKETS> m_packets{};
    int m_count = 0;
    int m_used = 0;
    CPeer m_receiver;
    bool m_mayBeFragmented = true;
};

} // namespace VirtualCamera
