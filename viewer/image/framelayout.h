#pragma once

#include "viewer/text/errortext.h"

namespace Viewer::Image {

struct CFrame;
struct CPixelFormat;

/// Where the lines of a frame are. Whatever reads a frame makes one first; without a fault, every
/// byte of every line is there. Any thread.
///
/// A line begins on a byte of its own, packed formats as well.
class CFrameLayout
{
public:
    /// Greatest width and height. What comes of an image with the most pixels, four bytes each, is
    /// half of what `QImage` can hold.
    static constexpr int MAXIMUM_SIDE = 65535;
    static constexpr qint64 MAXIMUM_PIXELS = qint64(1) << 28;

    /// The greatest `linePadding`; the streams of cameras have 16 bits for it.
    static constexpr int MAXIMUM_PADDING = 65535;

    /// @p frame has to outlive this.
    explicit CFrameLayout(const CFrame &frame);

    /// Why the frame cannot be read, a clause; empty: it can, and only then the rest holds.
    [[nodiscard]] const Text::CErrorText &getFault() const;

    [[nodiscard]] const CPixelFormat &getFormat() const;

    /// Bytes from the begin of a line to that of the next one.
    [[nodiscard]] int getStride() const;

    /// Bytes of a line, without the padding.
    [[nodiscard]] int getLineSize() const;

    /// Bytes from the first of the first line to the last of the last one, without its padding,
    /// which some cameras leave out.
    [[nodiscard]] qint64 getSize() const;

    /// @p y from 0 to the height - 1.
    [[nodiscard]] const uchar *getLine(int y) const;

private:
    Text::CErrorText findFault();

    const CFrame &m_frame;
    const CPixelFormat *m_format;
    int m_lineSize = 0;
    Text::CErrorText m_fault;
};

} // namespace Viewer::Image
