#pragma once

#include <QVector>

namespace Viewer::Image {

struct CFrame;

/// What the sensor gave for one pixel: one value for mono and Bayer, red, green and blue for RGB
/// and BGR, luma, U and V for YUV. Empty where there is no such pixel or the frame cannot be read.
/// Any thread.
[[nodiscard]] QVector<int> getPixel(const CFrame &frame, int x, int y);

/// How many samples have which value, as the sensor gave them.
struct CHistogram
{
    /// Images with more pixels are counted in every second, third, ... pair of lines.
    static constexpr qint64 MAXIMUM_PIXELS = qint64(1) << 20;

    /// One list of counts for mono; red, green, blue for Bayer (which has twice as much green), RGB
    /// and BGR; luma, U, V for YUV. Empty where the frame cannot be read.
    QVector<QVector<quint32>> counts;

    /// Which part of the lines has been counted: every line with 1, with n the first two lines of
    /// every 2 n.
    int step = 1;
};

/// @p bins from 1 to the number of values that a sample can have, or the next of these. They are of
/// the same width; values above what the format has are in the last one. Any thread.
[[nodiscard]] CHistogram computeHistogram(const CFrame &frame, int bins);

} // namespace Viewer::Image
