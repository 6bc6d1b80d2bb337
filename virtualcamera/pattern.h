#pragma once

#include "pixelformat.h"

#include <array>

namespace VirtualCamera {

/// What the camera sees, by the values of its feature TestPattern.
enum class ETestPattern : quint32 {
    Off, ///< stripes that rise and fall smoothly, and move
    Black,
    White, ///< every sample saturated
};

/// The moving stripes repeat after so many columns. They are the same four columns to the left in
/// the next row, and eight columns to the left in the next frame.
inline constexpr int PATTERN_PERIOD = 2048;
inline constexpr int PATTERN_ROW_SHIFT = 4;
inline constexpr int PATTERN_FRAME_SHIFT = 8;

/// The samples of one pixel: one for grey and Bayer formats (the others are 0), else red, green and
/// blue, or Y, U and V, whatever their order in memory. Each has as many bits as the format's depth
/// says, in the lowest places.
using CPixel = std::array<quint16, 3>;

/// The pixel that the camera shows in column @p x and row @p y of its sensor (from 0 on, also where
/// a region of it begins elsewhere) in the frame with the block id @p frame, 1 to 65535. Depends on
/// nothing else.
[[nodiscard]] CPixel computePixel(quint32 frame, int x, int y, const CPixelFormat &format,
                                  ETestPattern pattern = ETestPattern::Off);

} // namespace VirtualCamera
