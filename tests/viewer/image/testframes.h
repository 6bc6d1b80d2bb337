#pragma once

#include "viewer/image/frame.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <array>
#include <functional>

/// Frames packed bit by bit, slowly and plainly, from the name of their format alone.
namespace TestFrames {

/// Red, green and blue of a pixel, from 0 to 1.
using Color = std::array<double, 3>;
using Picture = std::function<Color(int x, int y)>;

/// A colourful picture without edges.
[[nodiscard]] Color getSmoothColor(int x, int y);

/// The names of all formats.
[[nodiscard]] QStringList getFormatNames();

/// Bits of a sample of the format.
[[nodiscard]] int getBits(const QString &format);

/// Which colours the sensor gives for a pixel: one for mono (grey) and Bayer, else three.
[[nodiscard]] QVector<int> getSamples(const QString &format, int x, int y, const Picture &picture);

/// Exactly the bytes of the lines and, behind each but the last, @p linePadding.
[[nodiscard]] Viewer::Image::CFrame makeFrame(const QString &format, int width, int height,
                                              int linePadding = 0,
                                              const Picture &picture = getSmoothColor);

} // namespace TestFrames
