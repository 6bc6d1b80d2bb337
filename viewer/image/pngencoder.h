#pragma once

#include "viewer/text/libraryversion.h"

#include <QByteArray>
#include <QImage>
#include <QPair>
#include <QString>
#include <QVector>

namespace Viewer::Image {

/// The library that packs pictures.
[[nodiscard]] Text::CLibraryVersion getPngLibrary();

/// Names and texts that a PNG file has beside its picture. A name is 1 to 79 Latin-1 characters.
using PngTexts = QVector<QPair<QByteArray, QString>>;

/// The file for a `Format_Grayscale8`, `Format_Grayscale16` or `Format_RGB888` image, made for
/// speed: each line is told by the differences to the pixels left of it, which are only coded by
/// their frequency, not searched for repetitions, of which the noise of a sensor has none. That
/// takes less than half the time of Qt's writer at its fastest level that packs, and the files are
/// smaller: one core writes about 45 images of 1920 x 1200 pixels a second with 8 bits, 23 with 12.
/// Empty where zlib has no memory. Any thread.
[[nodiscard]] QByteArray encodePng(const QImage &image, const PngTexts &texts);

} // namespace Viewer::Image
