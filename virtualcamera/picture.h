#pragma once

#include "pattern.h"

#include <QByteArray>
#include <QRect>

#include <array>

namespace VirtualCamera {

/// The bytes of the pictures that the camera takes in one format of one region, piece by piece.
class CPicture
{
public:
    /// The left edge and the width of @p region are multiples of 4, so that each row begins with a
    /// byte of its own whatever the format is. @p format has to outlive this object.
    CPicture(const CPixelFormat &format, const QRect &region, ETestPattern pattern);

    [[nodiscard]] const CPixelFormat &getFormat() const { return m_format; }
    [[nodiscard]] const QRect &getRegion() const { return m_region; }

    /// Bytes of one picture.
    [[nodiscard]] int getSize() const { return m_rowSize * m_region.height(); }

    /// Writes bytes @p offset to @p offset + @p size - 1 of the picture with the block id @p frame
    /// to @p target. They lie within the picture.
    void copy(quint32 frame, int offset, int size, uchar *target) const;

private:
    const CPixelFormat &m_format;
    const QRect m_region;
    const int m_rowSize;
    // Every row of every picture is somewhere in one of these, for even rows and for odd ones: it
    // is found as fast as memory is copied.
    std::array<QByteArray, 2> m_tapes;
};

} // namespace VirtualCamera
