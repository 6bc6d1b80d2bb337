#pragma once

#include "pixelformat.h"

namespace Viewer::Image {

/// The sample @p index of a line. Reads no byte in which the sample has no bit.
[[nodiscard]] int readSample(CPixelFormat::EPacking packing, const uchar *line, int index);

/// The first @p count samples of a line, each as the sensor gave it, without the bytes behind them.
void unpackLine(CPixelFormat::EPacking packing, const uchar *line, int count, quint16 *values);

/// The upper eight of the significant bits of the first @p count samples of a line, rounded down.
/// A sample with more than the significant bits becomes 255.
void unpackLineToBytes(const CPixelFormat &format, const uchar *line, int count, uchar *values);

} // namespace Viewer::Image
