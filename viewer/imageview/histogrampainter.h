#pragma once

#include <QRect>

class QPainter;

namespace Viewer::Image {
struct CHistogram;
}

namespace Viewer::ImageView {

/// Paints @p histogram into the lower right corner of @p area, as far as that is large enough.
/// Heights are square roots of the counts, so that rare values can be seen, too.
void paintHistogram(QPainter &painter, const QRect &area, const Image::CHistogram &histogram);

} // namespace Viewer::ImageView
