#pragma once

#include <QString>

namespace Viewer::Image {

/// What the bytes of an image mean. The formats that can be shown are a table that never changes.
struct CPixelFormat
{
    /// What the samples of a line are, in their order.
    enum class EKind { Mono, Bayer, Rgb, Bgr, Uyvy, Yuyv };

    /// How samples lie in memory.
    enum class EPacking {
        Bytes, ///< one byte each
        Words, ///< two bytes each, the low one first, the upper bits zero
        /// GigE Vision: two samples in three bytes; the first and the last byte have the upper
        /// eight bits, the middle one the lower bits of the first sample, from bit 4 on those of
        /// the second.
        GigE10,
        GigE12,
        /// One sample behind the other without a gap, from the lowest bit of each byte up.
        Lsb10,
        Lsb12,
    };

    /// Colours of the first two pixels of the first line; those of the second line follow from
    /// them.
    enum class EPattern { None, RG, GR, GB, BG };

    quint32 code; ///< of the pixel format naming convention (PFNC)
    const char *name; ///< of the same
    EKind kind;
    EPattern pattern;
    EPacking packing;
    int bitsPerPixel; ///< in memory
    int significantBits; ///< of a sample

    /// The greatest value of a sample. The camera may give greater ones where memory has more bits.
    [[nodiscard]] int getMaximum() const;

    /// Null where the code is unknown.
    [[nodiscard]] static const CPixelFormat *find(quint32 code);

    /// Null where the name is unknown. Older names of the same formats are known too.
    [[nodiscard]] static const CPixelFormat *find(const QString &name);

    /// The name of the format, of an unknown one the code as a hexadecimal number.
    [[nodiscard]] static QString getName(quint32 code);
};

} // namespace Viewer::Image
